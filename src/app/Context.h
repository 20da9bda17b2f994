#pragma once

#include "app/StartUp.h"
#include "i18n/LOCAL.h"
#include "mapdata/IniOps.h"
#include "mapdata/ProgramPaths.h"

/// Everything that lives as long as the program and that more than one window needs. Made once in
/// `main` and handed on by reference.
struct Context {
  /// Reads the settings of the program in this folder.
  explicit Context(const Text& programFolder);

  IniOps::Cache files;
  ProgramPaths paths;
  StartUp::Edition edition;
  LOCAL::Language language;
};
