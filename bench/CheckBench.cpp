#include "GeneratedWorld.h"
#include "Ratios.h"
#include "check/Check.h"
#include "platform/NativePath.h"
#include "search/EntityCache.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int Rounds = 7;

const GeneratedWorld& Small() {
  static const GeneratedWorld world({10'000, 5'000, 60, 2'000});
  return world;
}

const GeneratedWorld& Large() {
  static const GeneratedWorld world({100'000, 50'000, 60, 20'000});
  return world;
}

Text Demonstration() {
  return NativePath::FromBytes(ORVALIS_SOURCES "/world");
}

void CheckFolder(benchmark::State& state, const Text& folder) {
  Check::Question question;
  question.folder = folder;
  question.pictureOf = [](TextView) { return PictureSize{2048, 1536}; };
  for (auto _ : state)
    benchmark::DoNotOptimize(Check::Run(question));
}

void FillIn(const Text& folder, const Text& language) {
  World world(folder);
  IniOps::Snapshot files(world.cache);
  world.language.Start(files, language);
  world.language.CacheTranslationTable(files);
  EntityCache cache;
  for (const ProgramPaths::RegionFiles& region : world.paths.regions)
    benchmark::DoNotOptimize(cache.CacheEntities(files, world.language, region));
}

void CheckDemonstration(benchmark::State& state) {
  CheckFolder(state, Demonstration());
}

void FillInEachLanguage(benchmark::State& state) {
  for (auto _ : state)
    for (const TextView language : {u"Deutsch", u"English", u"Français"})
      FillIn(Demonstration(), Text(language));
}

void CheckSmall(benchmark::State& state) {
  CheckFolder(state, Small().Folder());
}

void CheckLarge(benchmark::State& state) {
  CheckFolder(state, Large().Folder());
}

void FillSmall(benchmark::State& state) {
  for (auto _ : state)
    FillIn(Small().Folder(), u"English");
}

void FillLarge(benchmark::State& state) {
  for (auto _ : state)
    FillIn(Large().Folder(), u"English");
}

BENCHMARK(CheckDemonstration)->Repetitions(Rounds);
BENCHMARK(FillInEachLanguage)->Repetitions(Rounds);
BENCHMARK(CheckSmall)->Repetitions(Rounds);
BENCHMARK(CheckLarge)->Repetitions(Rounds);
BENCHMARK(FillSmall)->Repetitions(Rounds);
BENCHMARK(FillLarge)->Repetitions(Rounds);

}  // namespace

int main(int argc, char** argv) {
  // What grew by a power of 1.2 would be over the limit.
  constexpr double LinearGrowth = 1.5;
  const Ratios::Ratio ratios[] = {
      {"CheckDemonstration", "FillInEachLanguage", 4},
      {"CheckLarge", "CheckSmall", LinearGrowth, "FillLarge", "FillSmall"},
  };
  return Ratios::Run(argc, argv, ratios);
}
