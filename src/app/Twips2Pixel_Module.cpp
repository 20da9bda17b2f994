#include "app/Twips2Pixel_Module.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Not in 16 bits: a map beyond 32767 twips, as on every screen of 3840 pixels, keeps its markers on
// their spots.
int Resample(int frame, double mapLength, int twips) {
  if (frame == 0)
    return 0;
  return Twips2Pixel_Module::Round(mapLength / frame * twips);
}

}  // namespace

namespace Twips2Pixel_Module {

int Round(double value) {
  constexpr double least = std::numeric_limits<int>::min();
  constexpr double most = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(std::nearbyint(value), least, most));
}

int PixelsToTwipsX(const Screen& screen, int pixels) {
  return Round(screen.twipsPerPixelX * pixels);
}

int PixelsToTwipsY(const Screen& screen, int pixels) {
  return Round(screen.twipsPerPixelY * pixels);
}

int ResampleX(const Screen& screen, double mapWidth, int twips) {
  return Resample(PixelsToTwipsX(screen, FrameWidth), mapWidth, twips);
}

int ResampleY(const Screen& screen, double mapHeight, int twips) {
  return Resample(PixelsToTwipsY(screen, FrameHeight), mapHeight, twips);
}

Twips PointOnMap(const Screen& screen, const Twips& mapSize, int x, int y, double scale) {
  return {ResampleX(screen, mapSize.x * scale, PixelsToTwipsX(screen, x)),
          ResampleY(screen, mapSize.y * scale, PixelsToTwipsY(screen, y))};
}

}  // namespace Twips2Pixel_Module
