#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "terrain/Grid.h"

namespace WorldData {

/// A named position in the 1024 x 768 frame.
struct Place {
  QString name;
  Terrain::Point at;
};

/// One of the world's own files, read once: sections of keys and values in file order.
class DataFile {
 public:
  /// A file that cannot be read has no sections.
  explicit DataFile(const std::filesystem::path& path);

  /// The section's places in file order, links followed, disabled ones (";") left out and the
  /// mark of hidden ones ("*") taken off the name. Entries without a position are left out.
  [[nodiscard]] std::vector<Place> places(std::string_view section) const;

  /// The places of all sections.
  [[nodiscard]] std::vector<Place> allPlaces() const;

  /// All values of all sections, in file order.
  [[nodiscard]] std::vector<std::string> values() const;

 private:
  using Entry = std::pair<std::string, std::string>;

  struct Section {
    std::string name;
    std::vector<Entry> entries;
  };

  [[nodiscard]] const Section* find(std::string_view name) const;
  void append(std::vector<Place>& places, const Section& section) const;

  std::vector<Section> sections_;
};

}  // namespace WorldData
