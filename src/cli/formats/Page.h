#pragma once

#include "share/SharedWorld.h"

#include <span>
#include <string>

/// A world as one page that any browser shows without the net. What is put where is told in
/// page/README.md.
namespace Page {

struct Options {
  Text title;
  bool pictures = true;
  bool portraits = true;
};

/// The page's bytes, in the language of the world. Pictures that the viewer would not show are left
/// out, all others go in as they stand.
[[nodiscard]] std::string Of(World& world, std::span<const Share::RegionMap> maps,
                             const Options& options);

}  // namespace Page
