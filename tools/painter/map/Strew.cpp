#include "map/Strew.h"

#include <algorithm>

#include "terrain/Noise.h"

namespace Map {

using Terrain::Point;

namespace {

constexpr int TriesPerCell = 6;

// Cells are so small that each holds one place at most.
class Sieve {
 public:
  explicit Sieve(double spacing)
      : spacing_(spacing),
        cell_(spacing / 1.4143),
        taken_(static_cast<int>(Terrain::FrameWidth / cell_) + 1,
               static_cast<int>(Terrain::FrameHeight / cell_) + 1, Point{-1e6, -1e6}) {}

  [[nodiscard]] int cells() const { return taken_.width() * taken_.height(); }

  [[nodiscard]] bool admit(Point at) {
    const int column = static_cast<int>(at.x / cell_);
    const int row = static_cast<int>(at.y / cell_);
    for (int y = row - 2; y <= row + 2; ++y) {
      for (int x = column - 2; x <= column + 2; ++x) {
        if (Terrain::Distance(taken_.clamped(x, y), at) < spacing_) {
          return false;
        }
      }
    }
    taken_.at(column, row) = at;
    return true;
  }

 private:
  double spacing_;
  double cell_;
  Terrain::Grid<Point> taken_;
};

}  // namespace

std::vector<Point> Strew(std::uint32_t seed, double spacing,
                         const std::function<double(Point)>& density) {
  Terrain::Random random(seed);
  Sieve sieve(spacing);
  std::vector<Point> places;
  for (int i = sieve.cells() * TriesPerCell; i > 0; --i) {
    const Point at{random.between(0, Terrain::FrameWidth), random.between(0, Terrain::FrameHeight)};
    const bool wanted = random.chance(density(at));
    if (wanted && sieve.admit(at)) {
      places.push_back(at);
    }
  }
  std::ranges::sort(places, {}, &Point::y);
  return places;
}

}  // namespace Map
