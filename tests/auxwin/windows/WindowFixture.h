#pragma once

#include "auxwin/Launching.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Windows1252.h"
#include "support/English.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// A program folder of a test's own, in German until `UseEnglish`.
class WindowFixture : public testing::Test {
 protected:
  WindowFixture() : language(folder.Path(u"info.data")) {
    paths.programFolder = folder.Path(u"");
    paths.settings = folder.Path(u"orvalis.ini");
    paths.extrasFolder = folder.Path(u"EXTRAS/");
    paths.languageRoot = folder.Path(u"LANG/");
    language.LanguageRoot = paths.languageRoot;
    language.CurrentLanguage = LOCAL::German;
    language.LanguageFolder = LOCAL::German;
  }

  void Write(const std::string& name, TextView text) const {
    folder.Write(name, *Windows1252::Encode(text));
  }

  void UseEnglish(TextView texts) {
    SpeakEnglish(folder, language, Texts::Join(u"[general]\r\nlanguage=English\r\n", texts));
  }

  void ExpectCalls(const std::vector<std::string>& calls) {
    EXPECT_EQ(desktop.calls, calls);
    desktop.calls.clear();
  }

  TemporaryFolder folder;
  ProgramPaths paths;
  LOCAL::Language language;
  IniOps::Cache files;
  RecordingDesktop desktop;
  Launching launching{paths, desktop};
};
