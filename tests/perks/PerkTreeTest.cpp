#include "perks/PerkTree.h"

#include "perks/PerkCatalogue.h"

#include <map>

#include <gtest/gtest.h>

using namespace PerkTree;

namespace {

const Region Skaldor = {u"Skaldor", u"Skaldor"};

Text German(const TextRow& row) {
  return Text(row.german);
}

// A language whose file holds these entries.
Lookup LanguageOf(std::map<Text, Text> entries) {
  return [entries = std::move(entries)](const TextRow& row) {
    const auto entry = entries.find(Text(row.key));
    return entry == entries.end() ? Text(row.english) : entry->second;
  };
}

// "parent > caption" of the nodes below the categories.
std::vector<Text> PerksOf(const std::vector<Node>& nodes) {
  std::vector<Text> perks;
  for (const Node& node : nodes)
    if (node.picture == PerkPicture)
      perks.push_back(node.parent + u" > " + node.caption);
  return perks;
}

}  // namespace

TEST(PerkCatalogue, HoldsThePerksOfEachCategory) {
  std::map<char16_t, int> perksOfCategory;
  for (const PerkCatalogue::Perk& perk : PerkCatalogue::Perks)
    ++perksOfCategory[perk.category];
  const std::map<char16_t, int> expected = {{u'f', 16}, {u'h', 10}, {u'm', 44}, {u's', 6},
                                            {u't', 10}, {u'a', 8},  {u'o', 8}};
  EXPECT_EQ(perksOfCategory, expected);
  EXPECT_EQ(PerkCatalogue::Find(u"perk Bloodlust")->caption.german, u"Blutrausch  ");
  EXPECT_EQ(PerkCatalogue::Find(u"perk Acrobatics"), nullptr);
  EXPECT_EQ(PerkCatalogue::Find(u"perk "), nullptr);
}

TEST(PerkTree, ShowsCategoriesAndThePerksOfTheFileInItsOrder) {
  const Text sections[] = {u"teachers",        u"perk Fog", u"perk archer", u"Perk acrobatics",
                           u"perk Acrobatics", u"perk Fog", u"perkiness",   u"perk druid"};
  const auto nodes = Build(sections, Skaldor, German);
  ASSERT_EQ(nodes.size(), 11U);
  EXPECT_EQ(nodes[0].key, u"root");
  EXPECT_EQ(nodes[0].caption, u"Lehrer in Skaldor");
  EXPECT_EQ(nodes[0].picture, RootPicture);
  EXPECT_EQ(nodes[3].caption, u"Magietalente");
  EXPECT_EQ(nodes[3].parent, u"root");
  EXPECT_EQ(nodes[3].picture, 3);
  EXPECT_TRUE(nodes[7].bold);
  EXPECT_FALSE(nodes[8].bold);
  EXPECT_EQ(PerksOf(nodes), (std::vector<Text>{u"m > Nebel", u"h > Bogenschütze", u"m > Druide"}));
  EXPECT_EQ(Build({}, Skaldor, German).size(), 8U);
}

TEST(PerkTree, TakesCaptionsFromTheLanguageFile) {
  const Region region = {u"Sarrakh", u"Sarrakh Desert"};
  const Text sections[] = {u"perk Health", u"perk large weapons ii", u"perk archer"};
  const Lookup english = LanguageOf({{u"caption", u"%s: perks in %s"},
                                     {u"root", u"no sign"},
                                     {u"magicskills", u"Spells"},
                                     {u"Archer", u"Bow & arrow %s"}});
  EXPECT_EQ(WindowCaption(region, english), u"Sarrakh Desert: perks in Sarrakh Desert");
  EXPECT_EQ(WindowCaption(region, LanguageOf({})), u"Perks in Sarrakh Desert");
  EXPECT_EQ(WindowCaption(Skaldor, German), u"Lehrer für Perks in Skaldor");
  const auto nodes = Build(sections, region, english);
  EXPECT_EQ(nodes[0].caption, u"no sign");
  EXPECT_EQ(nodes[1].caption, u"Fighting skills");
  EXPECT_EQ(nodes[3].caption, u"Spells");
  EXPECT_EQ(PerksOf(nodes),
            (std::vector<Text>{u"o > Health", u"f > Large weapons II", u"h > Bow & arrow %s"}));
}

TEST(PerkTree, KnowsTheRegionByItsDataFile) {
  EXPECT_EQ(PerkRegion(u"/w/skaldor.data"), u"Skaldor");
  EXPECT_EQ(PerkRegion(u"/arvenna.data/sarrakh.data"), u"Sarrakh");
  EXPECT_EQ(PerkRegion(u"/sarrakh.data/arvenna.data"), u"Sarrakh");
  EXPECT_EQ(PerkRegion(u"/w/ostrakh.data"), u"");
  EXPECT_EQ(MapHeading(u"/w/arvenna.data", u"Orktöter", German), u"Arvenna: Lehrer für Orktöter");
  EXPECT_EQ(MapHeading(u"/w/arvenna.data", u"Orcslayer", LanguageOf({})), u" Orcslayer");
  EXPECT_EQ(MapHeading(u"/w/ostrakh.data", u"Orcslayer", German), u"");
  EXPECT_EQ(PicturePath(u"/my data/world.data/arvenna.data"), u"/my data/world.data/arvenna.jpg");
}
