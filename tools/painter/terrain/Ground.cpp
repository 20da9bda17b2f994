#include "terrain/Ground.h"

namespace Terrain {

namespace {

char DryGround(const Field& field, int x, int y) {
  const double steepness = Steepness(field, x, y);
  const double height = field.height.at(x, y);
  const bool snowy = SnowCover(field, x, y, height, steepness) > 0.5;
  if (height > 0.62 || steepness > 2.6) {
    return '^';
  }
  if (field.forest.at(x, y) > 0.5F) {
    return 'f';
  }
  if (field.shape->climate == Climate::Desert) {
    return field.moisture.at(x, y) > 0.5F ? 'o' : 'd';
  }
  return snowy ? 's' : '.';
}

}  // namespace

char GroundAt(const Field& field, int x, int y) {
  if (field.height.at(x, y) < 0) {
    return '~';
  }
  if (field.floor.at(x, y) > 0) {
    return '_';
  }
  if (field.shape->climate == Climate::Underground) {
    return '#';
  }
  return field.river.at(x, y) > 0.5F ? 'r' : DryGround(field, x, y);
}

std::string GroundLines(const Field& field) {
  std::string lines;
  for (int y = GroundCell / 2; y < FrameHeight; y += GroundCell) {
    for (int x = GroundCell / 2; x < FrameWidth; x += GroundCell) {
      lines += GroundAt(field, x, y);
    }
    lines += '\n';
  }
  return lines;
}

}  // namespace Terrain
