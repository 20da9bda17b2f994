#pragma once

#include "mapdata/world/ProgramPaths.h"
#include "support/TemporaryFolder.h"

#include <random>
#include <string>
#include <vector>

/// How large a world is to be.
struct WorldSize {
  /// Lines of all five entity data files; a fifth of them are links.
  size_t records = 0;
  /// Lines of the information file; a tenth of them redirect to another.
  size_t descriptions = 0;
  /// Characters of a description.
  size_t descriptionLength = 0;
  /// Entity names that the language "English" translates.
  size_t languageKeys = 0;
};

/// A program folder with five entity data files of sections with 80 lines, descriptions and a
/// language, the same at every run; gone with its object.
class GeneratedWorld {
 public:
  explicit GeneratedWorld(const WorldSize& size);

  /// Bytes of the data files and the information file.
  [[nodiscard]] size_t Bytes() const { return bytes_; }

  [[nodiscard]] Text Folder() const { return folder_.Folder(); }

  [[nodiscard]] const ProgramPaths& Paths() const { return paths_; }

 private:
  std::string NewName();
  std::string RegionOf(size_t records);
  std::string Descriptions(const WorldSize& size);
  std::string Language(const WorldSize& size);
  void Write(const std::string& name, const std::string& bytes);

  std::mt19937 random_{6};
  TemporaryFolder folder_;
  ProgramPaths paths_{folder_.Folder(), ProfileFile({})};
  std::vector<std::string> names_;
  size_t bytes_ = 0;
};

/// The world that the search is measured with; generated at the first call.
[[nodiscard]] const GeneratedWorld& MeasuredWorld();

/// A world of that many records, half as many short descriptions and no language, for measurements
/// of growth; generated at the first call.
[[nodiscard]] const GeneratedWorld& WorldOf(size_t records);
