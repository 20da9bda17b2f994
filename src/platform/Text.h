#pragma once

#include <string>
#include <string_view>

/// Text of the program: one UTF-16 unit for each character of the Windows-1252 files, so that
/// lengths, prefixes and cuts count characters.
using Text = std::u16string;
using TextView = std::u16string_view;

/// Operations on texts that more than one room needs.
namespace Texts {

/// Whether the character is one of the ten digits.
[[nodiscard]] constexpr bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

/// Whether the character is a letter of ASCII.
[[nodiscard]] constexpr bool IsLetter(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// The text without leading and trailing spaces (U+0020 only; tabs stay).
[[nodiscard]] TextView Trim(TextView text);

/// Every letter of the Windows-1252 code page in lower case; other characters stay.
[[nodiscard]] Text Lower(TextView text);

/// Every non-overlapping occurrence of `part`, from left to right, replaced by `by`; an empty
/// `part` leaves the text as it is.
[[nodiscard]] Text ReplaceAll(TextView text, TextView part, TextView by);

/// The joined texts.
template <typename... Parts>
[[nodiscard]] Text Join(const Parts&... parts) {
  Text joined;
  (joined.append(parts), ...);
  return joined;
}

/// The name between two blanks, as it stands on the map.
[[nodiscard]] inline Text Padded(TextView name) {
  return Join(u" ", name, u" ");
}

}  // namespace Texts
