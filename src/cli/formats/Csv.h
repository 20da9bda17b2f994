#pragma once

#include "share/Find.h"

#include <span>
#include <string>

/// Tables for spreadsheets: RFC 4180, in UTF-8 behind a byte order mark.
namespace Csv {

/// A row for each entity: region, section, name, x, y, mark, link, description.
[[nodiscard]] std::string OfWorld(std::span<const Share::RegionMap> maps);

/// A row for each hit: region, section, key, name, x, y, description.
[[nodiscard]] std::string OfHits(std::span<const Share::Hit> hits);

}  // namespace Csv
