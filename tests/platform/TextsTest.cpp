#include "app/Twips2Pixel_Module.h"
#include "platform/NativePath.h"
#include "platform/Text.h"
#include "platform/Windows1252.h"

#include <gtest/gtest.h>

TEST(Windows1252, KeepsEveryByteAndRefusesWhatItLacks) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    all.push_back(static_cast<char>(byte));
  EXPECT_EQ(Windows1252::Encode(Windows1252::Decode(all)), all);
  EXPECT_EQ(Windows1252::Decode("\x80\x9F\x81\xE4"), u"\u20AC\u0178\u0081\u00E4");
  EXPECT_FALSE(Windows1252::Encode(u"\u65E5"));
  EXPECT_FALSE(Windows1252::Encode(u"\U0001F600"));
}

TEST(Windows1252, LowersLettersOfTheWholeCodePage) {
  EXPECT_EQ(Texts::Lower(u"AZ ÄÖÜ ŠŒŽŸ ÀÞ ß×÷ 日"), u"az äöü šœžÿ àþ ß×÷ 日");
}

TEST(Texts, TrimsSpacesOnlyAndReplacesFromTheLeft) {
  EXPECT_EQ(Texts::Trim(u"  \ta b  "), u"\ta b");
  EXPECT_EQ(Texts::Trim(u"   "), u"");
  EXPECT_EQ(Texts::ReplaceAll(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(Texts::ReplaceAll(u"%s and %s", u"%s", u"%s!"), u"%s! and %s!");
  EXPECT_EQ(Texts::ReplaceAll(u"abc", u"", u"x"), u"abc");
}

TEST(NativePath, GivesAnyBytesBackAndShowsThem) {
  for (const std::string path : {"/tmp/J\xE4ger", "/tmp/Jäger", "/tmp/日本 \xF0\x9F\x98\x80",
                                 "\xF0\x9F", "\xC0\xAF\xFF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
    EXPECT_EQ(NativePath::ToBytes(NativePath::FromBytes(path)), path);
  }
  EXPECT_EQ(NativePath::ForDisplay(NativePath::FromBytes("/J\xE4ger/\xF0\x9F\x98\x80")),
            u"/Jäger/\U0001F600");
  EXPECT_EQ(NativePath::EntryName("J\xE4ger"), u"Jäger");
  EXPECT_EQ(NativePath::EntryName("Jäger"), u"Jäger");
}

TEST(Scaling, MapsTheFrameToAnyMapAndResolution) {
  using namespace Twips2Pixel_Module;
  const Screen usual{15, 15};
  const Screen fine{12, 12};

  struct {
    Screen screen;
    Twips map;
    int x;
    int y;
    Twips point;
  } const cases[] = {
      {usual, {14000, 11535}, 512, 384, {7000, 5768}},
      {usual, {15360, 11520}, 1024, 768, {15360, 11520}},
      {fine, {12288, 9216}, 512, 768, {6144, 9216}},
      {usual, {57600, 32400}, 1024, 768, {57600, 32400}},
      {usual, {15360, 11520}, -10, 32767, {-150, 491505}},
  };

  for (const auto& test : cases)
    EXPECT_EQ(PointOnMap(test.screen, test.map, test.x, test.y), test.point) << test.x;
  EXPECT_EQ(Round(2.5), 2);
  EXPECT_EQ(Round(3.5), 4);
  EXPECT_EQ(Round(-0.5), 0);
  EXPECT_EQ(Round(1e300), 2147483647);
}
