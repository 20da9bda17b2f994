#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityNames.h"
#include "platform/Text.h"

#include <optional>
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

/// One line of a category as the map's markers show it.
struct Marker {
  Text key;
  Text name;
  Position position;
  bool highlighted = false;
  bool disabled = false;
};

/// What the search takes from a value. `invalidLink` is set, and `target` names the section, if
/// the value is a link to a line without a position.
struct Found {
  Position position;
  bool invalidLink = false;
  Text target;
};

/// A key that begins with ";" is never shown.
[[nodiscard]] bool IsDisabled(TextView key);

/// A key that begins with "*" is shown but never found by the search.
[[nodiscard]] bool IsHiddenFromSearch(TextView key);

/// Whether the value is a link to another section.
[[nodiscard]] bool IsLink(TextView value);

/// The section that a link names; "" if it names none.
[[nodiscard]] TextView LinkTarget(TextView value);

/// Every line of the category in file order, disabled ones included, with the leading numbers of
/// the first and second field as position: a field that is none counts 0, and a single field
/// counts for both. At most `most` lines.
[[nodiscard]] std::vector<Marker> ReadMarkers(IniOps::Snapshot& files, TextView dataFile,
                                              TextView category, EntityNames& names, size_t most);

/// The names to show for all keys of the category that are not disabled, in file order.
[[nodiscard]] std::vector<Text> ReadNames(IniOps::Snapshot& files, TextView dataFile,
                                          TextView category, EntityNames& names);

/// The position of one entity picked from the list; none if one of the two fields is no number.
[[nodiscard]] std::optional<Position> ReadPicked(IniOps::Snapshot& files, TextView dataFile,
                                                 TextView category, TextView key);

/// The position of one entity for the search, which asks for all of a file by its bytes; a field
/// that is no number counts 0.
[[nodiscard]] Found ReadFound(const ProfileFile& dataFile, std::string_view category,
                              std::string_view key);

}  // namespace EntityFile
