#pragma once

#include "mapdata/world/EntityFile.h"
#include "platform/Text.h"

#include <optional>

/// What the map shows, kept to be planned again at another size or from edited files.
struct ViewState {
  enum class Kind {
    /// The start-up picture alone.
    Nothing,
    /// The list of a category, with or without an entity picked.
    List,
    /// All entities of a category.
    Markers,
    /// One entity that was searched for; the list is hidden and keeps its rows.
    Hit,
  };

  /// What only the display of a hit knows, until a resize takes the hit for a pick.
  struct Found {
    /// Where the search's record says that the entity is.
    EntityFile::Position at;
    /// The row of the hidden list that bears its name; "" if none does.
    Text row;
  };

  Kind kind = Kind::Nothing;
  /// Path of the picture with markers; empty for a single entity.
  Text MapPicture = {};
  Text DataFile = {};
  Text CategoryKey = {};
  /// Heading of the markers, "&" signs included, or of a hit as it is shown.
  Text Heading = {};
  /// Names are shown only while the pointer is on their marker.
  bool LabelsOnHover = false;
  /// Name, as shown, of the single entity; empty while none is.
  Text SelectedEntity = {};
  std::optional<Found> found = {};
};
