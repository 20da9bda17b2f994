#pragma once

#include <string_view>

#include "map/Tone.h"

namespace Map {

/// What grows in a region; roofs and the snow on peaks follow from it.
enum class Tree { Broadleaf, Fir, Palm, Dead };

/// How a region's picture looks: its colours, its signs, its title.
struct RegionStyle {
  std::string_view region;
  std::u16string_view title;
  std::u16string_view subtitle;
  /// Ground by height, from the shore to the heights.
  Tone shore, low, middle, high;
  /// What moisture, woods and steepness turn the ground to.
  Tone lush, woods, rock, snow;
  Tone shallows, deep;
  Tone ink, paper, road;
  Tree tree;
  Tone leaves, leavesLit;
  /// How much steepness darkens and lightens.
  double relief;
};

/// Every region of the terrain has a style.
[[nodiscard]] const RegionStyle& StyleOf(std::string_view region);

}  // namespace Map
