#pragma once

#include "app/StartUp.h"
#include "auxwin/Launching.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/ProgramPaths.h"
#include "search/Search.h"

class Desktop;

/// Everything that lives as long as the program and that more than one window needs. Made once in
/// `main` and handed on by reference.
struct Context {
  /// Reads the settings of the program in this folder.
  Context(const Text& programFolder, Desktop& desktop);

  Desktop& desktop;
  IniOps::Cache files;
  ProgramPaths paths;
  StartUp::Edition edition;
  LOCAL::Language language;
  Search::State search;
  Launching launching;
};
