#pragma once

#include <filesystem>
#include <string>

namespace Gallery {

/// Paints every picture of a world and of the program on two threads. Answers the first file that
/// could not be written, or an empty string.
[[nodiscard]] std::string PaintAll(const std::filesystem::path& world,
                                   const std::filesystem::path& out);

}  // namespace Gallery
