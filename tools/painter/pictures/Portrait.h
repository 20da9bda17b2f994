#pragma once

#include "pictures/Canvas.h"
#include "pictures/Person.h"

namespace Pictures {

/// Paints a person's head and shoulders.
void PaintPerson(Canvas& canvas, const Person& person);

/// A hooded figure without a face, for those of whom no picture exists.
void PaintStranger(Canvas& canvas);

}  // namespace Pictures
