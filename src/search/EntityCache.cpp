#include "search/EntityCache.h"

#include "i18n/LOCAL.h"
#include "mapdata/EntityFile.h"
#include "mapdata/InfoFile.h"
#include "platform/Windows1252.h"

namespace {

bool IsBlank(std::string_view name) {
  return name.find_first_not_of(' ') == std::string_view::npos;
}

Text WithoutBrackets(std::string_view section) {
  Text name = Windows1252::Decode(section);
  std::erase_if(name, [](char16_t unit) { return unit == u'[' || unit == u']'; });
  return name;
}

}  // namespace

std::optional<InvalidLink> EntityCache::CacheEntities(IniOps::Snapshot& files,
                                                      LOCAL::Language& language,
                                                      const ProgramPaths::Region& region) {
  regions_.push_back(region);
  auto info = files.Shared(language.InfoFile());
  const ProfileFile& data = files.File(region.data);
  if (infoFiles_.empty() || infoFiles_.back() != info)
    infoFiles_.push_back(info);
  for (const std::string_view section : data.SectionNames()) {
    if (IsBlank(section))
      continue;
    if (auto invalid = CacheSection(files, language, *info, data, section))
      return invalid;
  }
  return std::nullopt;
}

std::optional<InvalidLink> EntityCache::CacheSection(IniOps::Snapshot& files,
                                                     LOCAL::Language& language,
                                                     const ProfileFile& info,
                                                     const ProfileFile& data,
                                                     std::string_view section) {
  places_.push_back({regions_.size() - 1, WithoutBrackets(section)});
  for (const std::string_view keyBytes : data.KeyNames(section)) {
    const Text key = Windows1252::Decode(keyBytes);
    if (EntityFile::IsDisabled(key) || EntityFile::IsHiddenFromSearch(key))
      continue;
    const EntityFile::Found found = EntityFile::ReadFound(data, section, keyBytes);
    if (found.invalidLink)
      return InvalidLink{regions_.back().data, places_.back().section, key, found.target};
    records_.push_back({names_.size(), InfoFile::ReadRedirectedBytes(info, keyBytes),
                        static_cast<uint32_t>(places_.size() - 1),
                        static_cast<int16_t>(found.position.x),
                        static_cast<int16_t>(found.position.y)});
    names_.append(language.IsGerman() ? key : language.LocalizeEntityName(files, key));
  }
  return std::nullopt;
}

void EntityCache::ShrinkToFit() {
  records_.shrink_to_fit();
  places_.shrink_to_fit();
  names_.shrink_to_fit();
}

TextView EntityCache::NameAt(size_t index) const {
  const size_t start = records_[index].nameStart;
  const size_t end = index + 1 < records_.size() ? records_[index + 1].nameStart : names_.size();
  return TextView(names_).substr(start, end - start);
}

CachedEntity EntityCache::At(size_t index) const {
  const Record& record = records_[index];
  const Place& place = places_[record.place];
  const ProgramPaths::Region& region = regions_[place.region];
  return {region.data,
          region.picture,
          place.section,
          Text(NameAt(index)),
          Windows1252::Decode(record.description),
          record.x,
          record.y};
}
