#pragma once

#include <QImage>

#include "map/WorldData.h"
#include "terrain/Shape.h"

namespace Map {

/// Paints a region's picture, 2048 x 1536, with the towns and places of its data file.
[[nodiscard]] QImage PaintRegion(const Terrain::Shape& shape, const WorldData::DataFile& world);

}  // namespace Map
