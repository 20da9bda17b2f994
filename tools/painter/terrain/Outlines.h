#pragma once

#include "terrain/Shape.h"

namespace Terrain {

/// Distance to the nearest coast in frame units, positive on land.
[[nodiscard]] double CoastDistance(std::span<const Outline> land, Point at);

/// Distance to a line of straight pieces, in frame units.
[[nodiscard]] double LineDistance(std::span<const Point> line, Point at);

/// How far inside a hall or passage the point lies, in frame units; negative outside.
[[nodiscard]] double FloorDepth(const Shape& shape, Point at);

/// How far inside the deepest of the discs the point lies, in frame units; negative outside.
[[nodiscard]] double DiscDepth(std::span<const Disc> discs, Point at);

}  // namespace Terrain
