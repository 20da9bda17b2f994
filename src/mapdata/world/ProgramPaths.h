#pragma once

#include "mapdata/files/ProfileFile.h"
#include "mapdata/world/Regions.h"
#include "platform/Text.h"

#include <array>

/// Paths of everything that stands beside the program, composed once at start-up. Folders end
/// with a separator.
struct ProgramPaths {
  /// A region's entity data file and its picture.
  struct RegionFiles {
    Text data;
    Text picture;
  };

  ProgramPaths() = default;

  /// All paths of the program in this folder, as its settings name them.
  ProgramPaths(TextView folder, const ProfileFile& settingsFile);

  /// The path of the settings in that folder.
  [[nodiscard]] static Text SettingsIn(TextView folder);

  [[nodiscard]] const RegionFiles& Of(Region region) const {
    return regions[static_cast<size_t>(region)];
  }

  Text programFolder;
  Text settings;
  Text extrasFolder;
  Text picturesFolder;
  Text languageRoot;
  /// The German descriptions, which also serve languages without their own.
  Text infoData;
  /// In the order of `Regions`.
  std::array<RegionFiles, Regions.size()> regions;
};
