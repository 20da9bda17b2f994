#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityNames.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Text.h"

#include <vector>

/// Finding a name of which only a part is known.
namespace Search {

/// The text as it compares: small letters without accents, ligatures and "ß" as two letters.
[[nodiscard]] Text Folded(TextView text);

/// Whether the name holds the text anywhere, whatever the case and the accents of both.
[[nodiscard]] bool Holds(TextView name, TextView text);

/// The names, as shown, of all entities of all regions that the search may find, each once, in the
/// order of regions, sections and lines.
[[nodiscard]] std::vector<Text> AllNames(IniOps::Snapshot& files, const EntityNames& names,
                                         const ProgramPaths& paths);

}  // namespace Search
