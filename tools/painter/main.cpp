#include <QGuiApplication>
#include <cstdio>
#include <filesystem>
#include <string>

#include "Gallery.h"
#include "terrain/Ground.h"

namespace {

int PrintGround(const std::string& region) {
  const Terrain::Shape* shape = Terrain::FindShape(region);
  if (!shape) {
    std::fprintf(stderr, "painter: no region named %s\n", region.c_str());
    return 1;
  }
  std::fputs(Terrain::GroundLines(Terrain::MakeField(*shape)).c_str(), stdout);
  return 0;
}

int PaintWorld(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const std::string failed = Gallery::PaintAll(argv[1], argv[2]);
  if (!failed.empty()) {
    std::fprintf(stderr, "painter: cannot write %s\n", failed.c_str());
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == "--ground") {
    return PrintGround(argv[2]);
  }
  if (argc == 3) {
    return PaintWorld(argc, argv);
  }
  std::fputs("usage: painter WORLD_DIR OUT_DIR\n       painter --ground REGION\n", stderr);
  return 2;
}
