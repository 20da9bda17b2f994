#include "terrain/Field.h"

#include "terrain/Noise.h"
#include "terrain/Outlines.h"
#include "terrain/Rivers.h"

namespace Terrain {

namespace {

// Each layer of noise draws from its own stretch of seeds.
enum Layer : std::uint32_t {
  WarpX = 100,
  WarpY = 200,
  FineWarpX = 300,
  FineWarpY = 400,
  Coast = 500,
  Hills = 600,
  Peaks = 700,
  Wet = 800,
  Groves = 900,
  Terraces = 1000,
  Snow = 1100,
  Walls = 1200
};

class Maker {
 public:
  explicit Maker(const Shape& shape) : shape_(shape) {}

  [[nodiscard]] Field make() const;

 private:
  [[nodiscard]] double noise(Layer layer, Point at, double size, int octaves) const {
    return FractalNoise(shape_.seed + layer, at.x / size, at.y / size, octaves);
  }

  [[nodiscard]] Point warped(Point at) const;
  [[nodiscard]] double mountains(Point at) const;
  [[nodiscard]] double terraced(double height, Point at) const;
  [[nodiscard]] double landHeight(Point at) const;
  [[nodiscard]] double caveHeight(Point at, double floor) const;
  [[nodiscard]] double floorDepth(Point at) const;
  [[nodiscard]] double moisture(Point at) const;
  [[nodiscard]] double forest(Point at, double height, double steepness, double moisture) const;

  const Shape& shape_;
};

Point Maker::warped(Point at) const {
  return {at.x + 30 * noise(WarpX, at, 120, 3) + 11 * noise(FineWarpX, at, 26, 5),
          at.y + 30 * noise(WarpY, at, 120, 3) + 11 * noise(FineWarpY, at, 26, 5)};
}

double Maker::mountains(Point at) const {
  const double crags = RidgedNoise(shape_.seed + Peaks, at.x / 62, at.y / 62, 6);
  double highest = 0;
  for (const Range& range : shape_.ranges) {
    const double reach = LineDistance(range.crest, at) / range.width;
    highest = std::max(highest, range.height * std::exp(-reach * reach));
  }
  return highest * (0.30 + 0.95 * crags);
}

// Barren plateaus fall off in steps instead of slopes.
double Maker::terraced(double height, Point at) const {
  const double steps = 9;
  const double scaled = height * steps + 0.5 * noise(Terraces, at, 70, 3);
  const double whole = std::floor(scaled);
  return Lerp(height, (whole + SmoothStep(0.62, 1.0, scaled - whole)) / steps, 0.8);
}

double Maker::landHeight(Point at) const {
  const Point place = warped(at);
  double inland = CoastDistance(shape_.land, place) + 9 * noise(Coast, at, 34, 5);
  inland = std::min(inland, -DiscDepth(shape_.lakes, Point{Lerp(at.x, place.x, 0.45),
                                                           Lerp(at.y, place.y, 0.45)}));
  if (inland < 0) {
    return std::max(inland / 120, -1.0);
  }
  const double rise = SmoothStep(0, 70, inland);
  const double hills = 0.5 + 0.5 * noise(Hills, place, 85, 5);
  const double height = 0.012 + 0.0005 * inland + rise * (0.03 + 0.22 * hills + mountains(place));
  if (shape_.climate == Climate::Barren) {
    return std::max(0.02, terraced(height + 0.10 * SmoothStep(0, 14, inland), at));
  }
  return height;
}

double Maker::floorDepth(Point at) const {
  if (shape_.halls.empty()) {
    return -1e3;
  }
  const double roughness = shape_.climate == Climate::Underground ? 1.6 : 3.0;
  return FloorDepth(shape_, at) + roughness * noise(Walls, at, 14, 3);
}

double Maker::caveHeight(Point at, double floor) const {
  const double pool = DiscDepth(shape_.lakes, at);
  if (pool > 0) {
    return -0.05 - pool / 120;
  }
  const double rock = 0.45 + 0.25 * noise(Hills, at, 60, 6) + 0.25 * mountains(at);
  return floor > 0 ? 0.08 : Lerp(0.12, rock, SmoothStep(0, 26, -floor));
}

double Maker::moisture(Point at) const {
  const double wet = 0.5 + 0.75 * noise(Wet, at, 140, 4);
  switch (shape_.climate) {
    case Climate::Desert:
      return Clamp01(0.22 * wet + 0.9 * SmoothStep(-12, 14, DiscDepth(shape_.oases, warped(at))));
    case Climate::Barren:
      return Clamp01(0.85 * wet - 0.05);
    case Climate::Underground:
      return 0;
    case Climate::Temperate:
    case Climate::Arctic:
      break;
  }
  return Clamp01(wet);
}

double Maker::forest(Point at, double height, double steepness, double moisture) const {
  if (height < 0.025 || shape_.forest <= 0) {
    return 0;
  }
  const double groves = 0.5 + 0.9 * noise(Groves, at, 62, 4) + 0.35 * (moisture - 0.5);
  const double edge = 1.0 - shape_.forest;
  const double treeLine = shape_.climate == Climate::Arctic ? 0.55 : 0.62;
  return SmoothStep(edge - 0.08, edge + 0.10, groves) *
         (1 - SmoothStep(treeLine - 0.1, treeLine + 0.1, height)) *
         (1 - SmoothStep(2.2, 3.4, steepness)) * SmoothStep(0.02, 0.05, height);
}

Field Maker::make() const {
  Field field;
  field.shape = &shape_;
  field.height = Grid<float>(FrameWidth, FrameHeight);
  field.moisture = field.height;
  field.forest = field.height;
  field.floor = field.height;
  field.river = field.height;
  const bool carved = shape_.climate == Climate::Underground;
  for (int y = 0; y < FrameHeight; ++y) {
    for (int x = 0; x < FrameWidth; ++x) {
      const Point at{x + 0.5, y + 0.5};
      const double floor = floorDepth(at);
      const double height = carved ? caveHeight(at, floor) : landHeight(at);
      field.floor.at(x, y) = static_cast<float>(height < 0 ? -1e3 : floor);
      field.height.at(x, y) = static_cast<float>(height);
      field.moisture.at(x, y) = static_cast<float>(moisture(at));
    }
  }
  if (shape_.catchment > 0) {
    FollowRivers(field);
  }
  for (int y = 0; y < FrameHeight; ++y) {
    for (int x = 0; x < FrameWidth; ++x) {
      const double paved = SmoothStep(-10, -2, field.floor.at(x, y));
      field.forest.at(x, y) =
          static_cast<float>((1 - paved) * forest({x + 0.5, y + 0.5}, field.height.at(x, y),
                                                  Steepness(field, x, y), field.moisture.at(x, y)));
    }
  }
  return field;
}

}  // namespace

Field MakeField(const Shape& shape) {
  return Maker(shape).make();
}

double Steepness(const Field& field, int x, int y) {
  const double dx = field.height.clamped(x + 2, y) - field.height.clamped(x - 2, y);
  const double dy = field.height.clamped(x, y + 2) - field.height.clamped(x, y - 2);
  return std::hypot(dx, dy) * 25;
}

double SnowCover(const Field& field, double x, double y, double height, double steepness) {
  if (height < 0) {
    return 0;
  }
  const double drift = 0.10 * FractalNoise(field.shape->seed + Snow, x / 40, y / 40, 4);
  switch (field.shape->climate) {
    case Climate::Arctic:
      // The north lies under snow down to the shore, the south only on its heights.
      return SmoothStep(-0.06, 0.06,
                        height + drift + 0.75 * (0.55 - y / FrameHeight) - 0.16 -
                            0.03 * std::min(steepness, 4.0));
    case Climate::Temperate:
      return SmoothStep(-0.05, 0.07, height + drift - 0.78 - 0.03 * std::min(steepness, 4.0));
    case Climate::Desert:
    case Climate::Barren:
    case Climate::Underground:
      break;
  }
  return 0;
}

}  // namespace Terrain
