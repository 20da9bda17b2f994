#pragma once

#include <QImage>

#include "map/RegionStyle.h"
#include "terrain/Field.h"

namespace Map {

/// Draws the field's rivers, in picture pixels.
void DrawRivers(QPainter& painter, const Terrain::Field& field, const RegionStyle& style);

/// The whole world without any lettering, 2048 x 1536: snow in the north, green land in the middle,
/// sand in the south.
[[nodiscard]] QImage PaintWorldSheet();

/// That sheet with its title, the names of the regions, compass and frame, 1366 x 1024.
[[nodiscard]] QImage PaintOverview(const QImage& sheet);

}  // namespace Map
