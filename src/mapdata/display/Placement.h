#pragma once

#include "app/Twips2Pixel_Module.h"

/// Where markers and their names stand on the map. All lengths are twips. "Window width" is the
/// width that the right-edge rules speak of: that of the map and its `WindowBorders`.
namespace Placement {

/// A marker is a circle of this diameter, whatever the scale of the map.
inline constexpr int MarkerSize = 160;

/// What the rules take as the window's width is the map's width and this much more.
inline constexpr int WindowBorders = 90;

/// Left and top edge of the marker for an entity at this point of the map.
[[nodiscard]] Twips2Pixel_Module::Twips MarkerAt(const Twips2Pixel_Module::Twips& point);

/// Left edge of the name of marker number `slot`: right of the marker for an odd slot, left of it
/// for an even one, on the other side where it would leave the map.
[[nodiscard]] int SlotLabelLeft(int slot, int markerLeft, int labelWidth, int windowWidth);

/// Left edge of the name of a single entity: right of its marker, left of it where it would pass
/// the right edge, and then also beyond the left one.
[[nodiscard]] int SingleLabelLeft(int markerLeft, int labelWidth, int windowWidth);

/// Top edge of a name beside a marker.
[[nodiscard]] int LabelTop(int markerTop);

/// Left edge of the heading in the right corner.
[[nodiscard]] int HeadingLeft(int headingWidth, int windowWidth);

}  // namespace Placement
