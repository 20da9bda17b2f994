#pragma once

#include <string_view>

#include "pictures/Canvas.h"

namespace Pictures {

/// Paints an object of that kind; false, with nothing painted, where the kind is unknown.
[[nodiscard]] bool PaintThing(Canvas& canvas, std::string_view kind);

}  // namespace Pictures
