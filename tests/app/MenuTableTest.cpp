#include "app/MenuTable.h"

#include <gtest/gtest.h>

#include <set>

TEST(MenuTable, OffersPerksWhereARegionHasThem) {
  std::set<Region> offered;
  for (const MenuRow& row : MenuTable::Rows())
    if (row.action == Action::Perks)
      offered.insert(row.region.value());
  for (const RegionRow& row : Regions)
    EXPECT_EQ(offered.contains(row.region), row.hasPerks);
}

TEST(MenuTable, NoTwoCommandsShareAShortcut) {
  std::set<TextView> shortcuts;
  for (const MenuRow& row : MenuTable::Rows())
    EXPECT_TRUE(row.shortcut.empty() || shortcuts.insert(row.shortcut).second);
  EXPECT_EQ(shortcuts.size(), 11U);
}
