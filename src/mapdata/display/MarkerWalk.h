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

/// The marker that is nearest in the direction: among those within 45 degrees of it, else among
/// all that lie on that side. Markers at one point follow each other in their order, right and
/// down forward, left and up backward. None if nothing lies there.
[[nodiscard]] std::optional<size_t> Next(std::span<const Point> points, size_t from,
                                         Direction direction);

}  // namespace MarkerWalk
