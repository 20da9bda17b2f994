#pragma once

#include "platform/Text.h"

#include <optional>
#include <string>

/// The code page of every profile file. The five bytes that it leaves undefined stand for the
/// control characters of the same number, so that no byte is lost on the way in and out.
namespace Windows1252 {

/// The characters of the bytes, one each.
[[nodiscard]] Text Decode(std::string_view bytes);

/// The bytes of the text; none if it holds a character that the code page lacks.
[[nodiscard]] std::optional<std::string> Encode(TextView text);

/// The byte with its letter in lower case; two bytes match without case if their folds are equal.
[[nodiscard]] unsigned char Fold(unsigned char byte);

/// The character in lower case, if it is a letter of the code page that has one; else itself.
[[nodiscard]] char16_t Lower(char16_t unit);

/// Whether the character is a letter of the code page or one of the ten digits.
[[nodiscard]] bool IsLetterOrDigit(char16_t unit);

}  // namespace Windows1252
