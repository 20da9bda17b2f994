#pragma once

/// Lengths in twips (1/1440 inch) and the way from the fixed 1024 x 768 frame of the entity data
/// files to the map as it is displayed. Roundings are to the nearest, halves to even.
namespace Twips2Pixel_Module {

inline constexpr double TwipsPerInch = 1440;

/// The frame that positions in data files are given in, whatever size the picture has.
inline constexpr int FrameWidth = 1024;
inline constexpr int FrameHeight = 768;

/// A screen's twips per pixel, 1440 divided by its logical dots per inch: 15 at 96 dpi.
struct Screen {
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;
  bool operator==(const Screen&) const = default;
};

/// A point on the map, or a size, in twips.
struct Twips {
  int x = 0;
  int y = 0;
  bool operator==(const Twips&) const = default;
};

/// The nearest whole number, halves to the even neighbour; beyond `int`, its nearest end.
[[nodiscard]] int Round(double value);

/// The twips that `pixels` horizontal pixels take.
[[nodiscard]] int PixelsToTwipsX(const Screen& screen, int pixels);

/// The twips that `pixels` vertical pixels take.
[[nodiscard]] int PixelsToTwipsY(const Screen& screen, int pixels);

/// Horizontal twips of the 1024-pixel frame as twips across a map `mapWidth` twips wide.
[[nodiscard]] int ResampleX(const Screen& screen, double mapWidth, int twips);

/// Vertical twips of the 768-pixel frame as twips down a map `mapHeight` twips high.
[[nodiscard]] int ResampleY(const Screen& screen, double mapHeight, int twips);

/// The position (x, y) of the frame on a map of the given size in twips, enlarged by `scale`.
[[nodiscard]] Twips PointOnMap(const Screen& screen, const Twips& mapSize, int x, int y,
                               double scale = 1);

}  // namespace Twips2Pixel_Module
