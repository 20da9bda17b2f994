#include "mapdata/display/MarkerWalk.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <tuple>

namespace {

using MarkerWalk::Direction;
using MarkerWalk::Point;

// Distances along the direction pressed and across it.
struct Way {
  std::int64_t along;
  std::int64_t beside;
};

Way WayTo(const Point& to, const Point& from, Direction direction) {
  const std::int64_t x = std::int64_t{to.x} - from.x;
  const std::int64_t y = std::int64_t{to.y} - from.y;
  switch (direction) {
    case Direction::Left:
      return {-x, std::abs(y)};
    case Direction::Right:
      return {x, std::abs(y)};
    case Direction::Up:
      return {-y, std::abs(x)};
    case Direction::Down:
      break;
  }
  return {y, std::abs(x)};
}

}  // namespace

namespace MarkerWalk {

std::optional<size_t> Next(std::span<const Point> points, size_t from, Direction direction) {
  const bool forward = direction == Direction::Right || direction == Direction::Down;
  // The smallest wins: outside the cone or not, the distance, steps in the order.
  using Rank = std::tuple<bool, double, size_t>;
  std::optional<Rank> best;
  size_t nearest = from;
  for (size_t i = 0; i < points.size(); ++i) {
    const auto [along, beside] = WayTo(points[i], points[from], direction);
    const bool samePoint = along == 0 && beside == 0;
    const bool ahead = samePoint ? i != from && (i > from) == forward : along > 0;
    const double distance = std::hypot(static_cast<double>(along), static_cast<double>(beside));
    const Rank rank = {beside > along, distance, i > from ? i - from : from - i};
    if (!ahead || (best && *best <= rank))
      continue;
    best = rank;
    nearest = i;
  }
  return best ? std::optional(nearest) : std::nullopt;
}

}  // namespace MarkerWalk
