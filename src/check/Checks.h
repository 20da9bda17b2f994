#pragma once

#include "check/Finding.h"
#include "check/Index.h"

/// The checks by what they look at. Each goes once through it and adds what it finds.
namespace Checks {

/// Names with more letters than that leave the window.
inline constexpr size_t LongestName = 120;

/// Required files, pictures, folders, documents and settings.
void World(Index& index, Findings& findings);

/// How each file is written: code page, lines, keys and values.
void Files(Index& index, Findings& findings);

/// The headers of the data files against the menus.
void Sections(Index& index, Findings& findings);

/// The lines of the data files that are no links.
void Positions(Index& index, Findings& findings);

/// The links of the data files.
void Links(Index& index, Findings& findings);

/// The names of the data files beside each other.
void Names(Index& index, Findings& findings);

/// All information files.
void Descriptions(Index& index, Findings& findings);

/// The list of portraits and its folder.
void Portraits(Index& index, Findings& findings);

/// The texts of each language.
void Languages(Index& index, Findings& findings);

/// The translated names of each language, there and back.
void Translations(Index& index, Findings& findings);

}  // namespace Checks
