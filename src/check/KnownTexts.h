#pragma once

#include "platform/Text.h"

#include <vector>

/// One text that a language file can hold.
struct KnownText {
  TextView section;
  Text key;
  /// What is shown where the file has none; "" for nothing at all.
  Text english;
  Text german;
  /// Whether "%s" in it is replaced.
  bool hasPlaceholder = false;
  /// Whether it may be left out for good.
  bool isOptional = false;
};

/// All texts of the program, section by section.
[[nodiscard]] const std::vector<KnownText>& KnownTexts();
