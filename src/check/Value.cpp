#include "check/Value.h"

#include "mapdata/files/ProfileLines.h"
#include "mapdata/files/StringOps.h"

#include <algorithm>
#include <array>
#include <vector>

using ProfileLines::Strip;

namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view Blanks = " \t";
constexpr char NoBreakSpace = '\xA0';
constexpr size_t MostDigits = 5;

bool IsDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

// Takes a run of digits off the front.
std::string_view TakeDigits(std::string_view& rest) {
  const size_t end = std::min(rest.find_first_not_of(Digits), rest.size());
  const std::string_view digits = rest.substr(0, end);
  rest.remove_prefix(end);
  return digits;
}

std::string_view TakeBlanks(std::string_view& rest) {
  const size_t end = std::min(rest.find_first_not_of(Blanks), rest.size());
  const std::string_view blanks = rest.substr(0, end);
  rest.remove_prefix(end);
  return blanks;
}

int ToInt(std::string_view digits) {
  int number = 0;
  for (const char digit : digits)
    number = number * 10 + (digit - '0');
  return number;
}

// Two numbers with a comma between them, from the front of a text; what is behind stays in it.
std::optional<EntityFile::Position> TakePlain(std::string_view& rest) {
  TakeBlanks(rest);
  const std::string_view x = TakeDigits(rest);
  TakeBlanks(rest);
  if (x.empty() || x.size() > MostDigits || !rest.starts_with(','))
    return std::nullopt;
  rest.remove_prefix(1);
  TakeBlanks(rest);
  const std::string_view y = TakeDigits(rest);
  if (y.empty() || y.size() > MostDigits)
    return std::nullopt;
  return EntityFile::Position{ToInt(x), ToInt(y)};
}

// ",*" and nothing else, or nothing.
bool IsMarkOrNothing(std::string_view rest) {
  rest = Strip(rest, Blanks);
  if (rest.empty())
    return true;
  return rest.front() == ',' && (Strip(rest.substr(1), Blanks) == "*" || rest.size() == 1);
}

size_t FieldCount(std::string_view value) {
  return static_cast<size_t>(std::ranges::count(value, ',')) + 1;
}

// The number that a field begins with; "" if it begins with none.
std::string_view LeadingDigits(std::string_view field) {
  const size_t sign = field.starts_with('-') || field.starts_with('+') ? 1 : 0;
  const size_t end = std::min(field.find_first_not_of("0123456789.", sign), field.size());
  return Value::IsNumber(field.substr(0, end)) ? field.substr(0, end) : std::string_view();
}

}  // namespace

namespace Value {

std::optional<EntityFile::Position> Plain(std::string_view value) {
  const auto position = TakePlain(value);
  return position && IsMarkOrNothing(value) ? position : std::nullopt;
}

std::optional<size_t> CommentBehind(std::string_view value) {
  const size_t comment = std::min(value.find_first_of(";#"), value.find("//"));
  if (comment == std::string_view::npos || comment == 0)
    return std::nullopt;
  const std::string_view before = value.substr(0, comment);
  // A separator stands at the number, a comment behind a blank or a mark.
  if (!Plain(before) || IsDigit(before.back()))
    return std::nullopt;
  return before.find_last_not_of(" \t,") + 1;
}

std::optional<std::string> WithCommas(std::string_view value) {
  std::string_view rest = Strip(value, Blanks);
  const std::string_view x = TakeDigits(rest);
  const size_t separator = std::min(rest.find_first_of(Digits), rest.size());
  const std::string_view between = Strip(rest.substr(0, separator), Blanks);
  rest.remove_prefix(separator);
  const std::string_view y = TakeDigits(rest);
  constexpr std::array<std::string_view, 9> separators = {"",  ";", ".", "/", "|",
                                                          ":", "-", "x", "\\"};
  if (x.empty() || y.empty() || separator == 0 ||
      std::ranges::find(separators, between) == separators.end())
    return std::nullopt;
  rest = Strip(rest, Blanks);
  if (!rest.empty() && (!rest.ends_with('*') || !Strip(rest, " \t;,.*").empty()))
    return std::nullopt;
  return std::string(x) + ',' + std::string(y) + (rest.empty() ? "" : ",*");
}

std::string_view Field(std::string_view value, size_t n) {
  for (; n > 1; --n) {
    const size_t comma = value.find(',');
    if (comma == std::string_view::npos)
      return {};
    value.remove_prefix(comma + 1);
  }
  return Strip(value.substr(0, value.find(',')), Blanks);
}

bool IsNumber(std::string_view field) {
  return StringOps::WholeNumber(field).has_value();
}

std::optional<std::string> DigitsAlone(std::string_view value) {
  const std::string_view x = LeadingDigits(Field(value, 1));
  const std::string_view y = LeadingDigits(Field(value, 2));
  if (x.empty() || y.empty())
    return std::nullopt;
  return std::string(x) + ',' + std::string(y) + (Field(value, 3) == "*" ? ",*" : "");
}

bool HasUnits(std::string_view value) {
  for (const size_t n : {1U, 2U}) {
    const std::string_view field = Field(value, n);
    const std::string_view unit = Strip(field.substr(LeadingDigits(field).size()), Blanks);
    if (!unit.empty() && unit != "px" && unit != "pt" && unit != "%")
      return false;
  }
  return FieldCount(value) == 2 || Field(value, 3) == "*";
}

std::optional<std::string> WithPlainSpaces(std::string_view value) {
  std::string spaced(value);
  std::ranges::replace(spaced, NoBreakSpace, ' ');
  return Plain(spaced) ? std::optional(std::move(spaced)) : std::nullopt;
}

std::optional<std::string> WithoutDecimalCommas(std::string_view value) {
  std::vector<std::string_view> fields;
  for (size_t n = 1; n <= FieldCount(value); ++n)
    fields.push_back(Field(value, n));
  const bool marked = fields.back() == "*";
  if (marked)
    fields.pop_back();
  if (fields.size() < 3 || fields.size() > 4 || !std::ranges::all_of(fields, &IsNumber))
    return std::nullopt;
  // Which of the two numbers has the fraction: the short one in the middle belongs to the first.
  const size_t y = fields.size() == 4 || fields[1].size() < fields[2].size() ? 2 : 1;
  return std::string(fields[0]) + ',' + std::string(fields[y]) + (marked ? ",*" : "");
}

}  // namespace Value
