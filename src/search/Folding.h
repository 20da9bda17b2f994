#pragma once

#include "platform/Text.h"

/// Comparing texts of which only half is remembered.
namespace Search {

/// The text as it compares: small letters without accents, ligatures and "ß" as two letters, curly
/// apostrophes as straight ones, no-break spaces as plain ones, no soft hyphens.
[[nodiscard]] Text Folded(TextView text);

/// Whether the text holds the part anywhere, whatever the case and the accents of both.
[[nodiscard]] bool Holds(TextView text, TextView part);

}  // namespace Search
