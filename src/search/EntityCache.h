#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/files/ProfileFile.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Text.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace LOCAL {
class Language;
}

/// One entity of the search, as it was when the cache was filled.
struct CachedEntity {
  /// Path of the entity data file.
  Text Database;
  /// Path of the region's picture.
  Text Map;
  /// Name of the section that the entity stands in, without brackets.
  Text Section;
  /// The name as it is shown.
  Text Name;
  /// The description, "\n" in it as it stands; "" if there is none.
  Text Description;
  /// The position in the 1024 x 768 frame of the picture.
  int X = 0;
  int Y = 0;
};

/// A link to a section that holds no position for its key.
struct InvalidLink {
  Text Database;
  Text Section;
  Text Key;
  Text Target;
};

/// The entities of all regions in the order of regions, sections and lines. Filled once and never
/// changed, whatever becomes of the files and the language. Made for hundreds of thousands of
/// records: paths and sections are kept once, the names of a section in one text, and descriptions
/// are views into the information file, which the cache keeps.
class EntityCache {
 public:
  /// How many records there are.
  [[nodiscard]] size_t Size() const { return size_; }

  /// Appends the entities of one region that the search may find. Stops at the first invalid link
  /// and gives it back.
  [[nodiscard]] std::optional<InvalidLink> CacheEntities(IniOps::Snapshot& files,
                                                         const LOCAL::Language& language,
                                                         const ProgramPaths::RegionFiles& region);

  /// The record of this index, which must be below `Size`.
  [[nodiscard]] CachedEntity At(size_t index) const;

  /// The index of the first record from `from` on for whose name and description, this one in
  /// Windows-1252, `matches` holds; none if it holds for none.
  template <typename Matches>
  [[nodiscard]] std::optional<size_t> Find(size_t from, Matches matches) const;

 private:
  struct Record {
    std::string_view description;
    size_t nameEnd;
    int16_t x;
    int16_t y;
  };

  struct Section {
    size_t region;
    Text name;
    size_t firstIndex;
    Text names;
    std::vector<Record> records;

    [[nodiscard]] TextView NameAt(size_t number) const {
      const size_t start = number == 0 ? 0 : records[number - 1].nameEnd;
      return TextView(names).substr(start, records[number].nameEnd - start);
    }
  };

  std::optional<InvalidLink> CacheSection(IniOps::Snapshot& files, const LOCAL::Language& language,
                                          const ProfileFile& info, const ProfileFile& data,
                                          std::string_view section);
  [[nodiscard]] std::vector<Section>::const_iterator SectionOf(size_t index) const;

  std::vector<ProgramPaths::RegionFiles> regions_;
  std::vector<Section> sections_;
  size_t size_ = 0;
  std::vector<std::shared_ptr<const ProfileFile>> infoFiles_;
};

template <typename Matches>
std::optional<size_t> EntityCache::Find(size_t from, Matches matches) const {
  if (from >= size_)
    return std::nullopt;
  auto section = SectionOf(from);
  for (size_t number = from - section->firstIndex; section != sections_.end();
       ++section, number = 0)
    for (; number < section->records.size(); ++number)
      if (matches(section->NameAt(number), section->records[number].description))
        return section->firstIndex + number;
  return std::nullopt;
}
