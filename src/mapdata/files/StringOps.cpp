#include "mapdata/files/StringOps.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double Least = std::numeric_limits<int16_t>::min();
constexpr double Most = std::numeric_limits<int16_t>::max();
constexpr TextView Blanks = u" \t";

struct ScannedNumber {
  double value = 0;
  // The units that the number takes, leading blanks included; 0 if there is none.
  size_t length = 0;
};

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

// Blanks, a sign, digits with at most one point among or around them. Not the library's scan, which
// knows locales, exponents and "inf".
ScannedNumber ScanNumber(TextView text) {
  size_t at = std::min(text.find_first_not_of(Blanks), text.size());
  const bool negative = at < text.size() && text[at] == u'-';
  if (negative || (at < text.size() && text[at] == u'+'))
    ++at;
  double value = 0;
  double scale = 1;
  bool digits = false;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (IsDigit(text[at])) {
      digits = true;
      // Beyond 2^52 a further fraction digit changes nothing but would overflow both numbers.
      if (point && scale > 1e15)
        continue;
      value = value * 10 + (text[at] - u'0');
      scale = point ? scale * 10 : scale;
    } else if (text[at] == u'.' && !point) {
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
  for (int i = 1; i < n; ++i) {
    const auto at = text.find(separator);
    if (at == TextView::npos)
      break;
    text.remove_prefix(std::min(at + 1, text.size()));
  }
  return text.substr(0, text.find(separator));
}

TextView GetSplitField(TextView text, int n, TextView separator) {
  if (n < 1 || separator.empty())
    return n == 1 ? text : TextView();
  for (int i = 1; i < n; ++i) {
    const auto at = text.find(separator);
    if (at == TextView::npos)
      return {};
    text.remove_prefix(at + separator.size());
  }
  return text.substr(0, text.find(separator));
}

bool StrContains(TextView text, TextView part) {
  return !text.empty() && text.find(part) != TextView::npos;
}

int LeadingNumber(TextView text) {
  return static_cast<int>(std::nearbyint(std::clamp(ScanNumber(text).value, Least, Most)));
}

std::optional<int> WholeNumber(TextView text) {
  const ScannedNumber number = ScanNumber(text);
  const bool whole = text.find_first_not_of(Blanks, number.length) == TextView::npos;
  const double rounded = std::nearbyint(number.value);
  if (number.length == 0 || !whole || rounded < Least || rounded > Most)
    return std::nullopt;
  return static_cast<int>(rounded);
}

}  // namespace StringOps
