#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace Map {

/// A colour that can be reckoned with; parts of 0 to 255, beyond that while reckoning.
struct Tone {
  double red = 0;
  double green = 0;
  double blue = 0;

  /// Mixed with another, whose share is 0 to 1.
  [[nodiscard]] constexpr Tone towards(const Tone& other, double share) const {
    return {red + (other.red - red) * share, green + (other.green - green) * share,
            blue + (other.blue - blue) * share};
  }

  /// Brighter above a light of 1, darker below; may leave the range of 0 to 255.
  [[nodiscard]] constexpr Tone lit(double light) const {
    return {red * light, green * light, blue * light};
  }

  /// Opaque; parts out of range are cut to 0 or 255.
  [[nodiscard]] QRgb rgb() const { return qRgb(part(red), part(green), part(blue)); }

  /// The same with an alpha of 0 (clear) to 255 (opaque).
  [[nodiscard]] QColor color(int alpha = 255) const {
    return {part(red), part(green), part(blue), alpha};
  }

 private:
  [[nodiscard]] static int part(double value) {
    return static_cast<int>(std::lround(std::clamp(value, 0.0, 255.0)));
  }
};

}  // namespace Map
