#pragma once

#include "app/World.h"
#include "auxwin/Launching.h"
#include "platform/Windows1252.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// A program folder of a test's own and the world in it, in German until another language is
/// chosen; what it opens on the desktop is only written down.
class TestWorld {
 public:
  /// Writes a file in the code page of all files.
  void Write(const std::string& name, TextView text) const {
    folder.Write(name, Windows1252::Encode(text).value());
  }

  /// Chooses the language of that folder.
  void Choose(TextView name) {
    const Text file = LOCAL::FileOfLanguage(world.paths.languageRoot, name, u".lng");
    IniOps::Snapshot files(world.cache);
    world.language.Choose(files, name == LOCAL::German ? Text(LOCAL::BuiltIn) : file);
    world.language.CacheTranslationTable(files);
  }

  /// Chooses the language of that folder as the program's start does.
  void Start(TextView name) {
    IniOps::Snapshot files(world.cache);
    world.language.Start(files, Text(name));
    world.language.CacheTranslationTable(files);
  }

  /// Makes English, with these texts, the language of the moment.
  void SpeakEnglish(TextView texts) {
    Write("LANG/English/English.lng", Texts::Join(u"[general]\r\nlanguage=English\r\n", texts));
    Choose(u"English");
  }

  /// Holds what was opened since the last time against this.
  void ExpectCalls(const std::vector<std::string>& calls) {
    EXPECT_EQ(desktop.calls, calls);
    desktop.calls.clear();
  }

  TemporaryFolder folder;
  World world{folder.Folder()};
  RecordingDesktop desktop;
  Launching launching{world.paths, desktop};
};
