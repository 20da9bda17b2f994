#pragma once

#include "platform/Text.h"

#include <optional>

/// Fields of a value, and the two ways in which its fields become numbers.
namespace StringOps {

/// Field N of the text, counted from 1, found by scanning from separator to separator: beyond the
/// last field it is the last one, below 1 the first. Only the first unit of a separator is skipped.
[[nodiscard]] TextView GetField(TextView text, int n, TextView separator);

/// Field N of the text, counted from 1, as splitting at every separator gives it; "" if there is
/// no such field.
[[nodiscard]] TextView GetSplitField(TextView text, int n, TextView separator);

/// Whether `part` occurs in the text, letter case counting. Nothing occurs in an empty text; an
/// empty part occurs in every other.
[[nodiscard]] bool StrContains(TextView text, TextView part);

/// The longest leading part that reads as a decimal number, rounded (halves to even) and clamped
/// to 16 bits; 0 if there is none. "12abc" is 12.
[[nodiscard]] int LeadingNumber(TextView text);

/// The number that the text is as a whole, blanks around it allowed, rounded (halves to even);
/// none if it is no number or does not fit into 16 bits. "12abc" is none.
[[nodiscard]] std::optional<int> WholeNumber(TextView text);

}  // namespace StringOps
