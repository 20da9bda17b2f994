#pragma once

#include "platform/Text.h"

#include <functional>

/// Doing something again whenever a world changes.
namespace Watch {

/// Runs it once, and again after each change of a file in the folder, once no more changes come;
/// ends with its status when that is above 1, which means that nobody reads the output any more.
int Repeat(const Text& folder, const std::function<int()>& run);

}  // namespace Watch
