#include <cstdio>
#include <string>

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

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == "--ground") {
    return PrintGround(argv[2]);
  }
  std::fputs("usage: painter WORLD_DIR OUT_DIR\n       painter --ground REGION\n", stderr);
  return 2;
}
