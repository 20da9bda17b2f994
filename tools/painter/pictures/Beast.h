#pragma once

#include <string_view>

#include "pictures/Canvas.h"

namespace Pictures {

enum class Ears { None, Pointed, Round, Long, Torn };
enum class Muzzle { Flat, Wolf, Boar, Bear, Bull, Reptile, Skull };
enum class Horns { None, Bull, Ram, Antlers, Spikes };
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

void PaintBeast(Canvas& canvas, const Beast& beast);

}  // namespace Pictures
