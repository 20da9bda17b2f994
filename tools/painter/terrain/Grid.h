#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Terrain {

/// The frame that positions in the data files refer to.
inline constexpr int FrameWidth = 1024;
inline constexpr int FrameHeight = 768;

/// A point in frame units, x to the right, y downward.
struct Point {
  double x = 0;
  double y = 0;
};

[[nodiscard]] inline double Distance(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// `value` cut to 0 and 1.
[[nodiscard]] inline double Clamp01(double value) {
  return std::clamp(value, 0.0, 1.0);
}

/// 0 up to `from`, 1 beyond `to`, rising between them without a kink.
[[nodiscard]] inline double SmoothStep(double from, double to, double value) {
  const double t = Clamp01((value - from) / (to - from));
  return t * t * (3 - 2 * t);
}

/// From `a` at a `t` of 0 to `b` at 1; beyond these it goes on straight.
[[nodiscard]] inline double Lerp(double a, double b, double t) {
  return a + (b - a) * t;
}

/// A rectangle of values, all of them `value` at first.
template <typename T>
class Grid {
 public:
  Grid() = default;

  Grid(int width, int height, T value = T{})
      : width_(width),
        height_(height),
        cells_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), value) {}

  [[nodiscard]] int width() const { return width_; }

  [[nodiscard]] int height() const { return height_; }

  [[nodiscard]] bool contains(int x, int y) const {
    return x >= 0 && y >= 0 && x < width_ && y < height_;
  }

  /// The cell must lie within the grid.
  [[nodiscard]] T& at(int x, int y) { return cells_[index(x, y)]; }

  [[nodiscard]] const T& at(int x, int y) const { return cells_[index(x, y)]; }

  /// The value of the nearest cell within the grid, which must have one.
  [[nodiscard]] const T& clamped(int x, int y) const {
    return at(std::clamp(x, 0, width_ - 1), std::clamp(y, 0, height_ - 1));
  }

  /// Bilinear value at a place in cell units, cell centres at whole numbers.
  [[nodiscard]] double sample(double x, double y) const {
    const double left = std::floor(x);
    const double top = std::floor(y);
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    const double upper = Lerp(clamped(column, row), clamped(column + 1, row), x - left);
    const double lower = Lerp(clamped(column, row + 1), clamped(column + 1, row + 1), x - left);
    return Lerp(upper, lower, y - top);
  }

 private:
  [[nodiscard]] std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  int width_ = 0;
  int height_ = 0;
  std::vector<T> cells_;
};

}  // namespace Terrain
