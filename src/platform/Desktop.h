#pragma once

#include "platform/Text.h"

#include <string>
#include <vector>

/// What the program asks of the desktop around it. Paths are the system's bytes.
class Desktop {
 public:
  /// Results of opening something; those above 32 are successes.
  enum Result { FileMissing = 2, Refused = 31, LastFailure = 32, Started = 42 };

  Desktop() = default;
  virtual ~Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Hands an address or a path, as one argument, to the program that the desktop has for it.
  virtual Result Open(const std::string& target) = 0;

  /// Whether the desktop names a program for documents of this MIME type.
  [[nodiscard]] virtual bool HasViewer(const std::string& mimeType) = 0;

  /// Shows a page of HTML in a modal window of the program's own.
  virtual void ShowPage(const std::string& path) = 0;

  /// Starts a program without arguments in a folder and doesn't wait for it.
  virtual Result StartProgram(const std::string& path, const std::string& folder) = 0;

  /// Plays a wave file over and over until `StopSound`. False if there is no such file or it is
  /// broken; a desktop without sound plays silence.
  virtual bool LoopSound(const std::string& path) = 0;

  /// Ends every sound of the program; nothing if none plays.
  virtual void StopSound() = 0;

  /// The desktop's own short sound, once.
  virtual void Beep() = 0;

  /// The user's interface language as three letters, "deu" for German; "" if nothing is known.
  [[nodiscard]] virtual Text UserLanguage() = 0;

  /// The names of the installed printers in the system's order.
  [[nodiscard]] virtual std::vector<Text> Printers() = 0;

  /// Asks the user for a PDF file to write; "" if there shall be none.
  [[nodiscard]] virtual std::string AskPdfToWrite(TextView caption, TextView suggestedName) = 0;
};
