#pragma once

#include "app/World.h"
#include "auxwin/Launching.h"
#include "platform/Windows1252.h"
#include "support/English.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// A program folder of a test's own, in German until `UseEnglish`.
class WindowFixture : public testing::Test {
 protected:
  void Write(const std::string& name, TextView text) const {
    folder.Write(name, *Windows1252::Encode(text));
  }

  void UseEnglish(TextView texts) { SpeakEnglish(folder, world.language, texts); }

  void ExpectCalls(const std::vector<std::string>& calls) {
    EXPECT_EQ(desktop.calls, calls);
    desktop.calls.clear();
  }

  TemporaryFolder folder;
  World world{folder.Folder()};
  RecordingDesktop desktop;
  Launching launching{world.paths, desktop};
};
