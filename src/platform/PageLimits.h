#pragma once

#include "platform/Text.h"

#include <cstddef>

/// What a page of HTML may hold to be shown as one: pages beyond it take minutes or the memory of
/// the machine to lay out.
namespace PageLimits {

/// The characters of a page, its tags included.
inline constexpr size_t Characters = size_t{256} * 1024;

/// Whether the page keeps within the limits of its characters, its tags, the depth to which they
/// nest, its words, and the numbers in its tags and styles.
[[nodiscard]] bool Hold(TextView page);

}  // namespace PageLimits
