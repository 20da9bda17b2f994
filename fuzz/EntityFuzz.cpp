// Any bytes as an entity data file, read by all its readers; and each line as a value, a number, a
// text of the code page and a path.

#include "Fuzz.h"
#include "mapdata/files/StringOps.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "platform/Windows1252.h"
#include "support/GermanNames.h"

#include <limits>

using Fuzz::Require;
using Fuzz::TakeField;

namespace {

constexpr size_t MostMarkers = 81;

bool Fits(const EntityFile::Position& position) {
  using Limits = std::numeric_limits<int16_t>;
  return position.x >= Limits::min() && position.x <= Limits::max() &&
         position.y >= Limits::min() && position.y <= Limits::max();
}

// Where the strictest reader finds a position, the others find the same.
void ReadEntity(IniOps::Snapshot& files, TextView file, TextView section,
                const EntityFile::Marker& marker) {
  Require(Fits(marker.position), "a marker's position fits into 16 bits");
  const auto found = EntityFile::ReadFound(files.File(file), Windows1252::Encode(section).value(),
                                           Windows1252::Encode(marker.key).value());
  Require(Fits(found.position), "a found position fits into 16 bits");
  const auto picked = EntityFile::ReadPicked(files, file, section, marker.key);
  if (!picked)
    return;
  Require(marker.position == *picked, "list and markers agree on whole numbers");
  Require(found.position == *picked, "list and search agree on whole numbers");
}

void ReadWholeFile(TextView file) {
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  GermanNames names;
  for (const Text& section : files.IniSectionNames(file)) {
    const auto markers = EntityFile::ReadMarkers(files, file, section, names, MostMarkers);
    Require(markers.size() <= MostMarkers, "no more markers than slots");
    Require(EntityFile::ReadNames(files, file, section, names).size() <=
                files.IniReadFile(file, section).size(),
            "no more names than lines");
    for (const auto& marker : markers)
      ReadEntity(files, file, section, marker);
  }
}

void ReadLine(std::string_view line) {
  const Text text = Windows1252::Decode(line);
  Require(Windows1252::Encode(text) == line, "every byte of the code page comes back");
  Require(NativePath::ToBytes(NativePath::FromBytes(line)) == line, "every path comes back");
  const auto whole = StringOps::WholeNumber(text);
  Require(!whole || *whole == StringOps::LeadingNumber(text), "a whole number is its own start");
  Text joined;
  for (int n = 1; joined.size() < text.size() + 1; ++n)
    joined.append(StringOps::GetSplitField(text, n, u",")).append(u",");
  Require(joined == text + u",", "the fields put together are the text");
  const Text tip = InfoFile::TooltipOf(text);
  Require(tip.size() <= 83, "a tooltip is cut");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  static const Fuzz::InputFile file;
  std::string_view input(reinterpret_cast<const char*>(data), size);
  file.Hold(input);
  ReadWholeFile(file.Path());
  while (!input.empty())
    ReadLine(TakeField(input));
  return 0;
}
