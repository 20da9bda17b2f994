#include "app/MenuTable.h"
#include "auxwin/ExtrasTable.h"
#include "i18n/LOCAL.h"
#include "mapdata/EntityFile.h"
#include "mapdata/InfoFile.h"
#include "perks/PerkCatalogue.h"
#include "platform/NativePath.h"
#include "support/StartedLanguage.h"

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include <gtest/gtest.h>

// What a map author promises the program, held by the world that comes with it.

namespace {

const Text World = NativePath::FromBytes(ORVALIS_SOURCES "/world/");
const Text LanguageRoot = World + u"LANG/";
const Text German = World + u"info.data";
constexpr TextView Languages[] = {u"English", u"Français"};
constexpr TextView Regions[] = {u"arvenna", u"skaldor", u"sarrakh", u"ostrakh", u"ancestors"};
constexpr TextView Plants[] = {u"dragonroots", u"goblinberries", u"kings sorrels"};
constexpr size_t MostMarkers = 81;

std::string Bytes(TextView text) {
  return NativePath::ToBytes(text);
}

bool IsPerkSection(TextView section) {
  return PerkCatalogue::Find(section) != nullptr;
}

class WorldTest : public testing::Test {
 protected:
  static Text DataFile(TextView region) { return Texts::Join(World, region, u".data"); }

  // Every line of a section that the map shows.
  std::vector<Text> Keys(TextView region, TextView section) {
    std::vector<Text> keys = files.IniReadFile(DataFile(region), section);
    std::erase_if(keys, [](const Text& key) { return EntityFile::IsDisabled(key); });
    return keys;
  }

  // Calls `see` with region, section and key of every entity that is shown anywhere.
  template <typename See>
  void ForEachEntity(See see) {
    for (const TextView region : Regions)
      for (const Text& section : files.IniSectionNames(DataFile(region)))
        for (const Text& key : Keys(region, section))
          see(region, section, key);
  }

  std::set<Text> AllKeys() {
    std::set<Text> all;
    ForEachEntity([&](TextView, TextView, const Text& key) { all.insert(key); });
    return all;
  }

  bool Has(TextView file, TextView section, TextView key) {
    return !files.IniRead(file, section, key, u"").empty();
  }

  static std::string Page(TextView path) {
    std::ifstream page(Bytes(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(page), {}};
  }

  // The page of a document in the folder of a language, or in the program's own.
  static Text PagePath(TextView folder, TextView document) {
    return Texts::Join(folder, document.substr(0, document.rfind(u'.')), u".html");
  }

  IniOps::Cache cache;
  IniOps::Snapshot files{cache};
};

}  // namespace

TEST_F(WorldTest, PutsEveryEntityIntoTheFrameOfItsPicture) {
  ForEachEntity([&](TextView region, TextView section, const Text& key) {
    const auto position = EntityFile::ReadPicked(files, DataFile(region), section, key);
    ASSERT_TRUE(position) << Bytes(section) << ": " << Bytes(key);
    EXPECT_TRUE(position->x >= 0 && position->x <= 1024 && position->y >= 0 && position->y <= 768)
        << Bytes(key) << " " << position->x << "," << position->y;
  });
  EXPECT_GE(AllKeys().size(), 500u);
}

TEST_F(WorldTest, FillsEveryCategoryOfTheMenusAndEveryPerk) {
  for (const MenuRow& row : MenuTable::Rows())
    if (row.kind == MenuRow::Kind::Category) {
      const Text data = DataFile(Regions[row.region]);
      const size_t lines = files.IniReadFile(data, row.category).size();
      EXPECT_GT(lines, 0u) << Bytes(row.name);
      EXPECT_TRUE(row.mode == DisplayMode::List || lines <= MostMarkers) << Bytes(row.name);
    }
  std::set<Text> taught;
  ForEachEntity([&](TextView, TextView section, const Text&) {
    if (IsPerkSection(section))
      taught.insert(Text(section));
  });
  EXPECT_EQ(taught.size(), PerkCatalogue::Perks.size());
}

TEST_F(WorldTest, DescribesAndPicturesOnlyEntitiesThatAreThere) {
  const std::set<Text> entities = AllKeys();
  const Text pictures = World + u"PICS/pic.ini";
  const std::regex painted("(person-[mf]|creature|object|place)-[a-z0-9-]+\\.jpg");
  for (const Text& key : files.IniReadFile(pictures, u"pics")) {
    EXPECT_TRUE(entities.contains(key)) << Bytes(key);
    const std::string name = Bytes(files.IniRead(pictures, u"pics", key, u""));
    EXPECT_TRUE(std::regex_match(name, painted)) << name;
  }
  const auto described = files.IniReadFile(German, u"info");
  EXPECT_GE(described.size(), 150u);
  for (const Text& key : described)
    EXPECT_TRUE(entities.contains(key)) << Bytes(key);
}

TEST_F(WorldTest, RedirectsToDescriptionsOnly) {
  const auto same = [](TextView key) { return Text(key); };
  for (const Text& key : files.IniReadFile(German, u"info")) {
    const Text text = InfoFile::ReadRedirected(files, German, key, same);
    EXPECT_TRUE(!text.empty() && text.front() != u'#') << Bytes(key);
  }
}

TEST_F(WorldTest, SpeaksEveryLanguageCompletely) {
  for (const TextView folder : Languages) {
    SCOPED_TRACE(Bytes(folder));
    StartedLanguage language(files, LanguageRoot, Text(folder));
    ASSERT_EQ(language.CurrentLanguage, folder);
    for (const Text& key : AllKeys()) {
      const Text shown = language.Shown(files, key);
      EXPECT_TRUE(Has(language.LanguageFile, u"entities", key)) << Bytes(key);
      EXPECT_EQ(language.Key(shown), key) << Bytes(shown) << " is not " << Bytes(key);
      EXPECT_EQ(language.Shown(files, shown), shown) << Bytes(shown);
    }
    for (const MenuCaption& caption : MenuTable::Captions())
      EXPECT_TRUE(Has(language.LanguageFile, u"menus", caption.key)) << Bytes(caption.key);
    for (const auto& category : PerkCatalogue::Categories)
      EXPECT_TRUE(Has(language.LanguageFile, u"frmPerks", category.languageKey));
    for (const auto& perk : PerkCatalogue::Perks)
      EXPECT_TRUE(Has(language.LanguageFile, u"frmPerks", PerkCatalogue::LanguageKey(perk)));

    const auto toKey = [&](TextView text) { return language.Key(text); };
    for (const Text& key : files.IniReadFile(German, u"info")) {
      const Text text = InfoFile::ReadRedirected(files, language.InfoFile(), key, toKey);
      EXPECT_TRUE(!text.empty() && text.front() != u'#') << Bytes(key);
      EXPECT_NE(text, InfoFile::ReadRedirected(files, German, key, toKey)) << Bytes(key);
    }
  }
}

TEST_F(WorldTest, ListsItsPlantsStonesAndTeachersInEveryLanguage) {
  for (const TextView folder : {TextView(LOCAL::German), Languages[0], Languages[1]}) {
    StartedLanguage language(files, LanguageRoot, Text(folder));
    const bool german = language.IsGerman();
    const Text own = Texts::Join(LanguageRoot, folder, u"/");
    const Text extras = german ? World + u"EXTRAS/" : own;
    for (const TextView document : {u"orvalis.chm", u"readme.html"})
      EXPECT_GT(Page(PagePath(german ? World : own, document)).size(), 1000u) << Bytes(document);
    for (const Extra& extra : ExtrasTable)
      EXPECT_GT(Page(PagePath(extras, extra.file)).size(), 1000u) << Bytes(extra.file);

    const std::string plants = Page(PagePath(extras, u"plantlist.chm"));
    const std::string stones = Page(PagePath(extras, u"teleporterstones.chm"));
    const std::string perks = Page(PagePath(extras, u"perklist.chm"));
    ForEachEntity([&](TextView, TextView section, const Text& key) {
      const std::string name = Bytes(german ? key : language.Shown(files, key));
      if (std::ranges::find(Plants, section) != std::end(Plants))
        EXPECT_NE(plants.find(name), std::string::npos) << name;
      if (section == u"teleporter stones")
        EXPECT_NE(stones.find(name), std::string::npos) << name;
      if (IsPerkSection(section))
        EXPECT_NE(perks.find(name), std::string::npos) << name;
    });
  }
}
