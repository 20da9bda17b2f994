#include "perks/PerkTree.h"

#include "i18n/WindowTexts.h"
#include "mapdata/files/StringOps.h"
#include "mapdata/world/Regions.h"
#include "perks/PerkCatalogue.h"

#include <algorithm>
#include <array>

using PerkCatalogue::Categories;
using PerkCatalogue::Category;
using PerkCatalogue::Perk;
using Texts::Join;

namespace {

constexpr const TextRow& CaptionRow = WindowTexts::Row(u"frmPerks", u"caption");
constexpr const TextRow& RootRow = WindowTexts::Row(u"frmPerks", u"root");
constexpr TextView PictureExtension = u"jpg";

struct PerkedRegion {
  Region region;
  TextRow heading;
};

constexpr std::array<PerkedRegion, 3> PerkedRegions = {{
    {Region::Arvenna, PerkCatalogue::Named(u"ArvennaTeachersFor", u"", u"Arvenna: Lehrer für")},
    {Region::Skaldor, PerkCatalogue::Named(u"SkaldorTeachersFor", u"", u"Skaldor: Lehrer für")},
    {Region::Sarrakh, PerkCatalogue::Named(u"SarrakhTeachersFor", u"", u"Sarrakh: Lehrer für")},
}};

// The last one that the path names: a folder may be called like a data file.
const PerkedRegion* RegionOf(TextView perksData) {
  const auto found = std::find_if(
      PerkedRegions.rbegin(), PerkedRegions.rend(), [perksData](const PerkedRegion& region) {
        return StringOps::StrContains(perksData, Join(RowOf(region.region).stem, u".data"));
      });
  return found == PerkedRegions.rend() ? nullptr : &*found;
}

PerkTree::Node PerkNode(const Perk& perk, const PerkTree::Lookup& lookup) {
  return {Text(perk.key), Text(1, perk.category), lookup(perk.caption), PerkTree::PerkPicture,
          false};
}

}  // namespace

namespace PerkTree {

std::vector<TextRow> Headings() {
  std::vector<TextRow> headings;
  headings.reserve(PerkedRegions.size());
  for (const PerkedRegion& region : PerkedRegions)
    headings.push_back(region.heading);
  return headings;
}

Text PerkRegion(TextView perksData) {
  const PerkedRegion* region = RegionOf(perksData);
  return Text(region ? RowOf(region->region).word : TextView());
}

Text WindowCaption(const Region& region, const Lookup& lookup) {
  return Texts::ReplaceAll(lookup(CaptionRow), TextRow::Placeholder, region.shown);
}

std::vector<Node> Build(std::span<const Text> sectionNames, const Region& region,
                        const Lookup& lookup) {
  const Text root = lookup(RootRow);
  std::vector<Node> nodes = {{Text(RootKey),
                              {},
                              Texts::ReplaceAll(root, TextRow::Placeholder, region.shown),
                              RootPicture,
                              true}};
  for (const Category& category : Categories)
    nodes.push_back(
        {Text(1, category.key), Text(RootKey), lookup(category.caption), category.picture, true});
  std::vector<const Perk*> shown;
  for (const Text& name : sectionNames) {
    const Perk* perk = PerkCatalogue::Find(name);
    if (!perk || std::find(shown.begin(), shown.end(), perk) != shown.end())
      continue;
    shown.push_back(perk);
    nodes.push_back(PerkNode(*perk, lookup));
  }
  return nodes;
}

bool IsPerk(TextView key) {
  return key.size() > 1 && key != RootKey;
}

Text MapHeading(TextView perksData, TextView perkCaption, const Lookup& lookup) {
  const PerkedRegion* region = RegionOf(perksData);
  if (!region)
    return {};
  return Join(lookup(region->heading), u" ", perkCaption);
}

Text PicturePath(TextView perksData) {
  const size_t point = perksData.rfind(u'.');
  return Join(perksData.substr(0, point == TextView::npos ? 0 : point + 1), PictureExtension);
}

}  // namespace PerkTree
