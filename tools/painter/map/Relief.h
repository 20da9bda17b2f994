#pragma once

#include <QImage>

#include "map/RegionStyle.h"
#include "terrain/Field.h"

namespace Map {

/// Picture pixels per frame unit.
inline constexpr int Scale = 2;

/// Paints a region's ground and water, 2048 x 1536: colours by height, slope and moisture, lit
/// from the north-west. Signs, roads and names come on top.
[[nodiscard]] QImage PaintRelief(const Terrain::Field& field, const RegionStyle& style);

/// The heights at the picture's resolution, smoothed so that no cell shows.
[[nodiscard]] Terrain::Grid<float> FineHeights(const Terrain::Field& field);

/// Brightness of ground that rises by `dx` and `dy` a pixel: 1 on the level.
[[nodiscard]] double Shade(double dx, double dy);

}  // namespace Map
