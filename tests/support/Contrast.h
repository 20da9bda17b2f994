#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// How bright people see the colour: 0 black, 1 white.
inline double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

/// From 1, none, to 21, black on white.
inline double Contrast(const QColor& one, const QColor& other) {
  const double ratio = (Luminance(one) + 0.05) / (Luminance(other) + 0.05);
  return std::max(ratio, 1 / ratio);
}
