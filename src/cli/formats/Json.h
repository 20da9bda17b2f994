#pragma once

#include "share/Find.h"

#include <span>
#include <string>

/// Worlds and hits for scripts and for web maps.
namespace Json {

/// An array with an object for each hit: region, section, key, name, x, y, description. Without a
/// position x and y are null.
[[nodiscard]] std::string OfHits(std::span<const Share::Hit> hits);

/// GeoJSON (RFC 7946) for maps of a picture: a point for each entity, in the 1024 x 768 frame with
/// y upwards. Its properties hold x and y as the data files have them.
[[nodiscard]] std::string GeoJsonOf(std::span<const Share::RegionMap> maps, TextView title);

}  // namespace Json
