#include "Loop.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace Composer {

namespace {

/// One reflection path: delay in samples, share that returns.
struct Path {
  std::size_t delay;
  double feedback;
};

constexpr Path LeftPaths[] = {{1557, 0.74}, {1999, 0.70}, {2687, 0.66}, {3343, 0.62}};
constexpr Path RightPaths[] = {{1617, 0.74}, {2081, 0.70}, {2593, 0.66}, {3469, 0.62}};

// Goes round the loop twice: in the second round the echoes of the end stand at the beginning.
std::vector<double> Echo(const std::vector<double>& dry, std::span<const Path> paths) {
  std::vector<double> wet(dry.size());
  for (const Path& path : paths) {
    std::vector<double> line(path.delay);
    double dull = 0;
    for (std::size_t i = 0; i < dry.size() * 2; ++i) {
      double& cell = line[i % path.delay];
      dull += (cell - dull) * 0.45;
      if (i >= dry.size()) {
        wet[i - dry.size()] += cell / static_cast<double>(paths.size());
      }
      cell = dry[i % dry.size()] + dull * path.feedback;
    }
  }
  return wet;
}

void Mix(std::vector<double>& channel, const std::vector<double>& echo, double share) {
  for (std::size_t i = 0; i < channel.size(); ++i) {
    channel[i] += share * echo[i];
  }
}

double Loudest(const std::vector<double>& channel) {
  const auto [low, high] = std::ranges::minmax(channel);
  return std::max(-low, high);
}

}  // namespace

void Loop::add(const std::vector<double>& sound, std::size_t start, double side) {
  const double left = std::sqrt(1 - side);
  const double right = std::sqrt(side);
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const std::size_t at = (start + i) % left_.size();
    left_[at] += left * sound[i];
    right_[at] += right * sound[i];
  }
}

void Loop::addRoom(double share) {
  Mix(left_, Echo(left_, LeftPaths), share);
  Mix(right_, Echo(right_, RightPaths), share);
}

std::vector<std::int16_t> Loop::samples(double peak) const {
  const double scale = 32767 * peak / std::max({Loudest(left_), Loudest(right_), 1e-9});
  std::vector<std::int16_t> result;
  result.reserve(left_.size() * 2);
  for (std::size_t i = 0; i < left_.size(); ++i) {
    result.push_back(static_cast<std::int16_t>(std::lround(left_[i] * scale)));
    result.push_back(static_cast<std::int16_t>(std::lround(right_[i] * scale)));
  }
  return result;
}

}  // namespace Composer
