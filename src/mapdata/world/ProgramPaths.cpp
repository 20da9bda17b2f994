#include "mapdata/world/ProgramPaths.h"

#include "mapdata/files/FileSystem.h"
#include "mapdata/world/Settings.h"

using FileSystem::Separator;
using Texts::Join;

ProgramPaths::ProgramPaths(TextView folder, const ProfileFile& settingsFile) {
  const auto below = [&](const Settings::Entry& entry) {
    return Join(programFolder, Settings::Read(settingsFile, entry), Separator);
  };
  programFolder = Join(folder, Separator);
  settings = SettingsIn(folder);
  extrasFolder = below(Settings::ExtrasFolder);
  picturesFolder = below(Settings::PicturesFolder);
  languageRoot = below(Settings::LanguageRoot);
  infoData = Join(programFolder, u"info.data");
  for (const RegionRow& row : Regions)
    regions[static_cast<size_t>(row.region)] = {Join(programFolder, row.stem, u".data"),
                                                Join(programFolder, row.stem, u".jpg")};
}

Text ProgramPaths::SettingsIn(TextView folder) {
  return Join(folder, Separator, u"orvalis.ini");
}
