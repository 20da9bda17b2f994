#pragma once

#include "mapdata/IniOps.h"
#include "mapdata/ProgramPaths.h"
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

/// The entities of all regions in the order of regions, sections and lines, each line one record.
/// Filled once and never changed, whatever becomes of the files and the language.
///
/// Made for hundreds of thousands of records: paths and sections stand once, names in one text,
/// and a description is a view into the information file, which the cache keeps.
class EntityCache {
 public:
  [[nodiscard]] size_t Size() const { return records_.size(); }

  /// Appends the entities of one region that the search may find. Stops at the first invalid link
  /// and gives it back.
  [[nodiscard]] std::optional<InvalidLink> CacheEntities(IniOps::Snapshot& files,
                                                         LOCAL::Language& language,
                                                         const ProgramPaths::Region& region);

  /// Gives back memory that was taken in advance for further records.
  void ShrinkToFit();

  [[nodiscard]] CachedEntity At(size_t index) const;

  /// The name of a record; valid until the next record is added.
  [[nodiscard]] TextView NameAt(size_t index) const;

  /// The description of a record in Windows-1252.
  [[nodiscard]] std::string_view DescriptionAt(size_t index) const {
    return records_[index].description;
  }

 private:
  struct Place {
    size_t region;
    Text section;
  };

  struct Record {
    size_t nameStart;
    std::string_view description;
    uint32_t place;
    int16_t x;
    int16_t y;
  };

  std::optional<InvalidLink> CacheSection(IniOps::Snapshot& files, LOCAL::Language& language,
                                          const ProfileFile& info, const ProfileFile& data,
                                          std::string_view section);

  std::vector<ProgramPaths::Region> regions_;
  std::vector<Place> places_;
  std::vector<Record> records_;
  Text names_;
  std::vector<std::shared_ptr<const ProfileFile>> infoFiles_;
};
