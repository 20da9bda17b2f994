#pragma once

#include "platform/Text.h"

#include <memory>

class frmMain;
struct Context;

/// The program from its start to the end of its main window.
class Program {
 public:
  explicit Program(Context& context);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Checks the required files, shows the main window and chooses the language. False after the
  /// message that names a missing file: the program then ends. To be called in the event loop.
  [[nodiscard]] bool Start();

 private:
  [[nodiscard]] bool CheckFiles(const Text& chosenLanguage);
  void ChooseLanguage(const Text& chosenLanguage);

  Context& context_;
  std::unique_ptr<frmMain> window_;
};
