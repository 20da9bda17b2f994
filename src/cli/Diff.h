#pragma once

#include "check/Fixes.h"
#include "cli/Console.h"

#include <string>

/// What a change would do to a file, as programmers read it.
namespace Diff {

/// The changed lines before and after, without lines around them.
[[nodiscard]] std::string Of(const Fixes::Change& change, const Console::Style& style);

}  // namespace Diff
