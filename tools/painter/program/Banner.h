#pragma once

#include <QImage>

namespace Program {

/// The wide banner of the about window, 400 x 151 times `scale` pixels, on a piece of the world's
/// map.
[[nodiscard]] QImage PaintAboutBanner(const QImage& sheet, int scale);

/// The banner of the print window, 150 x 158 times `scale` pixels.
[[nodiscard]] QImage PaintPrintBanner(const QImage& sheet, int scale);

}  // namespace Program
