#pragma once

#include "mapdata/world/ProgramPaths.h"
#include "platform/Desktop.h"
#include "platform/Text.h"

#include <string>

/// The one way from a command to a document, an address or a program. Nothing that a file says
/// becomes an option or a command: files are opened only below the program's folder and that of
/// its languages, addresses only if they are of the web or of mail.
class Launching {
 public:
  Launching(const ProgramPaths& paths, Desktop& desktop) : paths_(paths), desktop_(desktop) {}

  /// Opens a document (its path, with or without double quotes around it) or an address. Results
  /// above 32 are successes. A help file counts as opened when the page beside it was.
  Desktop::Result ShellExec(TextView URI);

  /// Shows a page of HTML: in the desktop's browser, else in a window of the program's own.
  Desktop::Result ShowPage(TextView path);

  /// Starts the program at the path in the program's folder.
  Desktop::Result StartProgram(TextView path);

 private:
  // The path in the system's bytes; `result` says why the file is not to be opened.
  struct Checked {
    Desktop::Result result;
    std::string file;
  };

  [[nodiscard]] Checked Check(TextView path) const;
  Desktop::Result OpenDocument(TextView path);
  Desktop::Result OpenHelp(TextView path, TextView page);

  const ProgramPaths& paths_;
  Desktop& desktop_;
};
