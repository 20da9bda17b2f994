#pragma once

#include <span>
#include <string_view>

#include "pictures/Canvas.h"
#include "terrain/Noise.h"

namespace Pictures {

/// A kind of place that a picture's name can ask for; it is painted under a sky that is there.
struct Landmark {
  std::string_view name;
  void (*paint)(Canvas&, Terrain::Random&);
};

/// Places that look like no others: the lake, the gallows, the wreck.
[[nodiscard]] std::span<const Landmark> Landmarks();

}  // namespace Pictures
