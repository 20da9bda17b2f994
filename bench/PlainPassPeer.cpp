// What grows as the search's cache must, by the standard library's own means: one pass over the
// lines keeps each name, and each description and link's target is looked up in a hash.

#include "GeneratedWorld.h"
#include "platform/NativePath.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <unordered_map>

namespace {

using Values = std::unordered_map<std::string_view, std::string_view>;

constexpr int Rounds = 7;

std::string Bytes(const Text& path) {
  std::ifstream file(NativePath::ToBytes(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

template <typename Take>
void ForEachLine(std::string_view bytes, Take take) {
  while (!bytes.empty()) {
    const auto end = bytes.find('\n');
    const auto line = bytes.substr(0, end);
    if (const auto equals = line.find('='); equals != std::string_view::npos)
      take(line.substr(0, equals), line.substr(equals + 1));
    bytes.remove_prefix(end + 1);
  }
}

Values Index(std::string_view bytes) {
  Values values;
  // Growing it in steps would cost the large side more.
  values.reserve(static_cast<size_t>(std::count(bytes.begin(), bytes.end(), '\n')));
  ForEachLine(bytes, [&values](auto key, auto value) { values.emplace(key, value); });
  return values;
}

void PlainPass(benchmark::State& state, size_t records) {
  const ProgramPaths& paths = WorldOf(records).Paths();
  for (auto _ : state) {
    std::vector<std::string> names;
    const std::string info = Bytes(paths.infoData);
    const Values descriptions = Index(info);
    for (const ProgramPaths::RegionFiles& region : paths.regions) {
      const std::string data = Bytes(region.data);
      const Values targets = Index(data);
      ForEachLine(data, [&](auto name, auto value) {
        names.emplace_back(name);
        benchmark::DoNotOptimize(descriptions.find(name));
        if (value.starts_with('#'))
          benchmark::DoNotOptimize(targets.find(name));
      });
    }
    benchmark::DoNotOptimize(names.data());
  }
}

void PassTenThousand(benchmark::State& state) {
  PlainPass(state, 10'000);
}

void PassHundredThousand(benchmark::State& state) {
  PlainPass(state, 100'000);
}

void PassMillion(benchmark::State& state) {
  PlainPass(state, 1'000'000);
}

BENCHMARK(PassTenThousand)->Repetitions(Rounds);
BENCHMARK(PassHundredThousand)->Repetitions(Rounds);
BENCHMARK(PassMillion)->Repetitions(Rounds);

}  // namespace
