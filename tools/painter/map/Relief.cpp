#include "map/Relief.h"

#include "terrain/Noise.h"
#include "terrain/Outlines.h"

namespace Map {

namespace {

using Terrain::Clamp01;
using Terrain::Climate;
using Terrain::FractalNoise;
using Terrain::Grid;
using Terrain::SmoothStep;

// Depths in frame units at which old maps draw lines along a coast.
struct WaterLine {
  double depth;
  double strength;
};

constexpr WaterLine WaterLines[] = {{4, 0.45}, {9, 0.32}, {15, 0.22}, {22, 0.14}};
constexpr double DepthUnits = 120;

Grid<float> Blurred(const Grid<float>& source, int radius) {
  Grid<float> across = source;
  Grid<float> result = source;
  const float share = 1.0F / static_cast<float>(2 * radius + 1);
  const auto pass = [&](const Grid<float>& from, Grid<float>& to, int dx, int dy) {
    for (int y = 0; y < from.height(); ++y) {
      for (int x = 0; x < from.width(); ++x) {
        float sum = 0;
        for (int i = -radius; i <= radius; ++i) {
          sum += from.clamped(x + i * dx, y + i * dy);
        }
        to.at(x, y) = sum * share;
      }
    }
  };
  pass(source, across, 1, 0);
  pass(across, result, 0, 1);
  return result;
}

class Ground {
 public:
  Ground(const Terrain::Field& field, const RegionStyle& style)
      : field_(field),
        style_(style),
        heights_(FineHeights(field)),
        broad_(Blurred(Blurred(field.height, 5), 5)) {}

  [[nodiscard]] QImage paint() const;

 private:
  [[nodiscard]] Tone water(double depth, double x, double y) const;
  [[nodiscard]] Tone frozen(const Tone& water, double depth, double x, double y) const;
  [[nodiscard]] Tone land(double height, double x, double y, double steepness) const;
  [[nodiscard]] Tone pixel(int column, int row) const;
  [[nodiscard]] Tone paved(const Tone& ground, double floor, double x, double y) const;

  const Terrain::Field& field_;
  const RegionStyle& style_;
  Grid<float> heights_;
  Grid<float> broad_;
};

Tone Ground::water(double depth, double x, double y) const {
  const double units = depth * DepthUnits;
  const double swell = 0.06 * FractalNoise(field_.shape->seed + 3000, x / 90, y / 60, 4);
  Tone tone = style_.shallows.towards(style_.deep, Clamp01(1 - std::exp(-units / 26) + swell));
  for (const WaterLine& line : WaterLines) {
    const double wobble = 0.9 * Terrain::GradientNoise(field_.shape->seed + 3100, x / 16, y / 16);
    const double near = 1 - SmoothStep(0.25, 0.75, std::abs(units - line.depth + wobble));
    tone = tone.towards(style_.ink, near * line.strength * 0.7);
  }
  return tone.towards(style_.ink, 0.75 * (1 - SmoothStep(0.5, 1.3, units)));
}

// Clear ice, with white cracks and drifts of snow.
Tone Ground::frozen(const Tone& water, double depth, double x, double y) const {
  if (Terrain::DiscDepth(field_.shape->ice, {x, y}) <= 0) {
    return water;
  }
  const std::uint32_t seed = field_.shape->seed + 3600;
  const double crack = std::abs(Terrain::GradientNoise(seed, x / 15, y / 11));
  const double drift = FractalNoise(seed + 50, x / 22, y / 14, 4);
  const double cover = SmoothStep(0.6, 1.6, depth * DepthUnits);
  const Tone ice = style_.shallows.towards(style_.snow, 0.3 + 0.6 * SmoothStep(0.1, 0.45, drift));
  return water.towards(ice, cover)
      .towards(style_.snow, 0.85 * cover * (1 - SmoothStep(0.015, 0.05, crack)));
}

// Flagstones, worn and sunken in places.
Tone Ground::paved(const Tone& ground, double floor, double x, double y) const {
  const double worn = FractalNoise(field_.shape->seed + 3200, x / 18, y / 18, 4);
  const double cover = SmoothStep(0, 1.5, floor) * SmoothStep(-0.25, 0.05, worn + 0.2);
  if (cover <= 0) {
    return ground;
  }
  constexpr double Stone = 6;
  const int row = static_cast<int>(std::floor(y / Stone));
  const double shifted = x / Stone + (row % 2 == 0 ? 0.5 : 0.0);
  const double tint =
      Terrain::HashFraction(field_.shape->seed + 3300, static_cast<int>(std::floor(shifted)), row);
  const double joint = std::min(std::abs(shifted - std::round(shifted)),
                                std::abs(y / Stone - std::round(y / Stone)));
  const Tone stone = style_.road.lit(0.84 + 0.14 * tint);
  const Tone laid = stone.towards(style_.ink, 0.45 * (1 - SmoothStep(0.03, 0.10, joint)));
  const double edge = 1 - SmoothStep(0.6, 2.0, std::abs(floor - 0.6));
  return ground.towards(laid.towards(style_.ink, 0.55 * edge), 0.85 * cover);
}

Tone Ground::land(double height, double x, double y, double steepness) const {
  const double cellX = x - 0.5;
  const double cellY = y - 0.5;
  const double wet = field_.moisture.sample(cellX, cellY);
  const double mottle = FractalNoise(field_.shape->seed + 3400, x / 26, y / 26, 4);
  const double level = height + 0.03 * mottle;
  Tone tone = style_.shore.towards(style_.low, SmoothStep(0.01, 0.05, level));
  tone = tone.towards(style_.middle, SmoothStep(0.10, 0.34, level));
  tone = tone.towards(style_.high, SmoothStep(0.34, 0.66, level));
  tone = tone.towards(style_.lush, SmoothStep(0.38, 0.85, wet + 0.12 * mottle) *
                                       (1 - SmoothStep(0.3, 0.6, height)));
  tone = tone.towards(style_.woods, 0.75 * field_.forest.sample(cellX, cellY));
  tone = tone.towards(style_.rock, SmoothStep(1.2, 3.4, steepness + 0.5 * mottle) * 0.8);
  const double snow = Terrain::SnowCover(field_, x, y, height, steepness);
  tone = tone.towards(style_.snow, 0.92 * snow);
  return paved(tone, field_.floor.sample(cellX, cellY), x, y);
}

Tone Ground::pixel(int column, int row) const {
  const double x = (column + 0.5) / Scale;
  const double y = (row + 0.5) / Scale;
  const double height = heights_.at(column, row);
  if (height < 0) {
    return frozen(water(-height, x, y), -height, x, y);
  }
  // The step between sea and shore is no slope.
  const auto level = [&](int dx, int dy) {
    return std::max(0.01, static_cast<double>(heights_.clamped(column + dx, row + dy)));
  };
  const double dx = (level(1, 0) - level(-1, 0)) / 2;
  const double dy = (level(0, 1) - level(0, -1)) / 2;
  const double steepness = std::hypot(dx, dy) * 200;
  const double light = 1 + style_.relief * (Shade(dx, dy) - 1);
  const double raised = height - broad_.sample(x - 0.5, y - 0.5);
  const double openness = 1 + std::clamp(raised * 1.1, -0.16, 0.12);
  return land(height, x, y, steepness).lit(light * openness);
}

QImage Ground::paint() const {
  QImage image(heights_.width(), heights_.height(), QImage::Format_RGB32);
  for (int row = 0; row < image.height(); ++row) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
    for (int column = 0; column < image.width(); ++column) {
      line[column] = pixel(column, row).rgb();
    }
  }
  return image;
}

// Wind ripples in dry sand, crags in rock; the coarser field knows neither.
double Texture(const Terrain::Field& field, double x, double y, double height) {
  const std::uint32_t seed = field.shape->seed + 3500;
  const double crags =
      (0.004 + 0.022 * SmoothStep(0.25, 0.7, height)) * FractalNoise(seed, x / 9, y / 9, 4);
  if (field.shape->climate != Climate::Desert) {
    return crags;
  }
  const double bend = 22 * FractalNoise(seed + 50, x / 120, y / 120, 2);
  const double along = (x * 0.5 + y * 0.87 + bend) / 13;
  const double across = (x * 0.87 - y * 0.5) / 52;
  const double dry = 1 - SmoothStep(0.3, 0.5, field.moisture.sample(x - 0.5, y - 0.5));
  const double gentle = 1 - SmoothStep(0.28, 0.5, height);
  return crags + 0.032 * dry * gentle * SmoothStep(0.03, 0.10, height) *
                     Terrain::RidgedNoise(seed + 60, across, along, 2);
}

}  // namespace

Grid<float> FineHeights(const Terrain::Field& field) {
  Grid<float> raw(Terrain::FrameWidth * Scale, Terrain::FrameHeight * Scale);
  for (int row = 0; row < raw.height(); ++row) {
    for (int column = 0; column < raw.width(); ++column) {
      const double x = (column + 0.5) / Scale;
      const double y = (row + 0.5) / Scale;
      const double height = field.height.sample(x - 0.5, y - 0.5);
      raw.at(column, row) = static_cast<float>(
          height < 0 ? height : std::max(0.001, height + Texture(field, x, y, height)));
    }
  }
  return Blurred(raw, 1);
}

QImage PaintRelief(const Terrain::Field& field, const RegionStyle& style) {
  return Ground(field, style).paint();
}

double Shade(double dx, double dy) {
  constexpr double Steepening = 42;
  const double nx = -dx * Steepening;
  const double ny = -dy * Steepening;
  const double length = std::sqrt(nx * nx + ny * ny + 1);
  // Towards the north-west, 45 degrees up.
  const double light = (-0.5 * nx - 0.5 * ny + 0.7071) / length;
  return 0.42 + 0.82 * std::max(0.0, light);
}

}  // namespace Map
