#pragma once

#include "i18n/LOCAL.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Windows1252.h"
#include "support/English.h"
#include "support/TemporaryFolder.h"

#include <string>

/// A program folder with five small regions for tests of the search; its language is German until
/// `SpeakEnglish`.
class SearchWorld {
 public:
  SearchWorld() : language(folder.Path(u"info.data")) {
    constexpr TextView Stems[] = {u"arvenna", u"skaldor", u"sarrakh", u"ostrakh", u"ancestors"};
    for (size_t i = 0; i < paths.regions.size(); ++i)
      paths.regions[i] = {folder.Path(Text(Stems[i]) + u".data"),
                          folder.Path(Text(Stems[i]) + u".jpg")};
    paths.programFolder = folder.Path(u"");
    paths.infoData = folder.Path(u"info.data");
    paths.languageRoot = folder.Path(u"LANG/");
    language.CurrentLanguage = LOCAL::German;
    language.LanguageRoot = paths.languageRoot;
  }

  /// Writes a file in the code page of all files.
  void Write(const std::string& name, TextView text) const {
    folder.Write(name, Windows1252::Encode(text).value());
  }

  void SpeakEnglish(TextView languageFile) {
    ::SpeakEnglish(folder, language, languageFile);
    IniOps::Snapshot files(cache);
    language.CacheTranslationTable(files);
  }

  TemporaryFolder folder;
  ProgramPaths paths;
  LOCAL::Language language;
  IniOps::Cache cache;
};
