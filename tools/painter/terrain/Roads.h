#pragma once

#include <vector>

#include "terrain/Field.h"

namespace Terrain {

/// A way over land, bends in frame units.
using Way = std::vector<Point>;

/// Cheapest ways over a field: around water, along valleys, and where others went before.
class RoadNetwork {
 public:
  explicit RoadNetwork(const Field& field);

  /// Joins all settlements, the nearest pairs first, each once. Settlements that no way over land
  /// reaches stay alone.
  [[nodiscard]] std::vector<Way> join(const std::vector<Point>& settlements);

  /// Ways from places to the nearest road; empty ones are left out.
  [[nodiscard]] std::vector<Way> branch(const std::vector<Point>& places);

 private:
  [[nodiscard]] Way find(Point from, Point to) const;
  [[nodiscard]] Way find(Point from, const Grid<char>& goals) const;
  void tread(const Way& way);

  Grid<float> effort_;
  Grid<char> trodden_;
};

}  // namespace Terrain
