#pragma once

#include "platform/Text.h"

#include <string>
#include <string_view>
#include <vector>

/// Where the command line writes to, and what it is told of it.
namespace Console {

/// A variable of the environment; empty if it is not set.
[[nodiscard]] std::string_view Environment(const char* name);

/// Arguments of the command line as texts.
[[nodiscard]] std::vector<Text> FromArguments(const std::vector<std::string>& arguments);

/// How text is to be written.
struct Style {
  bool colour = false;
  /// Characters beyond ASCII are left out for their nearest likeness where the locale lacks them.
  bool ascii = false;
  /// Characters of a line; 0 if they don't matter.
  size_t width = 0;
};

/// The style of standard output: colour on a terminal unless NO_COLOR is set, ASCII where the
/// locale is no UTF-8.
[[nodiscard]] Style OfOutput();

/// The text as bytes in that style; control characters are shown as their numbers and never sent.
[[nodiscard]] std::string Printable(TextView text, const Style& style);

/// Writes all bytes to standard output; false if it takes no more.
[[nodiscard]] bool Write(const std::string& bytes);

/// Puts the bytes to standard output if that is "-", else into the file, whole or not at all.
/// False, and a complaint, if that fails.
[[nodiscard]] bool Put(const std::string& output, const std::string& bytes);

/// Writes a message of the program itself to standard error.
void Complain(const std::string& message);

}  // namespace Console
