#pragma once

#include <QPainter>

#include "map/RegionStyle.h"

namespace Map {

/// Size of the title cartouche and of the compass in picture pixels.
inline constexpr QSizeF CartoucheSize(470, 158);
inline constexpr QSizeF CompassSize(190, 190);

/// Darkens the edges and lays the fibres of old paper over a finished ground.
void AgePaper(QImage& image, std::uint32_t seed);

/// The border of a map, along the picture's edges.
void DrawFrame(QPainter& painter, const RegionStyle& style, QSize picture);

/// The title on a scroll, in the rectangle that starts at `corner`.
void DrawCartouche(QPainter& painter, const RegionStyle& style, QPointF corner);

/// A compass rose within `radius` picture pixels; the letter for north stands above that.
void DrawCompass(QPainter& painter, const RegionStyle& style, QPointF middle, double radius);

}  // namespace Map
