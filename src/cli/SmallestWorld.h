#pragma once

#include <string>

/// A world to begin with.
namespace SmallestWorld {

/// Writes the fewest files that work, each with comments that say how to go on; false if one could
/// not be written.
[[nodiscard]] bool Write(const std::string& folder);

}  // namespace SmallestWorld
