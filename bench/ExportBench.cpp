#include "Ratios.h"
#include "cli/formats/Page.h"
#include "mapdata/files/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <QByteArray>

#include <cstdlib>
#include <set>

#include <benchmark/benchmark.h>

namespace {

constexpr int Rounds = 7;
constexpr size_t LargestPicture = 64'000'000;

std::string Export() {
  World world(NativePath::FromBytes(ORVALIS_PROGRAM_FOLDER));
  const auto maps = Share::Read(world);
  return Page::Of(world, maps, {.title = u"Orvalis"});
}

// Each once, as the page has them.
std::set<std::string> Pictures() {
  World world(NativePath::FromBytes(ORVALIS_PROGRAM_FOLDER));
  std::set<std::string> pictures;
  const auto add = [&pictures](const Text& path) {
    if (const auto file = FileSystem::Resolve(path); file && !path.empty())
      pictures.insert(*file);
  };
  for (const Share::RegionMap& map : Share::Read(world)) {
    add(map.picture);
    for (const Share::Category& category : map.categories)
      for (const Share::Entity& entity : category.entities)
        add(entity.portrait);
  }
  return pictures;
}

size_t BytesOf(const std::set<std::string>& pictures) {
  size_t bytes = 0;
  for (const std::string& picture : pictures)
    bytes += PosixFile::RegularFile(picture).value_or(PosixFile::Stamp()).size;
  return bytes;
}

void ExportPage(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(Export());
}

void ReadAndEncodePictures(benchmark::State& state) {
  const auto pictures = Pictures();
  for (auto _ : state)
    for (const std::string& picture : pictures)
      if (const auto contents = PosixFile::Read(picture, LargestPicture))
        benchmark::DoNotOptimize(QByteArray::fromStdString(contents->bytes).toBase64());
}

BENCHMARK(ExportPage)->Repetitions(Rounds);
BENCHMARK(ReadAndEncodePictures)->Repetitions(Rounds);

}  // namespace

int main(int argc, char** argv) {
  const Ratios::Ratio times[] = {{"ExportPage", "ReadAndEncodePictures", 3}};
  const double bytes =
      static_cast<double>(Export().size()) / static_cast<double>(BytesOf(Pictures()));
  const bool holds = Ratios::Holds({"BytesOfPage", "BytesOfPictures", 1.45}, bytes);
  const int status = Ratios::Run(argc, argv, times);
  return holds ? status : EXIT_FAILURE;
}
