#pragma once

#include <QImage>

#include "map/RegionStyle.h"
#include "terrain/Field.h"

namespace Map {

/// Paints halls and passages as a floor plan carved in rock, 2048 x 1536.
[[nodiscard]] QImage PaintTemple(const Terrain::Field& field, const RegionStyle& style);

}  // namespace Map
