#pragma once

#include <cstdint>
#include <vector>

namespace Composer {

/// A piece of sound whose end leads into its beginning: what rings beyond the end is heard at the
/// start. Two channels.
class Loop {
 public:
  explicit Loop(std::size_t samples) : left_(samples), right_(samples) {}

  /// Mixes a sound in; `side` is 0 for the left, 1 for the right.
  void add(const std::vector<double>& sound, std::size_t start, double side);

  /// Adds the echo of a small room, itself seamless.
  void addRoom(double share);

  /// Left and right samples in turn, the loudest at `peak` of 1.
  [[nodiscard]] std::vector<std::int16_t> samples(double peak) const;

 private:
  std::vector<double> left_;
  std::vector<double> right_;
};

}  // namespace Composer
