#pragma once

#include "app/Twips2Pixel_Module.h"
#include "mapdata/display/Plan.h"
#include "mapdata/display/Viewport.h"

#include <vector>

/// How wide the texts on the map are, in twips: each marker's caption, and the heading.
struct TextWidths {
  std::vector<int> captions;
  int heading = 0;
};

/// Where everything of a plan stands, in twips of the map.
struct MapLayout {
  struct Place {
    Twips2Pixel_Module::Twips marker;
    Twips2Pixel_Module::Twips caption;
    /// False where a closer view leaves the marker outside of the map; its name goes with it.
    bool inView = true;
  };

  /// One for each marker of the plan.
  std::vector<Place> places;
  int headingLeft = 0;
};

/// Places the plan. A name stands beside its marker as at scale 1, on the same side and to the
/// pixel, so that nothing jumps while the view moves. `widths` has a caption for each marker.
[[nodiscard]] MapLayout Layout(const MapPlan& plan, const Viewport& viewport,
                               const TextWidths& widths);
