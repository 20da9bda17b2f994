#pragma once

#include "platform/Text.h"

#include <array>
#include <optional>
#include <string>

/// The code page of every profile file. The five bytes that it leaves undefined stand for the
/// control characters of the same number, so that no byte is lost on the way in and out.
namespace Windows1252 {

/// Every byte with its letter in lower case.
inline constexpr std::array<unsigned char, 256> Folds = [] {
  std::array<unsigned char, 256> folds{};
  for (unsigned byte = 0; byte < folds.size(); ++byte) {
    const bool ascii = byte >= 'A' && byte <= 'Z';
    const bool latin = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    folds[byte] = static_cast<unsigned char>(byte + (ascii || latin ? 0x20U : 0U));
  }
  for (const unsigned letter : {0x8AU, 0x8CU, 0x8EU})
    folds[letter] = static_cast<unsigned char>(letter + 0x10U);
  folds[0x9F] = 0xFF;
  return folds;
}();

/// The characters of the bytes, one each.
[[nodiscard]] Text Decode(std::string_view bytes);

/// The bytes of the text; none if it holds a character that the code page lacks.
[[nodiscard]] std::optional<std::string> Encode(TextView text);

/// The byte with its letter in lower case; two bytes match without case if their folds are equal.
[[nodiscard]] inline unsigned char Fold(unsigned char byte) {
  return Folds[byte];
}

/// The character in lower case, if it is a letter of the code page that has one; else itself.
[[nodiscard]] char16_t Lower(char16_t unit);

/// Whether the character is a letter of the code page or one of the ten digits.
[[nodiscard]] bool IsLetterOrDigit(char16_t unit);

}  // namespace Windows1252
