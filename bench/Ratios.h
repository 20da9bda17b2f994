#pragma once

#include <span>
#include <string>

/// Measurements that are judged by how they compare in one run on one machine.
namespace Ratios {

/// The measurement `of` may take at most `limit` times the processor time of `by`. With peers each
/// side counts as a multiple of its own: what the machine does to both is in neither.
struct Ratio {
  std::string of;
  std::string by;
  double limit = 1;
  std::string ofPeer = {};
  std::string byPeer = {};
};

/// Prints a ratio that was measured otherwise; whether it is within its limit.
[[nodiscard]] bool Holds(const Ratio& ratio, double measured);

/// Runs all registered measurements by rounds, takes the quickest of each, and prints the ratios.
/// The program's exit code: 1 if a ratio is over its limit or one of its sides was not measured.
[[nodiscard]] int Run(int argc, char** argv, std::span<const Ratio> ratios);

}  // namespace Ratios
