#pragma once

#include "platform/Windows1252.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

/// The smallest pieces of a profile file: its lines, the blanks around names, and names compared
/// without regard to letter case.
namespace ProfileLines {

/// Stripped around section names, keys and values.
inline constexpr std::string_view Blanks = " \t\v\f";

/// The text without the given blanks at its ends; of nothing else, its empty end.
[[nodiscard]] inline std::string_view Strip(std::string_view text, std::string_view blanks) {
  // All blanks are control characters or the space: most ends are settled by the first comparison.
  const auto isBlank = [blanks](char byte) {
    return static_cast<unsigned char>(byte) <= ' ' && blanks.find(byte) != std::string_view::npos;
  };
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
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
  return a == b || std::equal(a.begin(), a.end(), b.begin(), b.end(),
                              [lower](char x, char y) { return lower(x) == lower(y); });
}

/// Whether two names are the same but for the case of letters of the whole code page.
[[nodiscard]] inline bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return Windows1252::Fold(static_cast<unsigned char>(x)) ==
           Windows1252::Fold(static_cast<unsigned char>(y));
  });
}

/// A hash that is the same for names that differ in letter case alone. Eight bytes at once, since
/// files of megabytes are hashed: of letters beyond ASCII only the bits that both cases share
/// count.
[[nodiscard]] inline uint32_t HashName(std::string_view name) {
  constexpr uint64_t HighBits = 0x8080808080808080U;
  constexpr uint64_t WithoutCase = 0x5F5F5F5F5F5F5F5FU;
  // The two cases of a letter are 0x10, 0x20 or, of one, 0x60 apart.
  constexpr uint64_t CaseBitsBeyond = 0x50;
  uint64_t hash = name.size();
  for (size_t at = 0; at < name.size(); at += sizeof(uint64_t)) {
    uint64_t word = 0;
    std::memcpy(&word, name.data() + at, std::min(sizeof word, name.size() - at));
    const uint64_t beyondAscii = (word & HighBits) >> 7U;
    word = (word & WithoutCase & ~(beyondAscii * CaseBitsBeyond)) | (word & HighBits);
    hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 32U;
  }
  return static_cast<uint32_t>(hash);
}

}  // namespace ProfileLines
