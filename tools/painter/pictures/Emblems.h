#pragma once

#include "pictures/Canvas.h"
#include "pictures/Person.h"

namespace Pictures {

/// A round badge that tells a person's trade, about 16 units across.
void PaintEmblem(Canvas& canvas, Emblem emblem, QPointF middle, const Tone& trim);

}  // namespace Pictures
