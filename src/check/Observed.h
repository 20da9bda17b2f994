#pragma once

#include "check/Index.h"

#include <map>

/// One thing that a reader gives: from which file, section and key.
struct Sight {
  Text file;
  Text section;
  Text key;
  /// Whether the key is a name, and told of because an entity bears it.
  bool isOfName = false;
  // The comparison with 0 within is the compiler's own.
  auto operator<=>(const Sight&) const = default;  // NOLINT(modernize-use-nullptr)
};

/// Everything that all readers give of a world, in words: what is compared before and after a
/// change.
using Observed = std::map<Sight, Text>;

[[nodiscard]] Observed Observe(Index& index);
