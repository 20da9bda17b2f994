#pragma once

#include <filesystem>
#include <string>

namespace Gallery {

/// Of the JPEG file of a region's map.
constexpr int MapQuality = 93;

/// Paints every picture of a world and of the program on two threads. Answers the first file that
/// could not be written, or an empty string.
[[nodiscard]] std::string PaintAll(const std::filesystem::path& world,
                                   const std::filesystem::path& out);

}  // namespace Gallery
