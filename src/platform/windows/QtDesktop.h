#pragma once

#include "platform/Desktop.h"
#include "platform/PosixFile.h"
#include "platform/Text.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QSoundEffect;

/// The desktop that the program runs on.
class QtDesktop : public Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  Result Open(const std::string& target) override;
  [[nodiscard]] bool HasViewer(const std::string& mimeType) override;
  void ShowPage(const std::string& path) override;
  Result StartProgram(const std::string& path, const std::string& folder) override;
  bool LoopSound(const std::string& path) override;
  void StopSound() override;
  void Beep() override;
  [[nodiscard]] Text UserLanguage() override;
  [[nodiscard]] std::vector<Text> Printers() override;
  [[nodiscard]] std::string AskPdfToWrite(TextView caption, TextView suggestedName) override;

 private:
  [[nodiscard]] static bool AskForViewer(const std::string& mimeType);

  // The answers so far: to ask can take seconds.
  std::map<std::string, std::optional<bool>> viewers_;
  // Open while it is played: the sound library takes it by an alias.
  std::unique_ptr<PosixFile::OpenFile> soundFile_;
  std::unique_ptr<QSoundEffect> sound_;
};
