#pragma once

#include <QImage>
#include <string_view>

namespace Pictures {

/// Paints what a picture's file name tells, 105 x 105 pixels: "person-f-druid-edda.jpg",
/// "creature-wolf.jpg", "place-cave-name.jpg", "object-chest.jpg". Any other name yields a framed
/// letter.
[[nodiscard]] QImage PaintSubject(std::string_view fileName);

/// The picture for everything that has none of its own.
[[nodiscard]] QImage PaintFallback();

}  // namespace Pictures
