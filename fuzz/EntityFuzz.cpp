// Any bytes as an entity data file, read by all its readers; and each line as a value, a number, a
// text of the code page and a path.

#include "Fuzz.h"
#include "mapdata/display/Plan.h"
#include "mapdata/files/StringOps.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "platform/Windows1252.h"
#include "support/GermanNames.h"

#include <limits>

using Fuzz::Require;
using Fuzz::TakeField;

namespace {

bool Fits(const EntityFile::Position& position) {
  using Limits = std::numeric_limits<int16_t>;
  return position.x >= Limits::min() && position.x <= Limits::max() &&
         position.y >= Limits::min() && position.y <= Limits::max();
}

// Where the strictest reader finds a position, the others find the same.
void ReadEntity(const ProfileFile& file, std::string_view section,
                const EntityFile::Marker& marker) {
  Require(Fits(marker.position), "a marker's position fits into 16 bits");
  const auto entity = EntityFile::Read(file, section, Windows1252::Encode(marker.key).value());
  const auto found = EntityFile::FoundPosition(entity);
  Require(!found || Fits(*found), "a found position fits into 16 bits");
  Require(entity.position.empty() || file.PlaceOf(entity.position), "a value has its place");
  const auto picked = EntityFile::PickedPosition(entity);
  if (!picked)
    return;
  Require(marker.position == *picked, "list and markers agree on whole numbers");
  Require(found == picked, "list and search agree on whole numbers");
}

void ReadWholeFile(TextView file) {
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  GermanNames names;
  const ProfileFile& data = files.File(file);
  for (const ProfileFile::Section& section : data.Sections()) {
    const Text name = Windows1252::Decode(section.name);
    const auto markers = EntityFile::ReadMarkers(data, name, files, names, MapPlan::MaximumMarkers);
    Require(markers.size() <= MapPlan::MaximumMarkers, "no more markers than slots");
    Require(EntityFile::ReadNames(data, name, files, names).size() <=
                data.KeyNames(section.name).size(),
            "no more names than lines");
    for (const auto& marker : markers)
      ReadEntity(data, section.name, marker);
  }
}

void ReadLine(std::string_view line) {
  const Text text = Windows1252::Decode(line);
  Require(Windows1252::Encode(text) == line, "every byte of the code page comes back");
  Require(NativePath::ToBytes(NativePath::FromBytes(line)) == line, "every path comes back");
  const auto whole = StringOps::WholeNumber(line);
  Require(!whole || *whole == StringOps::LeadingNumber(line), "a whole number is its own start");
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
