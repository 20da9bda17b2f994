#pragma once

#include "i18n/TextRow.h"
#include "platform/Text.h"

#include <functional>
#include <span>
#include <vector>

/// What the perk viewer shows of a region: the window's caption, the tree of the perks that can be
/// learned there, and the map's heading for one of them.
namespace PerkTree {

/// Numbers of the tree's pictures besides those of the categories, 1 to 7.
inline constexpr int PerkPicture = 8;
inline constexpr int RootPicture = 9;

/// The key of the root node.
inline constexpr TextView RootKey = u"root";

/// A node; nodes stand in the order in which they are shown, a parent before its children.
struct Node {
  /// `RootKey`, the letter of a category, or the key of a perk.
  Text key;
  /// Key of the parent; "" for the root.
  Text parent;
  Text caption;
  /// Number of its picture, 1 to 9.
  int picture = 0;
  bool bold = false;
};

/// A region by its own name and as it is shown in the current language.
struct Region {
  Text name;
  Text shown;
};

/// The text of a row in the current language.
using Lookup = std::function<Text(const TextRow& row)>;

/// The headings of the map over the teachers of a perk, for the regions that have perks.
[[nodiscard]] std::vector<TextRow> Headings();

/// The name of the region whose data file this is; "" if none of the three that have perks.
[[nodiscard]] Text PerkRegion(TextView perksData);

/// The caption of the window that shows the region's tree.
[[nodiscard]] Text WindowCaption(const Region& region, const Lookup& lookup);

/// The root, the seven categories, and below these the perks that the section names are, in the
/// order of the sections. A perk that is named twice is shown once.
[[nodiscard]] std::vector<Node> Build(std::span<const Text> sectionNames, const Region& region,
                                      const Lookup& lookup);

/// Whether the node with this key is a perk whose teachers can be shown.
[[nodiscard]] bool IsPerk(TextView key);

/// The heading of the map with the teachers of the perk; "" if the data file is of no region that
/// has perks.
[[nodiscard]] Text MapHeading(TextView perksData, TextView perkCaption, const Lookup& lookup);

/// The region's picture: beside the data file, with another extension.
[[nodiscard]] Text PicturePath(TextView perksData);

}  // namespace PerkTree
