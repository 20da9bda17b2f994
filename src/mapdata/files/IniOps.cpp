#include "mapdata/files/IniOps.h"

#include "mapdata/files/FileSystem.h"
#include "mapdata/files/ProfileLines.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

using IniOps::LargestFile;

// The region shown, its descriptions and the language, which the pointer and a resize need again
// and again. Any other file is parsed anew in milliseconds.
constexpr size_t MaximumKeptFiles = 3;

// Two edits of equal size within one tick of the file system's clock leave the same stamp.
constexpr int64_t UntrustedAge = 2'500'000'000;

std::shared_ptr<const ProfileFile> Parsed(std::string bytes) {
  const auto state = bytes.empty() ? ReadState::Empty : ReadState::Read;
  return std::make_shared<const ProfileFile>(std::move(bytes), state);
}

// An empty file instead of one that could not be read.
std::shared_ptr<const ProfileFile> NotRead(bool there, const PosixFile::Stamp& stamp) {
  const auto state = !there                     ? ReadState::Missing
                     : stamp.size > LargestFile ? ReadState::TooLarge
                                                : ReadState::Unreadable;
  return std::make_shared<const ProfileFile>(std::string(), state);
}

std::vector<Text> Decoded(const std::vector<std::string_view>& names) {
  std::vector<Text> texts;
  texts.reserve(names.size());
  for (const std::string_view name : names)
    texts.push_back(Windows1252::Decode(name));
  return texts;
}

std::vector<Text> SectionNames(const ProfileFile& file) {
  std::vector<Text> names;
  for (const ProfileFile::Section& section : file.Sections())
    if (!ProfileLines::IsBlank(section.name))
      names.push_back(Windows1252::Decode(section.name));
  return names;
}

std::vector<Text> KeyNames(const ProfileFile& file, TextView section) {
  const auto name = Windows1252::Encode(section);
  return name ? Decoded(file.KeyNames(*name)) : std::vector<Text>();
}

bool BreaksLine(TextView text) {
  return text.find_first_of(u"\r\n") != TextView::npos;
}

}  // namespace

namespace IniOps {

std::shared_ptr<const ProfileFile> Cache::Get(TextView file) {
  const auto path = FileSystem::Resolve(file);
  const auto stamp = path ? PosixFile::RegularFile(*path) : std::nullopt;
  const auto kept = std::find_if(kept_.begin(), kept_.end(),
                                 [file](const Kept& entry) { return entry.path == file; });
  if (kept != kept_.end()) {
    if (stamp && kept->stamp == *stamp)
      return kept->profile;
    kept_.erase(kept);
  }
  auto contents = stamp ? PosixFile::Read(*path, LargestFile) : std::nullopt;
  if (!contents)
    return NotRead(path.has_value(), stamp.value_or(PosixFile::Stamp{}));
  auto profile = Parsed(std::move(contents->bytes));
  if (PosixFile::Now() - contents->stamp.modified < UntrustedAge)
    return profile;
  if (kept_.size() == MaximumKeptFiles)
    kept_.pop_front();
  return kept_.emplace_back(Kept{Text(file), contents->stamp, std::move(profile)}).profile;
}

const std::shared_ptr<const ProfileFile>& Snapshot::Shared(TextView file) {
  for (const Seen& seen : seen_)
    if (seen.path == file)
      return seen.profile;
  return seen_.emplace_back(Seen{Text(file), cache_.Get(file)}).profile;
}

Text Snapshot::IniRead(TextView file, TextView section, TextView key, TextView defaultValue) {
  return IniOps::IniRead(File(file), section, key, defaultValue);
}

std::vector<Text> Snapshot::IniSectionNames(TextView file) {
  return SectionNames(File(file));
}

std::vector<Text> Snapshot::IniReadFile(TextView file, TextView section) {
  return KeyNames(File(file), section);
}

Text IniRead(const ProfileFile& file, TextView section, TextView key, TextView defaultValue) {
  const auto sectionBytes = Windows1252::Encode(section);
  const auto keyBytes = Windows1252::Encode(key);
  // A name asked for that Windows-1252 can't hold stands in no file.
  if (!sectionBytes || !keyBytes)
    return Text(defaultValue);
  const auto value = file.Read(*sectionBytes, *keyBytes);
  return value.empty() ? Text(defaultValue) : Windows1252::Decode(value);
}

Text IniRead(TextView file, TextView section, TextView key, TextView defaultValue) {
  Cache cache;
  return Snapshot(cache).IniRead(file, section, key, defaultValue);
}

std::vector<Text> IniSectionNames(TextView file) {
  Cache cache;
  return Snapshot(cache).IniSectionNames(file);
}

std::vector<Text> IniReadFile(TextView file, TextView section) {
  Cache cache;
  return Snapshot(cache).IniReadFile(file, section);
}

WriteState Write(TextView file, TextView section, TextView key, TextView value) {
  const auto sectionBytes = Windows1252::Encode(section);
  const auto keyBytes = Windows1252::Encode(key);
  const auto valueBytes = Windows1252::Encode(value);
  if (!sectionBytes || !keyBytes || !valueBytes)
    return WriteState::NotInCodePage;
  if (BreaksLine(section) || BreaksLine(key) || BreaksLine(value))
    return WriteState::BreaksLine;
  const std::string path = FileSystem::ResolveForWriting(file);
  auto contents = PosixFile::Read(path, LargestFile);
  // A file that is there but can't be read would be lost by writing a new one.
  if (!contents && PosixFile::Exists(path))
    return WriteState::Unreadable;
  const ProfileFile profile(contents ? std::move(contents->bytes) : std::string());
  const std::string changed = profile.WithValue(*sectionBytes, *keyBytes, *valueBytes);
  return PosixFile::Replace(path, changed) ? WriteState::Written : WriteState::NotWritable;
}

void IniWrite(TextView file, TextView section, TextView key, TextView value) {
  static_cast<void>(Write(file, section, key, value));
}

}  // namespace IniOps
