#include "terrain/Outlines.h"

namespace Terrain {

namespace {

constexpr double Far = 1e9;

double SegmentDistance(Point a, Point b, Point at) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double length = dx * dx + dy * dy;
  const double t = length > 0 ? Clamp01(((at.x - a.x) * dx + (at.y - a.y) * dy) / length) : 0.0;
  return Distance(at, {a.x + t * dx, a.y + t * dy});
}

bool Crosses(Point a, Point b, Point at) {
  return (a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x;
}

double OutlineDepth(Outline outline, Point at) {
  double nearest = Far;
  bool inside = false;
  Point previous = outline.back();
  for (const Point& corner : outline) {
    nearest = std::min(nearest, SegmentDistance(previous, corner, at));
    inside = inside != Crosses(previous, corner, at);
    previous = corner;
  }
  return inside ? nearest : -nearest;
}

double HallDepth(const Hall& hall, Point at) {
  const double x = std::abs(at.x - hall.left - hall.width / 2);
  const double y = std::abs(at.y - hall.top - hall.height / 2);
  if (hall.form == Hall::Form::Round) {
    const double reach = std::hypot(x / (hall.width / 2), y / (hall.height / 2));
    return (1 - reach) * std::min(hall.width, hall.height) / 2;
  }
  const double depth = std::min(hall.width / 2 - x, hall.height / 2 - y);
  if (hall.form == Hall::Form::Square) {
    return depth;
  }
  const double corner = (hall.width + hall.height) * 0.354 - x - y;
  return std::min(depth, corner * 0.7071);
}

}  // namespace

double CoastDistance(std::span<const Outline> land, Point at) {
  double depth = -Far;
  for (const Outline& outline : land) {
    depth = std::max(depth, OutlineDepth(outline, at));
  }
  return depth;
}

double LineDistance(std::span<const Point> line, Point at) {
  double nearest = Far;
  for (std::size_t i = 1; i < line.size(); ++i) {
    nearest = std::min(nearest, SegmentDistance(line[i - 1], line[i], at));
  }
  return nearest;
}

double FloorDepth(const Shape& shape, Point at) {
  double depth = -Far;
  for (const Hall& hall : shape.halls) {
    depth = std::max(depth, HallDepth(hall, at));
  }
  for (const Passage& passage : shape.passages) {
    depth = std::max(depth, passage.width / 2 - SegmentDistance(passage.from, passage.to, at));
  }
  return depth;
}

double DiscDepth(std::span<const Disc> discs, Point at) {
  double depth = -Far;
  for (const Disc& disc : discs) {
    depth = std::max(depth, disc.radius - Distance(disc.centre, at));
  }
  return depth;
}

}  // namespace Terrain
