#pragma once

#include <QImage>

namespace Program {

/// The wide banner of the about window, 404 x 155 times `scale` pixels, on a piece of the world's
/// map.
[[nodiscard]] QImage PaintAboutBanner(const QImage& sheet, int scale);

/// The banner of the print window, 149 x 155 times `scale` pixels.
[[nodiscard]] QImage PaintPrintBanner(const QImage& sheet, int scale);

}  // namespace Program
