#pragma once

#include "platform/Text.h"

#include <optional>
#include <string_view>

/// Fields of a value, and the two ways in which its fields become numbers.
namespace StringOps {

/// Field N of the text, counted from 1, found by scanning from separator to separator: beyond the
/// last field it is the last one, below 1 the first. Only the first unit of a separator is skipped.
[[nodiscard]] TextView GetField(TextView text, int n, TextView separator);
[[nodiscard]] std::string_view GetField(std::string_view text, int n, std::string_view separator);

/// Field N of the text, from 1, split at every separator; "" if there is no such field.
[[nodiscard]] TextView GetSplitField(TextView text, int n, TextView separator);
[[nodiscard]] std::string_view GetSplitField(std::string_view text, int n,
                                             std::string_view separator);

/// Whether `part` occurs in the text, letter case counting. Nothing occurs in an empty text; an
/// empty part occurs in every other.
[[nodiscard]] bool StrContains(TextView text, TextView part);

/// What the reader of numbers found at the front of a field.
struct Number {
  /// Rounded, halves to even, and clamped to 16 bits; 0 if there is none.
  int value = 0;
  /// Whether there is a number at all.
  bool read = false;
  bool clamped = false;
  /// What stands behind it, the blanks at its front left out.
  std::string_view rest;
};

/// Reads the longest leading part that is a decimal number: blanks, a sign, digits with at most one
/// point among or around them.
[[nodiscard]] Number ReadNumber(std::string_view text);

/// The leading number, whatever stands behind it; 0 if there is none. "12abc" is 12.
[[nodiscard]] int LeadingNumber(std::string_view text);

/// The number that the text is as a whole, blanks around it allowed; none if it is no number or
/// does not fit into 16 bits. "12abc" is none.
[[nodiscard]] std::optional<int> WholeNumber(std::string_view text);

}  // namespace StringOps
