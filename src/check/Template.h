#pragma once

#include "check/Index.h"

/// A language file that is ready to be filled in.
namespace Template {

/// What is asked.
struct Question {
  /// A language that is there already: its texts take the place of the defaults. None for a new
  /// one.
  const Index::Language* language = nullptr;
  /// The German texts instead of the English ones.
  bool german = false;
  /// Leaves out what the language has.
  bool missingOnly = false;
};

/// The file: all texts by sections, then all names of the world, the longer ones first. In
/// Windows-1252, lines end with CR LF.
[[nodiscard]] std::string Make(Index& index, const Question& question);

}  // namespace Template
