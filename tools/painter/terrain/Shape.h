#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "terrain/Grid.h"

namespace Terrain {

/// What decides on heights, moisture and snow; under ground there are halls instead of land.
enum class Climate { Temperate, Arctic, Desert, Barren, Underground };

/// A closed line in frame units; the last point joins the first.
using Outline = std::span<const Point>;

/// A mountain range: crest line, half width in frame units, height of 0 to 1.
struct Range {
  std::span<const Point> crest;
  double width;
  double height;
};

/// A round area: lake, oasis, clearing.
struct Disc {
  Point centre;
  double radius;
};

/// A hall of the temple, or a paved ruin. Round ones fill the rectangle with an ellipse.
struct Hall {
  enum class Form { Square, Round, Octagon };
  double left, top, width, height;
  Form form;
};

/// A passage between halls, straight, `width` frame units wide.
struct Passage {
  Point from, to;
  double width;
};

/// What a region's land is made from; everything else follows from the seed.
struct Shape {
  std::string_view name;
  std::uint32_t seed;
  Climate climate;
  std::span<const Outline> land;
  std::span<const Disc> lakes;
  std::span<const Range> ranges;
  std::span<const Disc> oases;
  std::span<const Hall> halls;
  std::span<const Passage> passages;
  /// Share of open land that forest takes, 0 to 1.
  double forest;
  /// Square frame units that must drain into a cell before it carries a river; 0 is none.
  double catchment;
  /// Where water is frozen over, and where the ground is bog.
  std::span<const Disc> ice = {};
  std::span<const Disc> bogs = {};
};

/// The five regions in the order in which the program lists them.
[[nodiscard]] std::span<const Shape> Shapes();

/// The region of that name, or null.
[[nodiscard]] const Shape* FindShape(std::string_view name);

}  // namespace Terrain
