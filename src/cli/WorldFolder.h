#pragma once

#include "platform/Text.h"

#include <optional>
#include <string>
#include <vector>

/// Which world a command is about.
namespace WorldFolder {

/// The folder of the world, without a separator at its end: the one that is named; else that in
/// which the files stand, the current one, the program's own, the user's program folder, and the
/// package's. None if there is no world.
[[nodiscard]] std::optional<Text> Find(const std::string& named,
                                       const std::vector<std::string>& files);

/// The paths below the world's folder of files that are given as arguments, "/" between their
/// parts and none at the end; "" for the folder itself, none for what is not in it.
[[nodiscard]] std::optional<Text> NameIn(const Text& world, const std::string& argument);

}  // namespace WorldFolder
