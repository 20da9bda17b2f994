#pragma once

#include "platform/Windows1252.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

/// The pieces of a profile file: lines, the blanks around names, names compared in any letter case.
namespace ProfileLines {

/// Stripped around section names, keys and values.
inline constexpr std::string_view Blanks = " \t\v\f";

/// The text without the given blanks at its ends; of nothing else, its empty end.
[[nodiscard]] inline std::string_view Strip(std::string_view text, std::string_view blanks) {
  // No blank is above the space: the first comparison settles most ends.
  const auto isBlank = [blanks](char byte) {
    return static_cast<unsigned char>(byte) <= ' ' && blanks.find(byte) != std::string_view::npos;
  };
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

/// Whether it consists of spaces alone.
[[nodiscard]] inline bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

/// The number of bytes before the next CR or LF.
[[nodiscard]] inline size_t LineLength(std::string_view rest) {
  // In steps: a file without any LF would otherwise be searched to its end for every line.
  constexpr size_t firstStep = 256;
  for (size_t step = firstStep;; step *= 2) {
    const std::string_view part = rest.substr(0, step);
    const std::string_view upToLf = part.substr(0, part.find('\n'));
    const size_t length = std::min(upToLf.find('\r'), upToLf.size());
    if (length < part.size() || part.size() == rest.size())
      return length;
  }
}

/// The byte with its ASCII letter in lower case.
[[nodiscard]] inline unsigned char LowerAscii(unsigned char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

/// Whether two names are the same once folded.
template <typename Fold>
[[nodiscard]] bool SameFolded(std::string_view a, std::string_view b, Fold fold) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [fold](char x, char y) {
    return fold(static_cast<unsigned char>(x)) == fold(static_cast<unsigned char>(y));
  });
}

/// Whether two names are the same in any case of ASCII letters.
[[nodiscard]] inline bool SameAscii(std::string_view a, std::string_view b) {
  return a == b || SameFolded(a, b, LowerAscii);
}

/// Whether two names are the same in any case of the code page's letters.
[[nodiscard]] inline bool SameName(std::string_view a, std::string_view b) {
  return SameFolded(a, b, Windows1252::Fold);
}

/// The name between the brackets of a header line.
[[nodiscard]] inline std::string_view HeaderName(std::string_view strippedLine) {
  strippedLine.remove_prefix(1);
  return Strip(strippedLine.substr(0, strippedLine.find(']')), Blanks);
}

/// The value without the one pair of quotes around it.
[[nodiscard]] inline std::string_view Unquoted(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// What a line is to the reader of values.
enum class LineKind { Blank, Comment, Header, KeyWithValue, KeyWithoutValue };

/// A line as the reader of values takes it.
struct Entry {
  LineKind kind = LineKind::Blank;
  /// The key, or a header's name, without the blanks around it.
  std::string_view key;
  /// The value without the blanks, but with the quotes around it.
  std::string_view value;
};

/// One line of a file.
struct Line {
  /// Without its end.
  std::string_view raw;
  /// CR LF, LF or CR; "" at the end of a file that ends without one.
  std::string_view end;

  /// The line as the reader of values takes it.
  [[nodiscard]] Entry AsEntry() const {
    const std::string_view line = Strip(raw, Blanks);
    if (line.empty())
      return {};
    if (line.front() == ';')
      return {LineKind::Comment, {}, {}};
    if (line.front() == '[')
      return {LineKind::Header, HeaderName(line), {}};
    const auto equals = line.find('=');
    if (equals == std::string_view::npos)
      return {LineKind::KeyWithoutValue, line, {}};
    return {LineKind::KeyWithValue, Strip(line.substr(0, equals), Blanks),
            Strip(line.substr(equals + 1), Blanks)};
  }

  /// The key list's view of the line: what is before the first "=", stripped of spaces; none for a
  /// line of spaces.
  [[nodiscard]] std::optional<std::string_view> ListedKey() const {
    if (IsBlank(raw))
      return std::nullopt;
    return Strip(raw.substr(0, raw.find('=')), " ");
  }
};

/// The next line, taken off the front of `rest` with its end.
[[nodiscard]] inline Line TakeLine(std::string_view& rest) {
  const size_t length = LineLength(rest);
  const std::string_view behind = rest.substr(length);
  const size_t end = behind.starts_with("\r\n") ? 2 : std::min<size_t>(behind.size(), 1);
  const Line line{rest.substr(0, length), behind.substr(0, end)};
  rest = behind.substr(end);
  return line;
}

/// The lines of a file, or of a part that begins at the start of a line.
class Lines {
 public:
  class Iterator {
   public:
    explicit Iterator(std::string_view text) : rest_(text) { ++*this; }

    [[nodiscard]] const Line& operator*() const { return line_; }

    Iterator& operator++() {
      atEnd_ = rest_.empty();
      if (!atEnd_)
        line_ = TakeLine(rest_);
      return *this;
    }

    [[nodiscard]] bool operator==(std::default_sentinel_t) const { return atEnd_; }

   private:
    std::string_view rest_;
    Line line_;
    bool atEnd_ = false;
  };

  explicit Lines(std::string_view text) : text_(text) {}

  [[nodiscard]] Iterator begin() const { return Iterator(text_); }

  [[nodiscard]] std::default_sentinel_t end() const { return {}; }

 private:
  std::string_view text_;
};

}  // namespace ProfileLines
