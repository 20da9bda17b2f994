#include "platform/NativePath.h"

#include "platform/Windows1252.h"

#include <utility>

namespace {

constexpr char16_t FirstLoneByte = 0xDC80;
constexpr char16_t LastLoneByte = 0xDCFF;
constexpr char32_t Invalid = 0xFFFFFFFF;

bool IsLoneByte(char16_t unit) {
  return unit >= FirstLoneByte && unit <= LastLoneByte;
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80)
    return 1;
  if (lead >= 0xC2 && lead <= 0xDF)
    return 2;
  if (lead >= 0xE0 && lead <= 0xEF)
    return 3;
  return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// The code point at the start of the bytes, with the number of bytes it takes.
std::pair<char32_t, size_t> DecodePoint(std::string_view bytes) {
  const auto lead = static_cast<unsigned char>(bytes[0]);
  const size_t length = SequenceLength(lead);
  if (length <= 1 || bytes.size() < length)
    return {length == 1 ? lead : Invalid, 1};
  char32_t point = lead & (0xFFU >> (length + 1));
  for (size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[i]);
    if ((next & 0xC0U) != 0x80U)
      return {Invalid, 1};
    point = (point << 6U) | (next & 0x3FU);
  }
  constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
  if (point < smallest[length] || point > 0x10FFFF || surrogate)
    return {Invalid, 1};
  return {point, length};
}

void AppendUnits(Text& text, char32_t point) {
  if (point < 0x10000) {
    text.push_back(static_cast<char16_t>(point));
    return;
  }
  text.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10U)));
  text.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FFU)));
}

void AppendBytes(std::string& bytes, char32_t point) {
  const auto tail = [&bytes](char32_t value) {
    bytes.push_back(static_cast<char>(0x80U | (value & 0x3FU)));
  };
  if (point < 0x80) {
    bytes.push_back(static_cast<char>(point));
  } else if (point < 0x800) {
    bytes.push_back(static_cast<char>(0xC0U | (point >> 6U)));
    tail(point);
  } else if (point < 0x10000) {
    bytes.push_back(static_cast<char>(0xE0U | (point >> 12U)));
    tail(point >> 6U);
    tail(point);
  } else {
    bytes.push_back(static_cast<char>(0xF0U | (point >> 18U)));
    tail(point >> 12U);
    tail(point >> 6U);
    tail(point);
  }
}

}  // namespace

namespace NativePath {

Text FromBytes(std::string_view path) {
  Text text;
  text.reserve(path.size());
  while (!path.empty()) {
    const auto [point, length] = DecodePoint(path);
    if (point == Invalid)
      text.push_back(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(path[0])));
    else
      AppendUnits(text, point);
    path.remove_prefix(length);
  }
  return text;
}

std::string ToBytes(TextView path) {
  std::string bytes;
  bytes.reserve(path.size());
  for (size_t i = 0; i < path.size(); ++i) {
    const char16_t unit = path[i];
    const bool pair = IsHighSurrogate(unit) && i + 1 < path.size() && IsLowSurrogate(path[i + 1]);
    if (pair) {
      const char32_t high = unit - 0xD800U;
      AppendBytes(bytes, 0x10000 + (high << 10U) + (path[++i] - 0xDC00U));
    } else if (IsLoneByte(unit)) {
      bytes.push_back(static_cast<char>(unit - 0xDC00U));
    } else {
      AppendBytes(bytes, unit);
    }
  }
  return bytes;
}

Text ForDisplay(TextView path) {
  Text shown;
  for (size_t i = 0; i < path.size(); ++i) {
    const bool pair = i > 0 && IsHighSurrogate(path[i - 1]);
    if (!pair && IsLoneByte(path[i])) {
      const char byte = static_cast<char>(path[i] - 0xDC00U);
      shown.append(Windows1252::Decode({&byte, 1}));
    } else {
      shown.push_back(path[i]);
    }
  }
  return shown;
}

Text EntryName(std::string_view name) {
  Text text = FromBytes(name);
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsHighSurrogate(text[i]))
      ++i;
    else if (IsLoneByte(text[i]))
      return Windows1252::Decode(name);
  }
  return text;
}

}  // namespace NativePath
