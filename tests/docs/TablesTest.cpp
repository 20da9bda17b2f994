// Holds the tables of the manuals against the tables of the program and the demonstration world.
#include "app/MenuTable.h"
#include "auxwin/ExtrasTable.h"
#include "docs/Document.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/Settings.h"
#include "perks/PerkCatalogue.h"
#include "platform/NativePath.h"

#include <algorithm>
#include <array>
#include <set>

#include <gtest/gtest.h>

namespace {

using Table = std::vector<std::vector<std::string>>;

std::string Narrow(TextView text) {
  return NativePath::ToBytes(text);
}

std::string Mode(DisplayMode mode) {
  static constexpr std::array Names = {"list", "names", "hover"};
  return Names.at(static_cast<size_t>(mode));
}

std::string Lower(TextView key) {
  return Narrow(Texts::Lower(key));
}

// The keys of all tables about one section, in lower case as the program looks them up.
std::set<std::string> DocumentedKeys(const Document& document, const std::string& section) {
  std::set<std::string> keys;
  for (const Document::Row& row : document.rows)
    if (row.heading.starts_with('[' + section + ']'))
      keys.insert(Lower(NativePath::FromBytes(row.cells.at(0))));
  return keys;
}

}  // namespace

TEST(DocumentedMenus, AreTheMenusOfTheProgram) {
  Table expected;
  for (const MenuCaption& menu : MenuTable::Captions())
    expected.push_back({Narrow(menu.key), Narrow(menu.english), Narrow(menu.german)});
  EXPECT_EQ(Document::Read("translators.md").Table("[menus]"), expected);
}

TEST(DocumentedCategories, AreTheCategoriesOfEachRegion) {
  constexpr size_t FirstRegion = 2;
  const Table table = Document::Read("map-authors.md").Table("All categories");
  std::set<std::vector<std::string>> documented;
  for (const auto& row : table)
    for (size_t region = 0; region < Regions.size(); ++region)
      if (const std::string& mode = row.at(FirstRegion + region); mode != "–")
        documented.insert({std::to_string(region), row[0], mode});
  std::set<std::vector<std::string>> offered;
  for (const MenuRow& row : MenuTable::Rows())
    if (row.kind == MenuRow::Kind::Category)
      offered.insert(
          {std::to_string(static_cast<int>(*row.region)), Narrow(row.category), Mode(row.mode)});
  EXPECT_EQ(documented, offered);
}

TEST(DocumentedSettings, AreTheSettingsOfTheProgram) {
  Table expected;
  for (const Settings::Entry& entry : Settings::All) {
    const bool builtIn = entry.kind == Settings::Kind::Address;
    const std::string value = Narrow(entry.defaultValue);
    expected.push_back(
        {Narrow(entry.section), Narrow(entry.key), builtIn ? "a built-in address" : value});
  }
  Table documented = Document::Read("map-authors.md").Table("Settings");
  for (auto& row : documented)
    row.pop_back();
  EXPECT_EQ(documented, expected);
}

TEST(DocumentedPerks, AreThePerksOfTheProgram) {
  Table expected;
  for (const PerkCatalogue::Perk& perk : PerkCatalogue::Perks)
    expected.push_back({Narrow(PerkCatalogue::LanguageKey(perk)),
                        Narrow(PerkCatalogue::English(perk)), Narrow(perk.german),
                        Narrow(perk.key)});
  EXPECT_EQ(Document::Read("translators.md").Table("[frmPerks]: the perks"), expected);
}

TEST(DocumentedExtras, AreTheExtrasOfTheProgram) {
  Table expected;
  for (const Extra& extra : ExtrasTable)
    expected.push_back({Narrow(extra.key), Narrow(extra.english), Narrow(extra.german)});
  Table documented = Document::Read("translators.md").Table("[frmExtras]");
  std::erase_if(documented,
                [](const auto& row) { return row[0] == "caption" || row[0][0] == 'b'; });
  EXPECT_EQ(documented, expected);
}

class DocumentedSections : public testing::TestWithParam<const char*> {};

TEST_P(DocumentedSections, HaveTheKeysOfACompleteLanguage) {
  const Text section = NativePath::FromBytes(GetParam());
  const Text file = NativePath::FromBytes(ORVALIS_SOURCES "/world/LANG/English/English.lng");
  std::set<std::string> translated;
  for (const Text& key : IniOps::IniReadFile(file, section))
    translated.insert(Lower(key));
  EXPECT_FALSE(translated.empty());
  EXPECT_EQ(DocumentedKeys(Document::Read("translators.md"), GetParam()), translated);
}

INSTANTIATE_TEST_SUITE_P(Translators, DocumentedSections,
                         testing::Values("general", "menus", "ui", "frmLang", "frmFind", "frmAbout",
                                         "frmPrint", "frmInfo", "frmPerks", "frmExtras"));
