#include "app/AllTexts.h"
#include "app/MenuTable.h"
#include "auxwin/ExtrasTable.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "perks/PerkCatalogue.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"
#include "support/StartedLanguage.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include <gtest/gtest.h>

// What a map author owes the program, kept by the world that comes with it.

namespace {

const Text World = NativePath::FromBytes(ORVALIS_SOURCES "/world/");
const Text LanguageRoot = World + u"LANG/";
const Text German = World + u"info.data";
constexpr TextView Languages[] = {u"English", u"Français"};
constexpr TextView PlantSections[] = {u"dragonroots", u"goblinberries", u"kings sorrels"};
constexpr size_t MostMarkers = 81;
// Begins names that are put together from this word and another entry.
constexpr TextView Temple = u"Tempel von";

std::string Bytes(TextView text) {
  return NativePath::ToBytes(text);
}

std::string PageOf(TextView folder, TextView document) {
  const Text path = Texts::Join(folder, document.substr(0, document.rfind(u'.')), u".html");
  std::ifstream page(Bytes(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(page), {}};
}

struct Line {
  Text dataFile;
  Text section;
  Text key;
};

class WorldTest : public testing::Test {
 protected:
  WorldTest() {
    for (const RegionRow& region : Regions) {
      const Text data = Texts::Join(World, region.stem, u".data");
      for (const Text& section : files.IniSectionNames(data))
        for (const Text& key : files.IniReadFile(data, section))
          if (!EntityFile::IsDisabled(Windows1252::Encode(key).value()))
            lines.push_back({data, section, key});
    }
    for (const Line& line : lines)
      names.insert(line.key);
  }

  void ExpectEntry(TextView file, TextView section, TextView key) {
    EXPECT_NE(files.IniRead(file, section, key, u""), u"") << Bytes(section) << ": " << Bytes(key);
  }

  IniOps::Cache cache;
  IniOps::Snapshot files{cache};
  // Every line that the maps show, and the different names among them.
  std::vector<Line> lines;
  std::set<Text> names;
};

}  // namespace

TEST_F(WorldTest, PutsEveryEntityIntoTheFrameOfItsPicture) {
  EXPECT_GE(names.size(), 500u);
  for (const Line& line : lines) {
    const auto place = EntityFile::ReadPicked(files.File(line.dataFile), line.section, line.key);
    ASSERT_TRUE(place) << Bytes(line.section) << ": " << Bytes(line.key);
    EXPECT_TRUE(place->x >= 0 && place->x <= 1024 && place->y >= 0 && place->y <= 768)
        << Bytes(line.key) << " at " << place->x << "," << place->y;
  }
}

TEST_F(WorldTest, FillsEveryCategoryAndTeachesEveryPerk) {
  for (const MenuRow& row : MenuTable::Rows())
    if (row.kind == MenuRow::Kind::Category) {
      const Text data = Texts::Join(World, RowOf(*row.region).stem, u".data");
      const size_t count = files.IniReadFile(data, row.category).size();
      const bool fits = row.mode == DisplayMode::List || count <= MostMarkers;
      EXPECT_TRUE(count > 0 && fits) << Bytes(row.name) << " " << count;
    }
  std::set<Text> taught;
  for (const Line& line : lines)
    if (PerkCatalogue::Find(line.section))
      taught.insert(line.section);
  EXPECT_EQ(taught.size(), PerkCatalogue::Perks.size());
}

TEST_F(WorldTest, DescribesAndPicturesWhatIsThere) {
  const Text pictures = World + u"PICS/pic.ini";
  const std::regex painted("(person-[mf]|creature|object|place)-[a-z0-9-]+\\.jpg");
  for (const Text& key : files.IniReadFile(pictures, u"pics")) {
    const std::string picture = Bytes(files.IniRead(pictures, u"pics", key, u""));
    EXPECT_TRUE(names.contains(key)) << Bytes(key);
    EXPECT_TRUE(std::regex_match(picture, painted)) << picture;
  }
  for (const Text& key : files.IniReadFile(German, u"info")) {
    const auto text =
        InfoFile::ReadRedirected(files.File(German), key, [](auto to) { return Text(to); });
    EXPECT_TRUE(names.contains(key) && !text.empty() && text.front() != u'#') << Bytes(key);
  }
}

TEST_F(WorldTest, SpeaksEveryLanguageCompletely) {
  for (const TextView folder : Languages) {
    StartedLanguage language(files, LanguageRoot, Text(folder));
    const Text& file = language.LanguageFile();
    ASSERT_EQ(language.CurrentLanguage(), folder);
    for (const Text& key : names) {
      const Text shown = language.Shown(files, key);
      const bool temple = key.starts_with(Temple);
      ExpectEntry(file, u"entities", temple ? Temple : TextView(key));
      EXPECT_EQ(language.Key(shown), key) << Bytes(key) << " as " << Bytes(shown);
      EXPECT_EQ(language.Shown(files, shown), shown) << Bytes(shown);
    }
    for (const TextRow& row : AllTexts())
      ExpectEntry(file, Text(row.section), Text(row.key));

    const auto keyOf = [&](TextView shown) { return language.Key(shown); };
    for (const Text& key : files.IniReadFile(German, u"info")) {
      const Text own = InfoFile::ReadRedirected(files.File(language.InfoPath()), key, keyOf);
      EXPECT_TRUE(!own.empty() && own.front() != u'#') << Bytes(folder) << ": " << Bytes(key);
      EXPECT_NE(own, InfoFile::ReadRedirected(files.File(German), key, keyOf)) << Bytes(key);
    }
  }
}

TEST_F(WorldTest, ListsPlantsStonesAndTeachersInEveryLanguage) {
  for (const TextView folder : {LOCAL::German, Languages[0], Languages[1]}) {
    StartedLanguage language(files, LanguageRoot, Text(folder));
    const Text own = language.IsGerman() ? World : Texts::Join(LanguageRoot, folder, u"/");
    const Text extras = language.IsGerman() ? World + u"EXTRAS/" : own;
    EXPECT_NE(PageOf(own, u"orvalis.chm"), "") << Bytes(folder);
    EXPECT_NE(PageOf(own, u"readme.html"), "") << Bytes(folder);
    for (const Extra& extra : ExtrasTable)
      EXPECT_NE(PageOf(extras, extra.file), "") << Bytes(folder) << ": " << Bytes(extra.file);

    const std::string plants = PageOf(extras, u"plantlist.chm");
    const std::string stones = PageOf(extras, u"teleporterstones.chm");
    const std::string perks = PageOf(extras, u"perklist.chm");
    for (const Line& line : lines) {
      const Text name = language.IsGerman() ? line.key : language.Shown(files, line.key);
      const bool plant = std::ranges::count(PlantSections, line.section) > 0;
      const bool stone = line.section == u"teleporter stones";
      if (plant || stone || PerkCatalogue::Find(line.section)) {
        const std::string& page = plant ? plants : stone ? stones : perks;
        EXPECT_NE(page.find(Bytes(name)), std::string::npos) << Bytes(folder) << Bytes(name);
      }
    }
  }
}
