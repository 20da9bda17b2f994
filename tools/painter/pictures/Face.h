#pragma once

#include "pictures/Canvas.h"
#include "pictures/Person.h"

namespace Pictures {

/// The head of the person, without hair and headgear: skin, eyes, nose, mouth, marks.
void PaintFace(Canvas& canvas, const Person& person);

/// What hangs behind the shoulders; goes before everything else of the person.
void PaintBackHair(Canvas& canvas, const Person& person);
/// What goes over the face, in this order; a person without it is left as they are.
void PaintBeard(Canvas& canvas, const Person& person);
void PaintHair(Canvas& canvas, const Person& person);
void PaintHeadgear(Canvas& canvas, const Person& person);

/// Half the width of the person's face at the cheeks, in canvas units.
[[nodiscard]] double CheekOf(const Person& person);
/// Where the person's chin ends, in canvas units.
[[nodiscard]] double ChinOf(const Person& person);

}  // namespace Pictures
