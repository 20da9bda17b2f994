#pragma once

#include <QPainter>

#include "map/RegionStyle.h"

namespace Map {

/// What gets a sign of its own on a map; `Place` is all else.
enum class Landmark { City, Cave, Shrine, Place };

/// Half the width that a landmark's sign takes, in picture pixels.
[[nodiscard]] double ReachOf(Landmark kind);

/// Draws a landmark's sign around its place, in picture pixels.
void DrawLandmark(QPainter& painter, const RegionStyle& style, Landmark kind, QPointF at);

}  // namespace Map
