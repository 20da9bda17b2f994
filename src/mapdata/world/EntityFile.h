#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/files/ProfileFile.h"
#include "mapdata/world/EntityNames.h"
#include "platform/Text.h"

#include <optional>
#include <string_view>
#include <vector>

/// Entity data files: a section a category, a line an entity: its German name as the key, and as
/// value either "X,Y" in the 1024 x 768 frame or a link "#,section" to the section that holds the
/// position of the same key; a third field "*" highlights. A link is followed one step only.
///
/// Three readers turn the same value into a position, and differ where it is malformed: markers
/// take what they can get, the list takes whole numbers only, the search takes 0.
namespace EntityFile {

/// A position in the 1024 x 768 frame of the picture.
struct Position {
  int x = 0;
  int y = 0;
  bool operator==(const Position&) const = default;
};

/// The value of one entity, as views into its file.
struct Entity {
  /// "" if the entity is not in the category.
  std::string_view value;
  /// The section that the value links to.
  std::optional<std::string_view> link;
  /// The value that holds the position: the entity's own, or the one that the link leads to.
  std::string_view position;
  bool highlighted = false;
};

/// The two fields of a position.
struct Fields {
  std::string_view x;
  std::string_view y;
};

/// One line of a category as the map's markers show it.
struct Marker {
  Text key;
  Text name;
  Position position;
  bool highlighted = false;
  bool disabled = false;
};

/// A key that begins with ";" is never shown.
[[nodiscard]] bool IsDisabled(std::string_view key);

/// A key that begins with "*" is shown but never found by the search.
[[nodiscard]] bool IsHiddenFromSearch(std::string_view key);

/// The entity of that key, in Windows-1252 like the category.
[[nodiscard]] Entity Read(const ProfileFile& dataFile, std::string_view category,
                          std::string_view key);

/// The fields as markers and search take them: a single field counts for both.
[[nodiscard]] Fields ScannedFields(const Entity& entity);

/// The fields as the list takes them.
[[nodiscard]] Fields SplitFields(const Entity& entity);

/// Where the markers show the entity: the leading numbers of the scanned fields, 0 without one.
[[nodiscard]] Position MarkerPosition(const Entity& entity);

/// Where the list shows it; none if one of the split fields is no whole number.
[[nodiscard]] std::optional<Position> PickedPosition(const Entity& entity);

/// Where the search shows it: a scanned field that is no whole number is 0. None if the value is a
/// link to a line without a position.
[[nodiscard]] std::optional<Position> FoundPosition(const Entity& entity);

/// Every line of the category in file order, disabled ones included, at most `maximum`.
[[nodiscard]] std::vector<Marker> ReadMarkers(const ProfileFile& dataFile, TextView category,
                                              IniOps::Snapshot& files, const EntityNames& names,
                                              size_t maximum);

/// The names to show for all keys of the category that are not disabled, in file order.
[[nodiscard]] std::vector<Text> ReadNames(const ProfileFile& dataFile, TextView category,
                                          IniOps::Snapshot& files, const EntityNames& names);

/// The position of one entity picked from the list; see `PickedPosition`.
[[nodiscard]] std::optional<Position> ReadPicked(const ProfileFile& dataFile, TextView category,
                                                 TextView key);

}  // namespace EntityFile
