#pragma once

#include "platform/Windows1252.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

/// The smallest pieces of a profile file: its lines, the blanks around names, and names compared
/// without regard to letter case.
namespace ProfileLines {

/// Stripped around section names, keys and values.
inline constexpr std::string_view Blanks = " \t\v\f";

/// The text without the given characters at its ends; of nothing else, its empty end.
[[nodiscard]] inline std::string_view Strip(std::string_view text, std::string_view characters) {
  const auto first = text.find_first_not_of(characters);
  if (first == std::string_view::npos)
    return text.substr(text.size());
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

/// The number of bytes before the next CR or LF.
[[nodiscard]] inline size_t LineLength(std::string_view rest) {
  // In steps: looking for an LF in the whole of a file that has none would take its length for
  // every line.
  constexpr size_t firstStep = 256;
  for (size_t step = firstStep;; step *= 2) {
    const std::string_view part = rest.substr(0, step);
    const std::string_view upToLf = part.substr(0, part.find('\n'));
    const size_t length = std::min(upToLf.find('\r'), upToLf.size());
    if (length < part.size() || part.size() == rest.size())
      return length;
  }
}

/// The next line, taken off the front of `rest` with its end: CR LF, LF or CR.
[[nodiscard]] inline std::string_view TakeLine(std::string_view& rest) {
  const std::string_view line = rest.substr(0, LineLength(rest));
  rest.remove_prefix(line.size());
  rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<size_t>(rest.size(), 1));
  return line;
}

/// Whether two names are the same but for the case of ASCII letters.
[[nodiscard]] inline bool SameAscii(std::string_view a, std::string_view b) {
  const auto lower = [](char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
  };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [lower](char x, char y) { return lower(x) == lower(y); });
}

/// Whether two names are the same but for the case of letters of the whole code page.
[[nodiscard]] inline bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return Windows1252::Fold(static_cast<unsigned char>(x)) ==
           Windows1252::Fold(static_cast<unsigned char>(y));
  });
}

/// A hash that is the same for names that differ in letter case alone.
[[nodiscard]] inline uint32_t HashName(std::string_view name) {
  uint32_t hash = 2166136261U;
  for (const char byte : name)
    hash = (hash ^ Windows1252::Fold(static_cast<unsigned char>(byte))) * 16777619U;
  return hash ^ (hash >> 15U);
}

}  // namespace ProfileLines
