#include "mapdata/world/EntityFile.h"

#include "mapdata/files/ProfileLines.h"
#include "mapdata/files/StringOps.h"
#include "platform/Windows1252.h"

#include <algorithm>

using StringOps::GetField;
using StringOps::GetSplitField;
using StringOps::LeadingNumber;
using StringOps::WholeNumber;

namespace {

constexpr std::string_view Comma = ",";
constexpr std::string_view HighlightMark = "*";
constexpr std::string_view LinkSign = "#";

std::string_view Trim(std::string_view field) {
  return ProfileLines::Strip(field, " ");
}

}  // namespace

namespace EntityFile {

bool IsDisabled(std::string_view key) {
  return key.starts_with(';');
}

bool IsHiddenFromSearch(std::string_view key) {
  return key.starts_with('*');
}

Entity Read(const ProfileFile& dataFile, std::string_view category, std::string_view key) {
  Entity entity;
  entity.value = dataFile.Read(category, key);
  entity.position = entity.value;
  entity.highlighted = Trim(GetSplitField(entity.value, 3, Comma)) == HighlightMark;
  if (Trim(GetSplitField(entity.value, 1, Comma)) == LinkSign) {
    entity.link = Trim(GetSplitField(entity.value, 2, Comma));
    entity.position = dataFile.Read(*entity.link, key);
  }
  return entity;
}

Fields ScannedFields(const Entity& entity) {
  return {GetField(entity.position, 1, Comma), GetField(entity.position, 2, Comma)};
}

Fields SplitFields(const Entity& entity) {
  return {GetSplitField(entity.position, 1, Comma), GetSplitField(entity.position, 2, Comma)};
}

Position MarkerPosition(const Entity& entity) {
  const Fields fields = ScannedFields(entity);
  return {LeadingNumber(fields.x), LeadingNumber(fields.y)};
}

std::optional<Position> PickedPosition(const Entity& entity) {
  const Fields fields = SplitFields(entity);
  const auto x = WholeNumber(fields.x);
  const auto y = WholeNumber(fields.y);
  if (!x || !y)
    return std::nullopt;
  return Position{*x, *y};
}

std::optional<Position> FoundPosition(const Entity& entity) {
  const Fields fields = ScannedFields(entity);
  if (entity.link && Trim(fields.x).empty())
    return std::nullopt;
  return Position{WholeNumber(fields.x).value_or(0), WholeNumber(fields.y).value_or(0)};
}

std::vector<Marker> ReadMarkers(const ProfileFile& dataFile, TextView category,
                                IniOps::Snapshot& files, const EntityNames& names, size_t maximum) {
  const auto section = Windows1252::Encode(category);
  if (!section)
    return {};
  auto keys = dataFile.KeyNames(*section);
  keys.resize(std::min(keys.size(), maximum));
  const auto nameFile = names.NameFile(files);
  std::vector<Marker> markers;
  markers.reserve(keys.size());
  for (const std::string_view key : keys) {
    const Entity entity = Read(dataFile, *section, key);
    Marker& marker = markers.emplace_back();
    marker.key = Windows1252::Decode(key);
    marker.name = names.Shown(nameFile, marker.key);
    marker.position = MarkerPosition(entity);
    marker.highlighted = entity.highlighted;
    marker.disabled = IsDisabled(key);
  }
  return markers;
}

std::vector<Text> ReadNames(const ProfileFile& dataFile, TextView category, IniOps::Snapshot& files,
                            const EntityNames& names) {
  const auto section = Windows1252::Encode(category);
  if (!section)
    return {};
  const auto nameFile = names.NameFile(files);
  std::vector<Text> shown;
  for (const std::string_view key : dataFile.KeyNames(*section))
    if (!IsDisabled(key))
      shown.push_back(names.Shown(nameFile, Windows1252::Decode(key)));
  return shown;
}

std::optional<Position> ReadPicked(const ProfileFile& dataFile, TextView category, TextView key) {
  const auto section = Windows1252::Encode(category);
  const auto keyBytes = Windows1252::Encode(key);
  if (!section || !keyBytes)
    return std::nullopt;
  return PickedPosition(Read(dataFile, *section, *keyBytes));
}

}  // namespace EntityFile
