#pragma once

#include "platform/Desktop.h"
#include "platform/NativePath.h"

#include <set>

/// A desktop that writes down what it is asked, and answers as a test tells it to.
class RecordingDesktop : public Desktop {
 public:
  /// What was asked, in order: the name of the call, a blank, and what it was given.
  std::vector<std::string> calls;
  /// The answer to `Open` and `StartProgram`.
  Result result = Started;
  /// The MIME types that have a viewer.
  std::set<std::string> viewers = {"text/html"};
  Text userLanguage = u"deu";
  std::vector<Text> printers;
  std::string fileToWrite;
  /// The answer to `LoopSound`.
  bool isPlayable = true;

  Result Open(const std::string& target) override {
    calls.push_back("open " + target);
    return result;
  }

  [[nodiscard]] bool HasViewer(const std::string& mimeType) override {
    return viewers.contains(mimeType);
  }

  void ShowPage(const std::string& path) override { calls.push_back("page " + path); }

  Result StartProgram(const std::string& path, const std::string& folder) override {
    calls.push_back("start " + path + " in " + folder);
    return result;
  }

  bool LoopSound(const std::string& path) override {
    calls.push_back("loop " + path);
    return isPlayable;
  }

  void StopSound() override { calls.emplace_back("stop"); }

  void Beep() override { calls.emplace_back("beep"); }

  [[nodiscard]] Text UserLanguage() override { return userLanguage; }

  [[nodiscard]] std::vector<Text> Printers() override { return printers; }

  [[nodiscard]] std::string AskPdfToWrite(TextView, TextView suggestedName) override {
    calls.push_back("ask " + NativePath::ToBytes(suggestedName));
    return fileToWrite;
  }
};
