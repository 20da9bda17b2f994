#include "search/Names.h"

#include "mapdata/files/ProfileFile.h"
#include "mapdata/world/EntityFile.h"
#include "platform/Windows1252.h"

#include <string_view>
#include <unordered_set>
#include <utility>

namespace Search {

std::vector<Text> AllNames(IniOps::Snapshot& files, const EntityNames& names,
                           const ProgramPaths& paths) {
  const auto nameFile = names.NameFile(files);
  std::vector<Text> all;
  std::unordered_set<Text> seen;
  for (const ProgramPaths::RegionFiles& region : paths.regions) {
    const ProfileFile& data = files.File(region.data);
    for (const ProfileFile::Section& section : data.Sections())
      for (const std::string_view key : data.KeyNames(section.name))
        if (!EntityFile::IsDisabled(key) && !EntityFile::IsHiddenFromSearch(key))
          if (Text name = names.Shown(nameFile, Windows1252::Decode(key)); seen.insert(name).second)
            all.push_back(std::move(name));
  }
  return all;
}

}  // namespace Search
