// Start and memory, measured in processes of their own: the program against a bare main window.

#include "MapWorld.h"
#include "Ratios.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

namespace {

constexpr int Rounds = 9;
constexpr double KibibytesOfPicture =
    MapWorld::PictureSize.width() * MapWorld::PictureSize.height() * 4 / 1024.0;
constexpr double KibibytesOfWindow = 1920 * 1080 * 4 / 1024.0;

struct Measured {
  double seconds = 0;
  double kibibytes = 0;
};

Measured Run(const std::string& command) {
  Measured measured;
  FILE* output = ::popen(("exec " + command).c_str(), "r");
  const bool both =
      output && std::fscanf(output, "%lf %lf", &measured.seconds, &measured.kibibytes) == 2;
  if (!output || ::pclose(output) != 0 || !both) {
    std::fprintf(stderr, "not measured: %s\n", command.c_str());
    std::exit(1);
  }
  return measured;
}

// The least of several runs, by turns with those of the other side.
void Least(Measured& least, const Measured& now) {
  if (least.seconds == 0)
    least = now;
  least = {std::min(least.seconds, now.seconds), std::min(least.kibibytes, now.kibibytes)};
}

}  // namespace

int main(int, char** argv) {
  ::setenv("QT_QPA_PLATFORM", "offscreen:configfile=" ORVALIS_BENCH_SCREEN, 1);
  ::setenv("LC_ALL", "de_DE.UTF-8", 1);
  int onlyName = 1;
  const QGuiApplication forPictures(onlyName, argv);
  const MapWorld world;
  // It looks for its world beside itself.
  const std::string started = world.Native() + "orvalis";
  std::filesystem::copy_file(ORVALIS_STARTED_PROGRAM, started);
  Measured bare;
  std::array<Measured, 3> program;
  constexpr std::array<const char*, 3> regions = {"0", "1", "5"};
  for (int round = 0; round < Rounds; ++round) {
    Least(bare, Run(ORVALIS_BARE_WINDOW));
    for (size_t i = 0; i < regions.size(); ++i) {
      ::setenv("ORVALIS_BENCH_REGIONS", regions[i], 1);
      Least(program[i], Run(started));
    }
  }
  const double start = std::min({program[0].seconds, program[1].seconds, program[2].seconds});
  const double oneRegion = program[1].kibibytes - bare.kibibytes;
  const double furtherRegion =
      (program[2].kibibytes - program[1].kibibytes) / (MapWorld::Regions - 1);
  std::printf("bare window: %.1f ms, %.1f MiB; program: %.1f ms, %.1f MiB\n", bare.seconds * 1e3,
              bare.kibibytes / 1024, start * 1e3, program[0].kibibytes / 1024);
  std::fflush(stdout);
  const bool held[] = {
      Ratios::Holds({"StartToFirstFrame", "BareWindow", 1.35}, start / bare.seconds),
      Ratios::Holds({"MemoryOfOneRegion", "DecodedPicture", 1.5}, oneRegion / KibibytesOfPicture),
      Ratios::Holds({"MemoryOfFurtherRegion", "PictureOfWindow", 1},
                    furtherRegion / KibibytesOfWindow)};
  return std::all_of(std::begin(held), std::end(held), [](bool each) { return each; }) ? 0 : 1;
}
