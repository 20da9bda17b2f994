#include <QGuiApplication>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>

#include "Gallery.h"
#include "map/RegionPainter.h"
#include "pictures/Subject.h"
#include "terrain/Ground.h"

namespace {

constexpr const char* Usage =
    "usage: painter WORLD_DIR OUT_DIR             paints everything\n"
    "       painter --ground REGION               prints what lies where\n"
    "       painter --region REGION WORLD_DIR FILE  paints one region\n"
    "       painter --picture NAME FILE           paints a person, creature, place or object\n";

int Fail(const std::string& what) {
  std::fprintf(stderr, "painter: %s\n", what.c_str());
  return 1;
}

int Save(const QImage& image, const std::string& file, int quality = -1) {
  const bool saved = image.save(QString::fromStdString(file), nullptr, quality);
  return saved ? 0 : Fail("cannot write " + file);
}

int PrintGround(const std::string& region) {
  const Terrain::Shape* shape = Terrain::FindShape(region);
  if (!shape) {
    return Fail("no region named " + region);
  }
  std::fputs(Terrain::GroundLines(Terrain::MakeField(*shape)).c_str(), stdout);
  return 0;
}

int PaintRegion(const std::string& region, const std::filesystem::path& world,
                const std::string& file) {
  const Terrain::Shape* shape = Terrain::FindShape(region);
  if (!shape) {
    return Fail("no region named " + region);
  }
  return Save(Map::PaintRegion(*shape, WorldData::DataFile(world / (region + ".data"))), file,
              Gallery::MapQuality);
}

int PaintWorld(const std::string& world, const std::string& out) {
  const std::string failed = Gallery::PaintAll(world, out);
  return failed.empty() ? 0 : Fail("cannot write " + failed);
}

int Run(std::span<char*> words) {
  const std::string first = words.size() > 1 ? words[1] : "";
  if (first == "--ground" && words.size() == 3) {
    return PrintGround(words[2]);
  }
  if (first == "--region" && words.size() == 5) {
    return PaintRegion(words[2], words[3], words[4]);
  }
  if (first == "--picture" && words.size() == 4) {
    return Save(Pictures::PaintSubject(words[2]), words[3]);
  }
  if (words.size() == 3 && !first.starts_with("--")) {
    return PaintWorld(words[1], words[2]);
  }
  std::fputs(Usage, stderr);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int own = 1;
  const QGuiApplication application(own, argv);
  return Run(std::span(argv, static_cast<std::size_t>(argc)));
}
