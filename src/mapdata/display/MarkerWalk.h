#pragma once

#include <cstddef>
#include <optional>
#include <span>

/// How the arrow keys walk over the map from marker to marker.
namespace MarkerWalk {

/// Where a marker stands; any unit.
struct Point {
  int x = 0;
  int y = 0;
};

/// Where an arrow key points.
enum class Direction { Left, Right, Up, Down };

/// The nearest marker in the direction: within 45 degrees of it, else anywhere on that side.
/// Markers at one point follow each other in their order: forward for right and down, backward for
/// left and up. None if there is nothing.
[[nodiscard]] std::optional<size_t> Next(std::span<const Point> points, size_t from,
                                         Direction direction);

}  // namespace MarkerWalk
