#pragma once

#include <span>
#include <string_view>

#include "pictures/Canvas.h"

namespace Pictures {

/// An object that a picture's name can ask for, and the cloth that it lies on.
struct Motif {
  std::string_view name;
  Tone cloth;
  void (*paint)(Canvas&);
};

/// Things of which there is one: weapons, jewels, instruments.
[[nodiscard]] std::span<const Motif> Curios();

/// What people work with: tools, ovens, vessels, books.
[[nodiscard]] std::span<const Motif> Workshop();

/// A stick with an outline, `width` units thick.
void PaintShaft(Canvas& canvas, QPointF from, QPointF to, double width, const Tone& tone = Wood);

/// A sword from its pommel to its tip.
void PaintSword(Canvas& canvas, QPointF foot, QPointF tip);

}  // namespace Pictures
