#include "mapdata/files/FileSystem.h"

#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <algorithm>

namespace {

constexpr TextView BothSeparators = u"/\\";

std::string Joined(const std::string& folder, const std::string& name) {
  return folder.empty() || folder.back() == '/' ? folder + name : folder + '/' + name;
}

// The entry of the folder that the name means; none if no letter case of it is there.
std::optional<std::string> Find(const std::string& folder, TextView name) {
  std::string exact = Joined(folder, NativePath::ToBytes(name));
  if (PosixFile::Exists(exact))
    return exact;
  const Text wanted = Texts::Lower(name);
  std::optional<std::string> found;
  for (const std::string& entry : PosixFile::Entries(folder.empty() ? "." : folder)) {
    const Text entryName = NativePath::EntryName(entry);
    // An entry written in another encoding is the exact name all the same.
    if (entryName == name)
      return Joined(folder, entry);
    if (!found && Texts::Lower(entryName) == wanted)
      found = Joined(folder, entry);
  }
  return found;
}

// Enters one part of a path: a name with "\" in it or, if there is none, a path of its own.
std::optional<std::string> Descend(const std::string& folder, TextView part) {
  if (auto found = Find(folder, part))
    return found;
  const auto at = part.find(u'\\');
  if (at == TextView::npos)
    return std::nullopt;
  const auto below = at == 0 ? folder : Find(folder, part.substr(0, at));
  return below ? Descend(*below, part.substr(at + 1)) : std::nullopt;
}

struct Walk {
  std::string reached;
  TextView rest;
};

// As far down the path as it exists.
Walk WalkDown(TextView path) {
  Walk walk{path.starts_with(u'/') ? "/" : "", path};
  while (!walk.rest.empty()) {
    const auto end = std::min(walk.rest.find(u'/'), walk.rest.size());
    const TextView part = walk.rest.substr(0, end);
    if (!part.empty()) {
      const auto next = Descend(walk.reached, part);
      if (!next)
        return walk;
      walk.reached = *next;
    }
    walk.rest.remove_prefix(std::min(end + 1, walk.rest.size()));
  }
  return walk;
}

}  // namespace

namespace FileSystem {

std::optional<std::string> Resolve(TextView path) {
  std::string exact = NativePath::ToBytes(path);
  // A NUL would cut the name short and open another file.
  if (path.empty() || exact.find('\0') != std::string::npos)
    return std::nullopt;
  if (PosixFile::Exists(exact))
    return exact;
  const Walk walk = WalkDown(path);
  if (!walk.rest.empty())
    return std::nullopt;
  return walk.reached;
}

std::string ResolveForWriting(TextView path) {
  const Walk walk = WalkDown(path);
  return walk.rest.empty() ? walk.reached : Joined(walk.reached, NativePath::ToBytes(walk.rest));
}

bool FileExists(TextView path) {
  const auto file = Resolve(path);
  const auto stamp = file ? PosixFile::RegularFile(*file) : std::nullopt;
  return stamp && stamp->size > 0;
}

Text GetBaseName(TextView path) {
  const auto folderEnd = path.find_last_of(BothSeparators);
  if (folderEnd != TextView::npos)
    path.remove_prefix(folderEnd + 1);
  const auto point = path.rfind(u'.');
  return Text(path.substr(0, point == TextView::npos ? 0 : point));
}

std::vector<Text> Names(TextView folder) {
  std::vector<Text> names;
  const auto resolved = Resolve(folder);
  if (!resolved)
    return names;
  for (const std::string& entry : PosixFile::Entries(*resolved))
    if (!entry.starts_with('.'))
      names.push_back(NativePath::EntryName(entry));
  return names;
}

}  // namespace FileSystem
