#pragma once

#include "app/World.h"
#include "platform/Windows1252.h"
#include "support/English.h"
#include "support/TemporaryFolder.h"

#include <string>

/// A program folder for tests of the search; its language is German until `SpeakEnglish`.
class SearchWorld {
 public:
  /// Writes a file in the code page of all files.
  void Write(const std::string& name, TextView text) const {
    folder.Write(name, Windows1252::Encode(text).value());
  }

  void SpeakEnglish(TextView languageFile) {
    ::SpeakEnglish(folder, world.language, languageFile);
    IniOps::Snapshot files(world.cache);
    world.language.CacheTranslationTable(files);
  }

  TemporaryFolder folder;
  World world{folder.Folder()};
};
