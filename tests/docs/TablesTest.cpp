// Holds the tables of the manuals against the tables of the program and the demonstration world.
#include "app/AllTexts.h"
#include "app/MenuTable.h"
#include "check/Rules.h"
#include "docs/Document.h"
#include "mapdata/world/Settings.h"
#include "perks/PerkCatalogue.h"
#include "platform/NativePath.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include <gtest/gtest.h>

namespace {

using Table = std::vector<std::vector<std::string>>;

constexpr auto* Narrow = &NativePath::ToBytes;

std::string Mode(DisplayMode mode) {
  static constexpr std::array Names = {"list", "names", "hover"};
  return Names.at(static_cast<size_t>(mode));
}

std::string Lower(TextView key) {
  return Narrow(Texts::Lower(key));
}

// As the manual writes what is shown without an entry.
std::string Default(const TextRow& row) {
  return row.english.empty() ? "–" : Narrow(row.english);
}

// The documented cells of each key of a section, by the key in lower case, as the program finds it.
std::map<std::string, std::vector<std::string>> Documented(const std::string& section) {
  std::map<std::string, std::vector<std::string>> keys;
  for (const Document::Row& row : Document::Read("translators.md").rows)
    if (row.heading.starts_with('[' + section + ']'))
      keys[Lower(NativePath::FromBytes(row.cells.at(0)))] = row.cells;
  return keys;
}

}  // namespace

TEST(DocumentedMenus, AreTheMenusOfTheProgram) {
  Table expected;
  std::vector<std::string> menus = {"–"};
  for (const MenuRow& row : MenuTable::Rows()) {
    if (row.kind == MenuRow::Kind::BarDivider)
      continue;
    const TextRow& caption = row.caption;
    menus.resize(static_cast<size_t>(row.level) + 1);
    expected.push_back(
        {Narrow(caption.key), Narrow(caption.english), Narrow(caption.german), menus.back()});
    menus.push_back(Narrow(caption.key));
  }
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
    expected.push_back({Narrow(perk.caption.key), Narrow(perk.caption.english),
                        Narrow(perk.caption.german), Narrow(perk.key)});
  EXPECT_EQ(Document::Read("translators.md").Table("[frmPerks]: the perks"), expected);
}

TEST(AllTexts, AreUnderOneNameEach) {
  std::set<std::string> names;
  for (const TextRow& row : AllTexts())
    EXPECT_TRUE(names.insert(Narrow(row.section) + '/' + Lower(row.key)).second) << Narrow(row.key);
}

class TextSections : public testing::TestWithParam<const char*> {};

TEST_P(TextSections, AreDocumentedWithTheirDefaults) {
  auto documented = Documented(GetParam());
  const bool withGerman =
      std::string("frmLang frmExtras frmPerks menus").find(GetParam()) != std::string::npos;
  for (const TextRow& row : AllTexts()) {
    if (Narrow(row.section) != GetParam())
      continue;
    const auto entry = documented.extract(Lower(row.key));
    ASSERT_TRUE(entry) << Narrow(row.key);
    EXPECT_EQ(entry.mapped().at(1), Default(row)) << Narrow(row.key);
    EXPECT_TRUE(!withGerman || entry.mapped().at(2) == Narrow(row.german)) << Narrow(row.key);
  }
  EXPECT_TRUE(documented.empty()) << "documented, but read by nobody";
}

INSTANTIATE_TEST_SUITE_P(Languages, TextSections,
                         testing::Values("general", "menus", "ui", "frmLang", "frmFind", "frmAbout",
                                         "frmPrint", "frmInfo", "page", "frmPerks", "frmExtras"));

TEST(DocumentedRules, AreTheRulesOfTheChecker) {
  Table ofWorlds;
  Table ofLanguages;
  for (const Rules::Rule& rule : Rules::All())
    (rule.number.starts_with(u'T') ? ofLanguages : ofWorlds)
        .push_back({Narrow(rule.number), Narrow(rule.name), Narrow(Rules::NameOf(rule.severity)),
                    Document::WithoutMarks(Narrow(rule.example)),
                    Document::WithoutMarks(Narrow(rule.consequence)),
                    Document::WithoutMarks(Narrow(rule.advice))});
  EXPECT_EQ(Document::Read("map-authors.md").Table("What the checker tells"), ofWorlds);
  EXPECT_EQ(Document::Read("translators.md").Table("What the checker tells"), ofLanguages);
}
