#pragma once

#include "pictures/Canvas.h"
#include "terrain/Noise.h"

namespace Pictures {

using Terrain::Random;

inline constexpr Tone Masonry{168, 158, 142};
inline constexpr Tone Tiles{164, 74, 52};
inline constexpr Tone Grass{122, 142, 76};
inline constexpr Tone Sand{222, 188, 126};
inline constexpr Tone Rock{112, 104, 98};

/// A far hill and the ground before it.
void PaintGround(Canvas& canvas, Random& random, const Tone& ground);

// What places are made of; `foot` is the middle of the lower edge, sizes are canvas units.
void House(Canvas& canvas, QPointF foot, double size, const Tone& roof);
void Tower(Canvas& canvas, QPointF foot, double half, double tall, bool pointed);
void Wall(Canvas& canvas, double left, double right, double top, double bottom);
void Gate(Canvas& canvas, QPointF foot, double half, double tall);
void Columns(Canvas& canvas, double top, double bottom, int count, bool broken, Random& random);
void Tent(Canvas& canvas, QPointF foot, double half, const Tone& cloth);
void Palm(Canvas& canvas, QPointF foot, double tall);

}  // namespace Pictures
