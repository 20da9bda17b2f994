#include "GeneratedWorld.h"
#include "Ratios.h"
#include "app/World.h"
#include "search/Search.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <iostream>

using IniOps::Snapshot;

namespace {

constexpr int Rounds = 7;
constexpr double MemoryLimit = 3;

// An eighth of all names begins like this term, none is it.
constexpr TextView NoHit = u"Händler zzz";

class Speaking : public World {
 public:
  Speaking(const GeneratedWorld& generated, const Text& folder) : World(generated.Folder()) {
    Snapshot files(cache);
    language.Start(files, folder);
    language.CacheTranslationTable(files);
  }
};

EntityCache Filled(const GeneratedWorld& world, const LOCAL::Language& language) {
  IniOps::Cache cache;
  Snapshot files(cache);
  EntityCache entities;
  for (const ProgramPaths::RegionFiles& region : world.Paths().regions)
    benchmark::DoNotOptimize(entities.CacheEntities(files, language, region));
  return entities;
}

void Fill(benchmark::State& state, const GeneratedWorld& world, const Text& language) {
  const Speaking speaking(world, language);
  for (auto _ : state)
    benchmark::DoNotOptimize(Filled(world, speaking.language));
}

void FillGerman(benchmark::State& state) {
  Fill(state, MeasuredWorld(), u"Deutsch");
}

void FillTranslated(benchmark::State& state) {
  Fill(state, MeasuredWorld(), u"English");
}

void FillTenThousand(benchmark::State& state) {
  Fill(state, WorldOf(10'000), u"Deutsch");
}

void FillHundredThousand(benchmark::State& state) {
  Fill(state, WorldOf(100'000), u"Deutsch");
}

void FillMillion(benchmark::State& state) {
  Fill(state, WorldOf(1'000'000), u"Deutsch");
}

Search::State ReadyToSearch() {
  const Speaking german(MeasuredWorld(), u"Deutsch");
  Search::State search;
  search.SearchTerm = NoHit;
  search.Cache = Filled(MeasuredWorld(), german.language);
  return search;
}

std::vector<Text> NamesOf(const EntityCache& cache) {
  std::vector<Text> names;
  for (size_t i = 0; i < cache.Size(); ++i)
    names.push_back(cache.At(i).Name);
  return names;
}

void FindAgain(benchmark::State& state) {
  Search::State search = ReadyToSearch();
  for (auto _ : state)
    benchmark::DoNotOptimize(Search::FindNext(search));
}

void PlainStartsWith(benchmark::State& state) {
  const auto names = NamesOf(ReadyToSearch().Cache);
  const Text term(NoHit);
  for (auto _ : state)
    for (const Text& name : names)
      benchmark::DoNotOptimize(name.starts_with(term));
}

void FindFirstTranslated(benchmark::State& state) {
  Search::State search = ReadyToSearch();
  const Speaking english(MeasuredWorld(), u"English");
  IniOps::Cache cache;
  for (auto _ : state) {
    Snapshot files(cache);
    benchmark::DoNotOptimize(Search::FindFirst(search, files, english, NoHit));
  }
}

void TranslateNames(benchmark::State& state) {
  const auto names = NamesOf(ReadyToSearch().Cache);
  const Speaking english(MeasuredWorld(), u"English");
  IniOps::Cache cache;
  for (auto _ : state) {
    Snapshot files(cache);
    const auto nameFile = english.language.NameFile(files);
    for (const Text& name : names)
      benchmark::DoNotOptimize(english.language.LocalizeEntityName(nameFile, name));
  }
}

// Bytes taken from the heap, large blocks of their own included.
size_t HeapBytes() {
  const auto heap = ::mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

// What the cache keeps, the bytes of the information file included.
bool MemoryHolds() {
  const Speaking german(MeasuredWorld(), u"Deutsch");
  const size_t before = HeapBytes();
  const EntityCache cache = Filled(MeasuredWorld(), german.language);
  const double ratio =
      static_cast<double>(HeapBytes() - before) / static_cast<double>(MeasuredWorld().Bytes());
  std::cout << "memory of " << cache.Size() << " records / bytes of the files = " << ratio
            << " (at most " << MemoryLimit << ")\n";
  return ratio <= MemoryLimit;
}

BENCHMARK(FillGerman)->Repetitions(Rounds);
BENCHMARK(FillTranslated)->Repetitions(Rounds);
BENCHMARK(FillTenThousand)->Repetitions(Rounds);
BENCHMARK(FillHundredThousand)->Repetitions(Rounds);
BENCHMARK(FillMillion)->Repetitions(Rounds);
BENCHMARK(FindAgain)->Repetitions(Rounds);
BENCHMARK(PlainStartsWith)->Repetitions(Rounds);
BENCHMARK(FindFirstTranslated)->Repetitions(Rounds);
BENCHMARK(TranslateNames)->Repetitions(Rounds);

}  // namespace

int main(int argc, char** argv) {
  // Ten times as many records leave one of the processor's caches, which costs both sides more for
  // each; what grew by a power of 1.4 would be over the limit.
  constexpr double LinearGrowth = 1.2;
  const Ratios::Ratio ratios[] = {
      {"FillGerman", "FillByKeyFile", 0.5},
      {"FillTranslated", "FillGerman", 2},
      {"FillHundredThousand", "FillTenThousand", LinearGrowth, "PassHundredThousand",
       "PassTenThousand"},
      {"FillMillion", "FillHundredThousand", LinearGrowth, "PassMillion", "PassHundredThousand"},
      {"FindAgain", "PlainStartsWith", 2},
      {"FindFirstTranslated", "TranslateNames", 1.5},
  };
  const bool memory = MemoryHolds();
  const int times = Ratios::Run(argc, argv, ratios);
  return memory ? times : 1;
}
