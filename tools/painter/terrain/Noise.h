#pragma once

#include <cstdint>

namespace Terrain {

/// A well-mixed number for a lattice point; equal input, equal number on every machine.
[[nodiscard]] std::uint32_t Hash(std::uint32_t seed, int x, int y);

/// The same, as a fraction from 0 up to but not including 1.
[[nodiscard]] double HashFraction(std::uint32_t seed, int x, int y);

/// Smooth noise with features about one unit wide, from -1 to 1.
[[nodiscard]] double GradientNoise(std::uint32_t seed, double x, double y);

/// Fractal sum of noise, each octave half as wide and half as strong, about -1 to 1.
[[nodiscard]] double FractalNoise(std::uint32_t seed, double x, double y, int octaves);

/// Fractal noise folded into sharp crests, 0 (valley) to 1 (crest).
[[nodiscard]] double RidgedNoise(std::uint32_t seed, double x, double y, int octaves);

/// A small generator for everything that is strewn; the library's distributions differ between
/// implementations, this one does not.
class Random {
 public:
  explicit Random(std::uint32_t seed) : state_(seed) {}

  /// From 0 up to but not including 1.
  [[nodiscard]] double next();

  /// Evenly spread over that range.
  [[nodiscard]] double between(double from, double to) { return from + (to - from) * next(); }

  /// From 0 up to but not including `count`.
  [[nodiscard]] int below(int count) { return static_cast<int>(next() * count); }

  /// True with a probability of 0 to 1.
  [[nodiscard]] bool chance(double probability) { return next() < probability; }

 private:
  std::uint32_t state_;
};

}  // namespace Terrain
