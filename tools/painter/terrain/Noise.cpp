#include "terrain/Noise.h"

#include <cmath>

namespace Terrain {

namespace {

constexpr double OctaveTurnCos = 0.8;
constexpr double OctaveTurnSin = 0.6;

std::uint32_t Mix(std::uint32_t value) {
  value ^= value >> 16;
  value *= 0x7feb352dU;
  value ^= value >> 15;
  value *= 0x846ca68bU;
  value ^= value >> 16;
  return value;
}

double Fraction(std::uint32_t value) {
  return value * (1.0 / 4294967296.0);
}

double Fade(double t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

double Slope(std::uint32_t seed, int column, int row, double dx, double dy) {
  static constexpr double Directions[16][2] = {
      {1, 0},  {0.924, 0.383},   {0.707, 0.707},   {0.383, 0.924},
      {0, 1},  {-0.383, 0.924},  {-0.707, 0.707},  {-0.924, 0.383},
      {-1, 0}, {-0.924, -0.383}, {-0.707, -0.707}, {-0.383, -0.924},
      {0, -1}, {0.383, -0.924},  {0.707, -0.707},  {0.924, -0.383}};
  const double* direction = Directions[Hash(seed, column, row) >> 28];
  return direction[0] * dx + direction[1] * dy;
}

// Octaves are turned against each other, or the lattice would show as a grid.
void NextOctave(double& x, double& y) {
  const double turned = (x * OctaveTurnCos - y * OctaveTurnSin) * 2 + 17.3;
  y = (x * OctaveTurnSin + y * OctaveTurnCos) * 2 + 9.1;
  x = turned;
}

}  // namespace

std::uint32_t Hash(std::uint32_t seed, int x, int y) {
  return Mix(Mix(Mix(seed + 0x9e3779b9U) ^ static_cast<std::uint32_t>(x)) ^
             (static_cast<std::uint32_t>(y) * 0x85ebca6bU));
}

double HashFraction(std::uint32_t seed, int x, int y) {
  return Fraction(Hash(seed, x, y));
}

double GradientNoise(std::uint32_t seed, double x, double y) {
  const double left = std::floor(x);
  const double top = std::floor(y);
  const int column = static_cast<int>(left);
  const int row = static_cast<int>(top);
  const double dx = x - left;
  const double dy = y - top;
  const double u = Fade(dx);
  const double upper =
      std::lerp(Slope(seed, column, row, dx, dy), Slope(seed, column + 1, row, dx - 1, dy), u);
  const double lower = std::lerp(Slope(seed, column, row + 1, dx, dy - 1),
                                 Slope(seed, column + 1, row + 1, dx - 1, dy - 1), u);
  return std::lerp(upper, lower, Fade(dy)) * 1.41;
}

double FractalNoise(std::uint32_t seed, double x, double y, int octaves) {
  double sum = 0;
  double strength = 0.5;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += strength * GradientNoise(seed + static_cast<std::uint32_t>(octave), x, y);
    strength /= 2;
    NextOctave(x, y);
  }
  return sum * 1.4;
}

double RidgedNoise(std::uint32_t seed, double x, double y, int octaves) {
  double sum = 0;
  double strength = 0.5;
  double carried = 1;
  for (int octave = 0; octave < octaves; ++octave) {
    const double fold =
        1 - std::abs(GradientNoise(seed + static_cast<std::uint32_t>(octave), x, y));
    const double crest = fold * fold * carried;
    sum += strength * crest;
    carried = crest < 1 ? crest : 1;
    strength /= 2;
    NextOctave(x, y);
  }
  return sum;
}

double Random::next() {
  state_ += 0x9e3779b9U;
  return Fraction(Mix(state_));
}

}  // namespace Terrain
