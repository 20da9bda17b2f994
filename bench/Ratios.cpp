#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <optional>

namespace {

// Prints as usual, and keeps the quickest run of each measurement, in processor time: other
// programs on the machine hardly count.
class Reporter : public benchmark::ConsoleReporter {
 public:
  Reporter() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred)
        continue;
      // Measurements that count only a part of each round tell its processor time themselves.
      const bool manual = run.run_name.time_type == "manual_time";
      const double rounds = static_cast<double>(run.iterations);
      const double time = (manual ? run.real_accumulated_time : run.cpu_accumulated_time) / rounds;
      const auto known = quickest.emplace(run.run_name.function_name, time).first;
      known->second = std::min(known->second, time);
    }
  }

  // Seconds a round by name.
  std::map<std::string, double> quickest;
};

using Seconds = std::map<std::string, double>;

// A measurement as a multiple of its peer, in seconds where it has none; none if one is missing.
std::optional<double> Cost(const Seconds& seconds, const std::string& of, const std::string& peer) {
  const auto measured = seconds.find(of);
  const auto unit = seconds.find(peer);
  if (measured == seconds.end() || (unit == seconds.end() && !peer.empty()))
    return std::nullopt;
  return peer.empty() ? measured->second : measured->second / unit->second;
}

std::string Name(const std::string& of, const std::string& peer) {
  return peer.empty() ? of : of + " by " + peer;
}

bool Compare(const Ratios::Ratio& ratio, const Seconds& seconds) {
  const auto of = Cost(seconds, ratio.of, ratio.ofPeer);
  const auto by = Cost(seconds, ratio.by, ratio.byPeer);
  const Ratios::Ratio named{Name(ratio.of, ratio.ofPeer), Name(ratio.by, ratio.byPeer),
                            ratio.limit};
  if (of && by)
    return Ratios::Holds(named, *of / *by);
  std::cout << named.of << " / " << named.by << ": not measured\n";
  return false;
}

}  // namespace

namespace Ratios {

bool Holds(const Ratio& ratio, double measured) {
  std::cout << ratio.of << " / " << ratio.by << " = " << measured << " (at most " << ratio.limit
            << ")\n";
  return measured <= ratio.limit;
}

int Run(int argc, char** argv, std::span<const Ratio> ratios) {
  benchmark::Initialize(&argc, argv);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto held = std::count_if(ratios.begin(), ratios.end(), [&](const Ratio& ratio) {
    return Compare(ratio, reporter.quickest);
  });
  return held == std::ssize(ratios) ? 0 : 1;
}

}  // namespace Ratios
