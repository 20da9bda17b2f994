#include "app/MenuTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

namespace {

using Kind = MenuRow::Kind;

const MenuRow& Row(TextView name) {
  const auto rows = MenuTable::Rows();
  return *std::find_if(rows.begin(), rows.end(),
                       [name](const MenuRow& row) { return row.name == name; });
}

}  // namespace

TEST(MenuTable, HasEveryCategoryOfEveryRegion) {
  std::array<int, Regions.size()> perRegion{};
  for (const MenuRow& row : MenuTable::Rows()) {
    if (row.kind != Kind::Category)
      continue;
    ASSERT_TRUE(row.region);
    EXPECT_FALSE(row.category.empty());
    ++perRegion[static_cast<size_t>(*row.region)];
  }
  EXPECT_EQ(perRegion, (std::array{41, 29, 43, 6, 7}));
}

TEST(MenuTable, OffersPerksWhereARegionHasThem) {
  std::set<Region> offered;
  for (const MenuRow& row : MenuTable::Rows())
    if (row.action == Action::Perks)
      offered.insert(row.region.value());
  for (const RegionRow& row : Regions)
    EXPECT_EQ(offered.contains(row.region), row.hasPerks);
}

TEST(MenuTable, CaptionsEveryMenuUnderAKeyOfItsOwn) {
  const auto captions = MenuTable::Captions();
  EXPECT_EQ(captions.size(), 180U);
  std::set<TextView> keys;
  for (const TextRow& caption : captions) {
    EXPECT_TRUE(keys.insert(caption.key).second);
    EXPECT_FALSE(caption.english.empty());
    EXPECT_FALSE(caption.german.empty());
  }
  EXPECT_EQ(Row(u"mnuExtras").caption.key, u"miExtras");
  EXPECT_EQ(Row(u"miSkaldorDragonRoots").caption.key, u"miSkaldorDragonroots");
  EXPECT_EQ(Row(u"mnuObjects").caption.key, u"mnuObjects");
}

TEST(MenuTable, NoTwoCommandsShareAShortcut) {
  std::set<TextView> shortcuts;
  for (const MenuRow& row : MenuTable::Rows())
    EXPECT_TRUE(row.shortcut.empty() || shortcuts.insert(row.shortcut).second);
  EXPECT_EQ(shortcuts.size(), 11U);
}

TEST(MenuTable, ShowsTheSameCategoryDifferentlyFromRegionToRegion) {
  EXPECT_EQ(Row(u"miArvennaNPCs").mode, DisplayMode::List);
  EXPECT_EQ(Row(u"miOstrakhNPCs").mode, DisplayMode::Labels);
  EXPECT_EQ(Row(u"miArvennaItems").mode, DisplayMode::LabelsOnHover);
  EXPECT_EQ(Row(u"miSarrakhItems").mode, DisplayMode::Labels);
  EXPECT_EQ(Row(u"miancestorsItems").mode, DisplayMode::List);
  EXPECT_EQ(Row(u"miArvennaQuestNPCs").mode, DisplayMode::List);
  EXPECT_EQ(Row(u"miSkaldorQuestNPCs").mode, DisplayMode::LabelsOnHover);
}
