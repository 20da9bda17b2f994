#pragma once

#include <QPainter>

#include "map/RegionStyle.h"
#include "terrain/Field.h"

namespace Map {

/// Draws what stands of a region's ruined halls: pieces of wall and columns, in picture pixels.
void DrawRuins(QPainter& painter, const Terrain::Field& field, const RegionStyle& style);

}  // namespace Map
