#pragma once

#include <string_view>

#include "pictures/Canvas.h"

namespace Pictures {

/// Paints a creature of that kind; false, with nothing painted, where the kind is unknown.
[[nodiscard]] bool PaintCreature(Canvas& canvas, std::string_view kind);

}  // namespace Pictures
