#include "cli/WorldFolder.h"

#include "cli/Console.h"
#include "mapdata/world/Regions.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool IsWorld(const fs::path& folder) {
  return std::ranges::any_of(Regions, [&folder](const RegionRow& region) {
    std::error_code error;
    return fs::exists(folder / (NativePath::ToBytes(region.stem) + ".data"), error);
  });
}

Text Absolute(const fs::path& folder) {
  std::error_code error;
  std::string path = fs::canonical(folder, error).native();
  return NativePath::FromBytes(error ? folder.native() : path);
}

// The world around a file or folder.
std::optional<Text> Around(const std::string& argument) {
  std::error_code error;
  const fs::path start = fs::weakly_canonical(fs::path(argument), error);
  if (error)
    return std::nullopt;
  for (fs::path folder = start; folder.has_relative_path(); folder = folder.parent_path())
    if (IsFolder(folder) && IsWorld(folder))
      return Absolute(folder);
  return IsFolder(start) ? std::optional(Absolute(start)) : std::nullopt;
}

fs::path UserFolder() {
  const std::string_view data = Console::Environment("XDG_DATA_HOME");
  return data.starts_with('/') ? fs::path(data) / "orvalis"
                               : fs::path(Console::Environment("HOME")) / ".local/share/orvalis";
}

}  // namespace

namespace WorldFolder {

std::optional<Text> Find(const std::string& named, const std::vector<std::string>& files) {
  if (!named.empty())
    return IsFolder(named) ? std::optional(Absolute(named)) : std::nullopt;
  if (!files.empty())
    return Around(files.front());
  const fs::path program = PosixFile::ExecutableFolder();
  // From the package the program lies in PREFIX/lib/orvalis, or in PREFIX/bin.
  for (const fs::path& folder : {fs::path("."), program, UserFolder(), program / "../share/orvalis",
                                 program / "../../share/orvalis"})
    if (IsWorld(folder))
      return Absolute(folder);
  return std::nullopt;
}

std::optional<Text> NameIn(const Text& world, const std::string& argument) {
  std::error_code error;
  const fs::path path = fs::weakly_canonical(fs::path(argument), error);
  const fs::path folder = NativePath::ToBytes(world);
  const fs::path name = path.lexically_relative(folder);
  if (error || name.empty() || name.native().starts_with(".."))
    return std::nullopt;
  return name == "." ? Text() : NativePath::FromBytes(name.native());
}

}  // namespace WorldFolder
