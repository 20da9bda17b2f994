#pragma once

#include <QPainter>

#include "map/RegionStyle.h"
#include "terrain/Field.h"

namespace Map {

/// A mask over the frame where no sign may stand.
using Reserved = Terrain::Grid<char>;

/// Draws trees, peaks and waves on a region's relief, from north to south. The painter's units are
/// picture pixels.
void DrawSigns(QPainter& painter, const Terrain::Field& field, const RegionStyle& style,
               const Reserved& reserved);

/// A tree of a region's kind, its foot in the middle of the lower edge. Variants differ a little.
[[nodiscard]] QImage TreeSign(const RegionStyle& style, Tree kind, int variant);

}  // namespace Map
