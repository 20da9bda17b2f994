#pragma once

#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/ProgramPaths.h"
#include "mapdata/world/Settings.h"
#include "platform/Text.h"

#include <optional>

/// What a reduced edition leaves out, and how the caption names it.
struct Edition {
  bool withoutExtras = false;
  bool withoutLanguages = false;
  Text text;
};

/// A world: a folder with everything that the program shows. Opening reads the settings and chooses
/// no language; until one is chosen it is German.
class World {
 public:
  explicit World(const Text& folder);

  /// The setting as it stands now.
  [[nodiscard]] Text Setting(const Settings::Entry& entry) {
    return Settings::Read(*cache.Get(paths.settings), entry);
  }

  /// The folder name of the language that the settings choose; "Deutsch" if they name none.
  [[nodiscard]] Text ChosenLanguage();

  /// The first required file that is missing or empty: five data files, then five pictures.
  [[nodiscard]] std::optional<Text> MissingFile() const;

  IniOps::Cache cache;
  const ProgramPaths paths;
  const Edition edition;
  LOCAL::Language language;
};
