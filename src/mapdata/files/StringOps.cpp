#include "mapdata/files/StringOps.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr double Least = std::numeric_limits<int16_t>::min();
constexpr double Most = std::numeric_limits<int16_t>::max();
constexpr std::string_view LeadingBlanks = " \t";

struct ScannedNumber {
  double value = 0;
  // The bytes that the number takes, leading blanks included; 0 if there is none.
  size_t length = 0;
};

template <typename View>
View Field(View text, int n, View separator) {
  for (int i = 1; i < n; ++i) {
    const auto at = text.find(separator);
    if (at == View::npos)
      break;
    text.remove_prefix(std::min(at + 1, text.size()));
  }
  return text.substr(0, text.find(separator));
}

template <typename View>
View SplitField(View text, int n, View separator) {
  if (n < 1 || separator.empty())
    return n == 1 ? text : View();
  for (int i = 1; i < n; ++i) {
    const auto at = text.find(separator);
    if (at == View::npos)
      return {};
    text.remove_prefix(at + separator.size());
  }
  return text.substr(0, text.find(separator));
}

bool IsDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

// Blanks, a sign, digits with at most one point among or around them. Not the library's
// scan, which knows locales, exponents and "inf".
ScannedNumber ScanNumber(std::string_view text) {
  size_t at = std::min(text.find_first_not_of(LeadingBlanks), text.size());
  const bool negative = at < text.size() && text[at] == '-';
  if (negative || (at < text.size() && text[at] == '+'))
    ++at;
  double value = 0;
  double scale = 1;
  bool digits = false;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (IsDigit(text[at])) {
      digits = true;
      // Further fraction digits would change nothing and overflow both numbers.
      if (point && scale > 1e15)
        continue;
      value = value * 10 + (text[at] - '0');
      scale = point ? scale * 10 : scale;
    } else if (text[at] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!digits)
    return {};
  return {(negative ? -value : value) / scale, at};
}

}  // namespace

namespace StringOps {

TextView GetField(TextView text, int n, TextView separator) {
  return Field(text, n, separator);
}

std::string_view GetField(std::string_view text, int n, std::string_view separator) {
  return Field(text, n, separator);
}

TextView GetSplitField(TextView text, int n, TextView separator) {
  return SplitField(text, n, separator);
}

std::string_view GetSplitField(std::string_view text, int n, std::string_view separator) {
  return SplitField(text, n, separator);
}

bool StrContains(TextView text, TextView part) {
  return !text.empty() && text.find(part) != TextView::npos;
}

Number ReadNumber(std::string_view text) {
  const ScannedNumber scanned = ScanNumber(text);
  const double rounded = std::nearbyint(scanned.value);
  const std::string_view behind = text.substr(scanned.length);
  return {static_cast<int>(std::clamp(rounded, Least, Most)), scanned.length > 0,
          rounded < Least || rounded > Most,
          behind.substr(std::min(behind.find_first_not_of(LeadingBlanks), behind.size()))};
}

int LeadingNumber(std::string_view text) {
  return ReadNumber(text).value;
}

std::optional<int> WholeNumber(std::string_view text) {
  const Number number = ReadNumber(text);
  if (!number.read || number.clamped || !number.rest.empty())
    return std::nullopt;
  return number.value;
}

}  // namespace StringOps
