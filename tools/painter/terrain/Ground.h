#pragma once

#include <string>

#include "terrain/Field.h"

namespace Terrain {

/// Frame units along each side of a ground cell.
inline constexpr int GroundCell = 4;

/// What a wanderer stands on at the cell around a frame place, one character:
/// `~` water, `r` river, `.` grass, `f` forest, `^` rock, `s` snow, `d` sand, `o` oasis,
/// `_` paved floor, `#` wall.
[[nodiscard]] char GroundAt(const Field& field, int x, int y);

/// The whole frame, 192 lines of 256 characters.
[[nodiscard]] std::string GroundLines(const Field& field);

}  // namespace Terrain
