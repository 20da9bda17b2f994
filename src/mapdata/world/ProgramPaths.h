#pragma once

#include "platform/Text.h"

#include <array>

/// Paths of everything that stands beside the program, composed once at start-up. Folders end
/// with a separator.
struct ProgramPaths {
  /// A region's entity data file and its picture.
  struct Region {
    Text data;
    Text picture;
  };

  Text programFolder;
  Text settings;
  Text extrasFolder;
  Text picturesFolder;
  Text languageRoot;
  /// The German descriptions, which also serve languages without their own.
  Text infoData;
  /// Arvenna, Skaldor, Sarrakh, Ostrakh, the ancestors' temple.
  std::array<Region, 5> regions;
};
