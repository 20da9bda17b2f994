#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityNames.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Text.h"

#include <vector>

/// What the search can suggest.
namespace Search {

/// The names, as shown, of all entities of all regions that the search may find, each once, in the
/// order of regions, sections and lines.
[[nodiscard]] std::vector<Text> AllNames(IniOps::Snapshot& files, const EntityNames& names,
                                         const ProgramPaths& paths);

}  // namespace Search
