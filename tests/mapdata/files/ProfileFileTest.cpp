#include "mapdata/files/ProfileFile.h"

#include <gtest/gtest.h>

using ProfileLines::LineKind;

namespace {

std::vector<LineKind> KindsOf(const ProfileLines::Lines& lines) {
  std::vector<LineKind> kinds;
  for (const ProfileLines::Line& line : lines)
    kinds.push_back(line.AsEntry().kind);
  return kinds;
}

// All ways to write the given number of letters in small and capital letters.
std::vector<std::string> Cases(char small, char capital, unsigned letters) {
  std::vector<std::string> names;
  for (unsigned name = 0; name < 1U << letters; ++name) {
    std::string& text = names.emplace_back(letters, small);
    for (unsigned letter = 0; letter < letters; ++letter)
      if ((name >> letter & 1U) != 0)
        text[letter] = capital;
  }
  return names;
}

}  // namespace

TEST(NameTable, TellsNamesApartByAllButTheCaseOfAscii) {
  const std::vector<std::string> names = {"Tom", "\x8AKA", "\x9Ak", "TOM", "", "\x9A\x6B\x41"};
  const auto nameAt = [&names](uint32_t i) { return std::string_view(names[i]); };
  NameTable table;
  table.Build(names.size(), nameAt);
  EXPECT_EQ(table.Find("tOM", nameAt), 0U) << "the first";
  EXPECT_EQ(table.Find("", nameAt), 4U);
  EXPECT_EQ(table.Find("\x9Aka", nameAt), 5U) << "the same but for ASCII comes first";
  EXPECT_EQ(table.Find("\x8Ak", nameAt), 2U) << "then any letter of the code page";
  EXPECT_EQ(table.Find("To", nameAt), std::nullopt);
  EXPECT_EQ(NameTable().Find("Tom", nameAt), std::nullopt);
}

TEST(NameTable, NamesThatOnlyDifferInCaseDontSlowItDown) {
  // Looking through all the others for each of them would take minutes.
  for (const auto& [small, capital] : {std::pair('^', '~'), std::pair('\xE4', '\xC4')}) {
    const auto names = Cases(small, capital, 17);
    const auto nameAt = [&names = names](uint32_t i) { return std::string_view(names[i]); };
    NameTable table;
    table.Build(names.size(), nameAt);
    for (uint32_t i = 0; i < names.size(); ++i)
      ASSERT_EQ(table.Find(names[i], nameAt), i);
  }
}

TEST(ProfileFile, GivesItsSectionsAndLinesAsTheyStand) {
  const ProfileFile file("\xEF\xBB\xBF; top\r\n [a] x\nk= \"v\" \r;c\n\n=1\nalone\n[b]");
  ASSERT_EQ(file.Sections().size(), 2U);
  const ProfileFile::Section& a = file.Sections()[0];
  EXPECT_EQ(a.name, "a");
  EXPECT_EQ(a.header, " [a] x");
  EXPECT_EQ(KindsOf(file.LinesBefore()), std::vector{LineKind::Comment});
  EXPECT_EQ(KindsOf(ProfileFile::Lines(a)),
            (std::vector{LineKind::KeyWithValue, LineKind::Comment, LineKind::Blank,
                         LineKind::KeyWithValue, LineKind::KeyWithoutValue}));
  const ProfileLines::Line first = *ProfileFile::Lines(a).begin();
  EXPECT_EQ(first.raw, "k= \"v\" ");
  EXPECT_EQ(first.end, "\r");
  EXPECT_EQ(first.AsEntry().value, "\"v\"");
  EXPECT_EQ(KindsOf(ProfileFile::Lines(file.Sections()[1])), std::vector<LineKind>());
}

TEST(ProfileFile, AnIndentedHeaderEndsNoKeyList) {
  const ProfileFile file("[a]\nk=1\n [b]\nl=2\n[c]\nm=3\n");
  EXPECT_EQ(file.KeyNames("a"), (std::vector<std::string_view>{"k", "[b]", "l"}));
  EXPECT_EQ(KindsOf(file.ListedLines("a")),
            (std::vector{LineKind::KeyWithValue, LineKind::Header, LineKind::KeyWithValue}));
}

TEST(ProfileFile, TellsWhereItsViewsStand) {
  const ProfileFile file("\xEF\xBB\xBF[a]\r\n k = \xE4,7 \rlast=\n");
  EXPECT_EQ(file.PlaceOf(file.Sections()[0].name), (Place{1, 2})) << "without the mark";
  EXPECT_EQ(file.PlaceOf(file.Read("A", "K")), (Place{2, 6}));
  EXPECT_EQ(file.PlaceOf(file.Read("a", "k").substr(2)), (Place{2, 8}));
  EXPECT_EQ(file.PlaceOf(file.KeyNames("a")[1]), (Place{3, 1}));
  EXPECT_EQ(file.PlaceOf(file.Read("a", "last")), (Place{3, 6})) << "an empty one, too";
  EXPECT_EQ(file.PlaceOf(file.Read("a", "none")), std::nullopt);
  EXPECT_EQ(file.PlaceOf("k"), std::nullopt) << "not its own";
}
