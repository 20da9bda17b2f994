#include "search/EntityCache.h"

#include "i18n/LOCAL.h"
#include "mapdata/files/ProfileLines.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <iterator>

namespace {

Text WithoutBrackets(std::string_view section) {
  Text name = Windows1252::Decode(section);
  std::erase_if(name, [](char16_t unit) { return unit == u'[' || unit == u']'; });
  return name;
}

}  // namespace

std::optional<InvalidLink> EntityCache::CacheEntities(IniOps::Snapshot& files,
                                                      const LOCAL::Language& language,
                                                      const ProgramPaths::RegionFiles& region) {
  regions_.push_back(region);
  auto info = files.Shared(language.InfoPath());
  const ProfileFile& data = files.File(region.data);
  if (infoFiles_.empty() || infoFiles_.back() != info)
    infoFiles_.push_back(info);
  for (const ProfileFile::Section& section : data.Sections()) {
    if (ProfileLines::IsBlank(section.name))
      continue;
    if (auto invalid = CacheSection(files, language, *info, data, section.name))
      return invalid;
  }
  return std::nullopt;
}

std::optional<InvalidLink> EntityCache::CacheSection(IniOps::Snapshot& files,
                                                     const LOCAL::Language& language,
                                                     const ProfileFile& info,
                                                     const ProfileFile& data,
                                                     std::string_view section) {
  const auto nameFile = language.NameFile(files);
  const auto keys = data.KeyNames(section);
  Section& cached =
      sections_.emplace_back(Section{regions_.size() - 1, WithoutBrackets(section), size_, {}, {}});
  cached.records.reserve(keys.size());
  for (const std::string_view keyBytes : keys) {
    if (EntityFile::IsDisabled(keyBytes) || EntityFile::IsHiddenFromSearch(keyBytes))
      continue;
    const Text key = Windows1252::Decode(keyBytes);
    const EntityFile::Entity entity = EntityFile::Read(data, section, keyBytes);
    const auto position = EntityFile::FoundPosition(entity);
    if (!position)
      return InvalidLink{regions_.back().data, cached.name, key, Windows1252::Decode(*entity.link)};
    cached.names.append(language.Shown(nameFile, key));
    cached.records.push_back({InfoFile::ReadRedirected(info, keyBytes), cached.names.size(),
                              static_cast<int16_t>(position->x),
                              static_cast<int16_t>(position->y)});
    ++size_;
  }
  return std::nullopt;
}

// A section without records begins where the next one does: the last one is meant.
std::vector<EntityCache::Section>::const_iterator EntityCache::SectionOf(size_t index) const {
  return std::prev(std::upper_bound(
      sections_.begin(), sections_.end(), index,
      [](size_t wanted, const Section& section) { return wanted < section.firstIndex; }));
}

CachedEntity EntityCache::At(size_t index) const {
  const Section& section = *SectionOf(index);
  const size_t number = index - section.firstIndex;
  const Record& record = section.records[number];
  const ProgramPaths::RegionFiles& region = regions_[section.region];
  return {region.data,
          region.picture,
          section.name,
          Text(section.NameAt(number)),
          Windows1252::Decode(record.description),
          record.x,
          record.y};
}
