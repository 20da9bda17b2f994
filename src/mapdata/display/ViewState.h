#pragma once

#include "platform/Text.h"

/// What the map shows, kept so that it can be drawn again at another size. Empty while only the
/// start-up picture is there.
struct ViewState {
  /// Path of the picture with markers; empty for a single entity.
  Text MapPicture;
  /// Path of the entity data file.
  Text DataFile;
  /// Section of the data file.
  Text CategoryKey;
  /// Heading of the markers, "&" signs included.
  Text Heading;
  /// Names are shown only while the pointer is on their marker.
  bool LabelsOnHover = false;
  /// Name, as shown, of the single entity; empty while markers are shown.
  Text SelectedEntity;
};
