#pragma once

#include "app/World.h"
#include "search/Search.h"

#include <cstddef>

class MapView;

/// In a namespace of its own: the system's window headers know another `Display`.
namespace SearchResult {

/// Shows one record of the search on the map: its region's picture, the single marker, its name,
/// and what was searched for in the corner. A picture that can't be read leaves the start-up
/// picture and nothing on it.
void Display(size_t index, const Search::State& state, MapView& map, World& world);

}  // namespace SearchResult
