#pragma once

#include <vector>

#include "terrain/Shape.h"

namespace Terrain {

/// A river from its source to its mouth.
struct River {
  struct Bend {
    Point at;
    /// Full width in frame units.
    double width;
  };

  std::vector<Bend> bends;
};

/// The land of one region, a value for each unit of the frame. It follows from the region's shape
/// alone, so the places of a world can be chosen on it before anything is painted.
struct Field {
  const Shape* shape = nullptr;
  /// Below 0 is water, its depth; land reaches from 0 to about 1.2.
  Grid<float> height;
  /// 0 (dry) to 1 (wet).
  Grid<float> moisture;
  /// 0 (open) to 1 (dense trees).
  Grid<float> forest;
  /// Depth inside paved ground in frame units, negative outside.
  Grid<float> floor;
  /// 1 in the middle of a river, 0 outside its banks.
  Grid<float> river;
  /// None where the shape has no catchment.
  std::vector<River> rivers;
};

/// The land of a shape, which must outlive the field.
[[nodiscard]] Field MakeField(const Shape& shape);

/// Steepness at a frame place: change of height in 100 frame units.
[[nodiscard]] double Steepness(const Field& field, int x, int y);

/// Share of the ground there that snow covers, 0 to 1.
[[nodiscard]] double SnowCover(const Field& field, double x, double y, double height,
                               double steepness);

}  // namespace Terrain
