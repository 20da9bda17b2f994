#pragma once

#include "platform/Text.h"

/// One text of the interface.
struct TextRow {
  /// What stands in a text for a value: the path of a file, a search term, a region.
  static constexpr TextView Placeholder = u"%s";

  /// Where a language file has it. Letter case of the key doesn't count.
  TextView section;
  TextView key;
  /// What is shown where that is missing or empty; "" for nothing.
  TextView english;
  TextView german;
  /// False where a window does without the text.
  bool needed = true;

  /// Whether a language that leaves it out shows nothing in its place.
  [[nodiscard]] constexpr bool IsSerious() const { return needed && english.empty(); }

  [[nodiscard]] constexpr bool HasPlaceholder() const {
    return german.find(Placeholder) != TextView::npos;
  }
};
