#pragma once

#include "mapdata/world/EntityFile.h"
#include "platform/Text.h"

#include <string>
#include <string_view>

/// The words of findings, and those of files as text.
namespace Words {

/// The bytes as text.
[[nodiscard]] Text Decoded(std::string_view bytes);

/// The bytes of a text that came from a file of the world.
[[nodiscard]] std::string Encoded(TextView text);

/// The bytes with all letters of the code page in lower case.
[[nodiscard]] std::string Folded(std::string_view bytes);

/// The number in digits.
[[nodiscard]] Text Number(size_t number);

/// "512,300".
[[nodiscard]] Text At(const EntityFile::Position& position);

/// The words between quotes.
[[nodiscard]] Text Quoted(TextView words);

/// The number with the noun behind it, in the plural unless it is one: "1 entity", "4 entities".
[[nodiscard]] Text Count(size_t number, TextView singular, TextView plural);

}  // namespace Words
