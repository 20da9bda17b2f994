#include "mapdata/world/EntityFile.h"

#include "mapdata/files/StringOps.h"
#include "platform/Windows1252.h"

#include <algorithm>

using IniOps::Snapshot;
using StringOps::GetField;
using StringOps::GetSplitField;
using Texts::Trim;

namespace {

constexpr TextView Comma = u",";
constexpr TextView Mark = u"*";
constexpr TextView LinkSign = u"#";

// The value that holds the position: the entity's own, or the one that its link leads to.
Text PositionValue(Snapshot& files, TextView dataFile, TextView key, Text value) {
  return EntityFile::IsLink(value) ? files.IniRead(dataFile, EntityFile::LinkTarget(value), key, u"") : std::move(value);
}

EntityFile::Marker ReadMarker(Snapshot& files, TextView dataFile, TextView category,
                              EntityNames& names, const Text& key) {
  const Text own = files.IniRead(dataFile, category, key, u"");
  const Text value = PositionValue(files, dataFile, key, own);
  return {key,
          names.Shown(files, key),
          {StringOps::LeadingNumber(GetField(value, 1, Comma)),
           StringOps::LeadingNumber(GetField(value, 2, Comma))},
          Trim(GetSplitField(own, 3, Comma)) == Mark,
          EntityFile::IsDisabled(key)};
}

}  // namespace

namespace EntityFile {

bool IsDisabled(TextView key) {
  return key.starts_with(u';');
}

bool IsHiddenFromSearch(TextView key) {
  return key.starts_with(u'*');
}

bool IsLink(TextView value) {
  return Trim(GetSplitField(value, 1, Comma)) == LinkSign;
}

TextView LinkTarget(TextView value) {
  return Trim(GetSplitField(value, 2, Comma));
}

std::vector<Marker> ReadMarkers(Snapshot& files, TextView dataFile, TextView category,
                                EntityNames& names, size_t most) {
  auto keys = files.IniReadFile(dataFile, category);
  keys.resize(std::min(keys.size(), most));
  std::vector<Marker> markers;
  markers.reserve(keys.size());
  for (const Text& key : keys)
    markers.push_back(ReadMarker(files, dataFile, category, names, key));
  return markers;
}

std::vector<Text> ReadNames(Snapshot& files, TextView dataFile, TextView category,
                            EntityNames& names) {
  std::vector<Text> shown;
  for (const Text& key : files.IniReadFile(dataFile, category))
    if (!IsDisabled(key))
      shown.push_back(names.Shown(files, key));
  return shown;
}

std::optional<Position> ReadPicked(Snapshot& files, TextView dataFile, TextView category,
                                   TextView key) {
  const Text value =
      PositionValue(files, dataFile, key, files.IniRead(dataFile, category, key, u""));
  const auto x = StringOps::WholeNumber(GetSplitField(value, 1, Comma));
  const auto y = StringOps::WholeNumber(GetSplitField(value, 2, Comma));
  if (!x || !y)
    return std::nullopt;
  return Position{*x, *y};
}

Found ReadFound(const ProfileFile& dataFile, std::string_view category, std::string_view key) {
  const auto read = [&dataFile, key](std::string_view section) {
    return Windows1252::Decode(dataFile.Read(section, key));
  };
  Text value = read(category);
  if (IsLink(value)) {
    Text target(LinkTarget(value));
    value = read(Windows1252::Encode(target).value_or(std::string()));
    if (Trim(GetField(value, 1, Comma)).empty())
      return {{}, true, std::move(target)};
  }
  return {{StringOps::WholeNumber(GetField(value, 1, Comma)).value_or(0),
           StringOps::WholeNumber(GetField(value, 2, Comma)).value_or(0)},
          false,
          {}};
}

}  // namespace EntityFile
