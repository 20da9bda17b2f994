#pragma once

#include <string_view>

#include "pictures/Canvas.h"

namespace Pictures {

/// `Torn` ones stick out short and ragged, `Long` ones far to the sides.
enum class Ears { None, Pointed, Round, Long, Torn };
/// What the face ends in; it decides on the shape of the whole head too.
enum class Muzzle { Flat, Wolf, Boar, Bear, Bull, Reptile, Skull };
/// What stands on the head; only spikes grow in front of it.
enum class Horns { None, Bull, Ram, Antlers, Spikes };
/// Fangs point down, tusks up; `Rows` bares the whole upper jaw.
enum class Teeth { None, Fangs, Tusks, Rows };

/// A creature seen face to face.
struct Beast {
  std::string_view kind;
  Tone backdrop;
  Tone hide;
  Tone eyes;
  Ears ears;
  Muzzle muzzle;
  Horns horns;
  Teeth teeth;
  /// Half the width of the head in canvas units.
  double width;
  /// Shaggy neck instead of shoulders.
  bool mane;
};

/// Covers the canvas: backdrop, neck and head.
void PaintBeast(Canvas& canvas, const Beast& beast);

}  // namespace Pictures
