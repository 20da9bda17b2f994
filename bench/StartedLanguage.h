#pragma once

#include "i18n/LOCAL.h"

/// The paths of a world of which only the languages count: their root, which ends with a separator,
/// and the German descriptions in it.
inline ProgramPaths PathsOfLanguages(const Text& root) {
  ProgramPaths paths;
  paths.languageRoot = root;
  paths.infoData = Texts::Join(root, u"info.data");
  return paths;
}

/// The language of a folder below `root` as start-up chooses it.
class StartedLanguage : public LOCAL::Language {
 public:
  StartedLanguage(IniOps::Snapshot& files, const Text& root, const Text& folder)
      : Language(PathsOfLanguages(root)) {
    Start(files, folder);
    CacheTranslationTable(files);
  }
};
