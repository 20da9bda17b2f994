#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "terrain/Grid.h"

namespace Map {

/// Places strewn over the frame without clumps or rows, from north to south: no two nearer than
/// `spacing` frame units, each kept with the probability that `density` gives for it.
[[nodiscard]] std::vector<Terrain::Point> Strew(
    std::uint32_t seed, double spacing, const std::function<double(Terrain::Point)>& density);

}  // namespace Map
