#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Message.h"

#include <optional>

/// What the program finds out before its window waits for the first command.
namespace StartUp {

/// What a reduced edition leaves out, and how the caption names it.
struct Edition {
  bool withoutExtras = false;
  bool withoutLanguages = false;
  Text text;
};

/// All paths of the program in this folder, as its settings name them.
[[nodiscard]] ProgramPaths ComposePaths(IniOps::Snapshot& files, const Text& programFolder);

/// The edition that the settings choose.
[[nodiscard]] Edition ReadEdition(IniOps::Snapshot& files, const ProgramPaths& paths);

/// The main window's caption: title, version and edition, each after a blank.
[[nodiscard]] Text Caption(const Edition& edition);

/// The folder name of the language that the settings choose; "Deutsch" if they name none.
[[nodiscard]] Text ChosenLanguage(IniOps::Snapshot& files, const ProgramPaths& paths);

/// The first required file that is missing or empty: five data files, then five pictures.
[[nodiscard]] std::optional<Text> MissingFile(const ProgramPaths& paths);

/// The message that names the missing file in the language of that folder.
[[nodiscard]] Message FileNotFound(IniOps::Snapshot& files, const ProgramPaths& paths,
                                   const Text& languageFolder, const Text& missing);

}  // namespace StartUp
