#include "platform/Windows1252.h"

#include <algorithm>
#include <array>

namespace {

constexpr unsigned char FirstSpecial = 0x80;

// The characters of the bytes 0x80 to 0x9F; all others stand for themselves.
constexpr std::array<char16_t, 32> SpecialCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t CharacterOf(unsigned char byte) {
  const unsigned index = byte - unsigned{FirstSpecial};
  return index < SpecialCharacters.size() ? SpecialCharacters[index] : char16_t{byte};
}

std::optional<unsigned char> ByteOf(char16_t unit) {
  if (unit < FirstSpecial || (unit > 0x9F && unit <= 0xFF))
    return static_cast<unsigned char>(unit);
  const auto found = std::find(SpecialCharacters.begin(), SpecialCharacters.end(), unit);
  if (found == SpecialCharacters.end())
    return std::nullopt;
  return static_cast<unsigned char>(FirstSpecial + (found - SpecialCharacters.begin()));
}

}  // namespace

namespace Windows1252 {

Text Decode(std::string_view bytes) {
  Text text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char byte) { return CharacterOf(static_cast<unsigned char>(byte)); });
  return text;
}

std::optional<std::string> Encode(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char16_t unit : text) {
    const auto byte = ByteOf(unit);
    if (!byte)
      return std::nullopt;
    bytes.push_back(static_cast<char>(*byte));
  }
  return bytes;
}

bool IsLetterOrDigit(char16_t unit) {
  constexpr TextView others = u"ŠšŒœŽžŸƒªºµ";
  return Texts::IsDigit(unit) || Texts::IsLetter(unit) ||
         (unit >= u'À' && unit <= u'ÿ' && unit != u'×' && unit != u'÷') ||
         others.find(unit) != TextView::npos;
}

char16_t Lower(char16_t unit) {
  const auto byte = ByteOf(unit);
  return byte ? CharacterOf(Folds[*byte]) : unit;
}

}  // namespace Windows1252
