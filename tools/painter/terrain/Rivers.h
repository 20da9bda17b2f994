#pragma once

#include "terrain/Field.h"

namespace Terrain {

/// Lets rain run down the field's heights, and enters the rivers that gather in `rivers` and
/// `river`. Hollows are filled first, so every river reaches the sea or the frame's edge.
void FollowRivers(Field& field);

}  // namespace Terrain
