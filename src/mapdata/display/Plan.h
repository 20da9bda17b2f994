#pragma once

#include "mapdata/display/ViewState.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/EntityNames.h"
#include "platform/Text.h"

#include <vector>

/// What is to be seen on the map, in positions of the 1024 x 768 frame, whatever the sizes of
/// window and picture.
struct MapPlan {
  /// More entities of a category than this are not shown.
  static constexpr size_t MaximumMarkers = 81;

  struct Marker {
    EntityFile::Position position;
    /// The entity's name, and what its label says: the name between blanks.
    Text name;
    Text caption;
    bool highlighted = false;
    /// A disabled entity takes its number and is not shown.
    bool shown = true;
    /// The label is there without the pointer on the marker.
    bool captionShown = true;
    /// The marker's corner stands at the position; else it is put a little before it.
    bool atPosition = false;
  };

  /// The one marker is that of a pick from the list or of a hit.
  bool single = false;
  std::vector<Marker> markers;
  /// As it is shown; "" without one.
  Text heading;
};

/// The plan for a state of the map. Each file is looked at once.
[[nodiscard]] MapPlan Plan(const ViewState& view, const EntityNames& names,
                           IniOps::Snapshot& files);
