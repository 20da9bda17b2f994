#include "mapdata/world/EntityFile.h"

#include "mapdata/display/Placement.h"
#include "mapdata/files/StringOps.h"
#include "mapdata/world/InfoFile.h"
#include "support/GermanNames.h"

#include <gtest/gtest.h>

using EntityFile::Position;

namespace {

std::vector<EntityFile::Marker> Markers(const ProfileFile& data) {
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  return EntityFile::ReadMarkers(data, u"t", files, GermanNames(), 81);
}

}  // namespace

TEST(StringOps, SplitsInTwoWays) {
  using namespace StringOps;
  EXPECT_EQ(GetField(u"7,8,*", 2, u","), u"8");
  EXPECT_EQ(GetField(u"10,20", 3, u","), u"20");
  EXPECT_EQ(GetField(u"7,8", 0, u","), u"7");
  EXPECT_EQ(GetSplitField(u"7,8,*", 3, u","), u"*");
  EXPECT_EQ(GetSplitField(u"7", 2, u","), u"");
  EXPECT_EQ(GetSplitField(u"7,8", 0, u","), u"");
  EXPECT_EQ(GetSplitField(u",", 2, u","), u"");
  EXPECT_FALSE(StrContains(u"", u""));
  EXPECT_TRUE(StrContains(u"a", u""));
  EXPECT_FALSE(StrContains(u"Wolf", u"wolf"));
}

TEST(StringOps, ReadsNumbersInTwoWays) {
  constexpr auto none = std::nullopt;

  const struct {
    std::string_view text;
    int leading;
    std::optional<int> whole;
  } cases[] = {{"512", 512, 512},  {" 300 ", 300, 300},
               {"", 0, none},      {"2.5", 2, 2},
               {"3.5", 4, 4},      {"-7", -7, -7},
               {"+.6", 1, 1},      {"1e3", 1, none},
               {"inf", 0, none},   {"-", 0, none},
               {"1.2.3", 1, none}, {"99999", 32767, none},
               {"1,5", 1, none},   {"0.50000000000000000000000000000000001", 0, 0}};

  for (const auto& test : cases) {
    EXPECT_EQ(StringOps::LeadingNumber(test.text), test.leading) << test.text;
    EXPECT_EQ(StringOps::WholeNumber(test.text), test.whole) << test.text;
  }
  const StringOps::Number number = StringOps::ReadNumber(" 40000 px");
  EXPECT_TRUE(number.read && number.clamped);
  EXPECT_EQ(number.rest, "px");
  EXPECT_FALSE(StringOps::ReadNumber("px").read);
}

TEST(EntityFile, ThreeReadersOfOneValue) {
  const struct {
    std::string value;
    Position marker;
    std::optional<Position> picked;
    std::optional<Position> found;
  } cases[] = {
      {" 512 , 300 , * ", {512, 300}, Position{512, 300}, Position{512, 300}},
      {"640", {640, 640}, std::nullopt, Position{640, 640}},
      {"12abc,5", {12, 5}, std::nullopt, Position{0, 5}},
      {"", {0, 0}, std::nullopt, Position{0, 0}},
      {"#,smiths", {7, 8}, Position{7, 8}, Position{7, 8}},
      {" # , smiths ,*", {7, 8}, Position{7, 8}, Position{7, 8}},
      {"#,chain", {0, 0}, std::nullopt, Position{0, 0}},
      {"#,none", {0, 0}, std::nullopt, std::nullopt},
      {"40000,-40000", {32767, -32768}, std::nullopt, Position{0, 0}},
  };

  for (const auto& test : cases) {
    const ProfileFile data("[smiths]\nTom=7,8,*\n[chain]\nTom=#,smiths\n[t]\nTom=" + test.value);
    const auto markers = Markers(data);
    ASSERT_EQ(markers.size(), 1U);
    EXPECT_EQ(markers[0].position, test.marker) << test.value;
    EXPECT_EQ(markers[0].highlighted, test.value.find('*') != std::string::npos) << test.value;
    EXPECT_EQ(EntityFile::ReadPicked(data, u"t", u"Tom"), test.picked) << test.value;
    EXPECT_EQ(EntityFile::FoundPosition(EntityFile::Read(data, "t", "Tom")), test.found)
        << test.value;
  }
}

TEST(EntityFile, TellsWhereEachPartStands) {
  const ProfileFile file("[a]\nTom= #, b ,*\n[b]\nTom=12 , 7\n");
  const auto entity = EntityFile::Read(file, "A", "tom");
  EXPECT_EQ(file.PlaceOf(entity.value), (Place{2, 6}));
  EXPECT_EQ(file.PlaceOf(*entity.link), (Place{2, 9}));
  EXPECT_EQ(file.PlaceOf(EntityFile::ScannedFields(entity).y), (Place{4, 9}));
  EXPECT_EQ(file.PlaceOf(EntityFile::SplitFields(entity).x), (Place{4, 5}));
  EXPECT_TRUE(entity.highlighted);
}

TEST(EntityFile, DisabledLinesTakeTheirSlotAndOthersFollow) {
  std::string lines = "[t]\r\nAlpha=1,2\r\n;Beta=3,4,*\r\n*Gamma=5,6\r\n";
  for (int i = 3; i < 100; ++i)
    lines += "K" + std::to_string(i) + "=1,1\r\n";
  const ProfileFile data(std::move(lines));
  const auto markers = Markers(data);
  ASSERT_EQ(markers.size(), 81U);
  EXPECT_TRUE(markers[1].disabled);
  EXPECT_EQ(markers[1].position, Position());
  EXPECT_FALSE(markers[2].disabled);
  EXPECT_EQ(markers[2].name, u"*Gamma");
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  const auto listed = EntityFile::ReadNames(data, u"t", files, GermanNames());
  ASSERT_EQ(listed.size(), 99U);
  EXPECT_EQ(listed[1], u"*Gamma");
}

TEST(InfoFile, RedirectsOnceAndCutsForTooltips) {
  const ProfileFile file(
      "[Info]\r\na=# B \r\nb=#c\r\nc=end\r\nbreaks=one\\ntwo\r\nblank=\\n\\n\r\nlong=" +
      std::string(200, 'x') + "\r\n");
  const auto same = [](TextView key) { return Text(key); };
  EXPECT_EQ(InfoFile::ReadRedirected(file, u"A", same), u"#c");
  EXPECT_EQ(InfoFile::ReadRedirected(file, u" b ", same), u"end");
  const std::pair<TextView, Text> tips[] = {{u"breaks", u"one two..."},
                                            {u"blank", u""},
                                            {u"none", u""},
                                            {u"long", Text(80, u'x') + u"..."},
                                            {u"a", u"# B..."}};
  for (const auto& [key, tip] : tips)
    EXPECT_EQ(InfoFile::TooltipOf(InfoFile::ReadEntry(file, key)), tip);
}

TEST(Placement, KeepsNamesOnTheMap) {
  using namespace Placement;
  constexpr int width = 15450;
  EXPECT_EQ(SlotLabelLeft(1, 1000, 900, width), 1210) << "odd: right";
  EXPECT_EQ(SlotLabelLeft(2, 1000, 900, width), 50) << "even: left";
  EXPECT_EQ(SlotLabelLeft(2, 949, 900, width), 1159) << "even at the left edge: right";
  EXPECT_EQ(SlotLabelLeft(1, 14340, 900, width), 14550) << "up to the edge";
  EXPECT_EQ(SlotLabelLeft(1, 14341, 900, width), 13391) << "odd at the right edge: left";
  EXPECT_EQ(SlotLabelLeft(0, 100, 20000, width), -19950) << "wider than the window";
  EXPECT_EQ(SingleLabelLeft(0, 900, width), 210);
  EXPECT_EQ(SingleLabelLeft(14341, 900, width), 13391);
}
