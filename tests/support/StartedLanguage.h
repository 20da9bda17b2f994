#pragma once

#include "i18n/LOCAL.h"

/// The language of a folder below `root`, which ends with a separator, as start-up chooses it.
class StartedLanguage : public LOCAL::Language {
 public:
  StartedLanguage(IniOps::Snapshot& files, const Text& root, const Text& folder)
      : Language(Texts::Join(root, u"info.data")) {
    StartUp(files, root, folder);
    CacheTranslationTable(files);
  }
};
