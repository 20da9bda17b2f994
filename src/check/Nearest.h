#pragma once

#include "platform/Text.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What somebody may have meant who wrote another name.
namespace Nearest {

/// The candidate that differs least from the word, letter case set aside; "" if none is near. Two
/// slips are near, or one in a short word.
[[nodiscard]] std::string_view Of(std::string_view word,
                                  std::span<const std::string_view> candidates);

/// The same for texts.
[[nodiscard]] Text Of(TextView word, std::span<const Text> candidates);

}  // namespace Nearest
