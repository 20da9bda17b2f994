#pragma once

#include <string_view>

#include "pictures/Canvas.h"

namespace Pictures {

/// Paints a place of that kind; the name chooses hour, hills and details. False, with nothing
/// painted, where the kind is unknown.
[[nodiscard]] bool PaintScene(Canvas& canvas, std::string_view kind, std::string_view name);

}  // namespace Pictures
