#include "mapdata/display/Layout.h"

#include "mapdata/display/Placement.h"

using Twips2Pixel_Module::Twips;

namespace {

Twips CornerOf(const MapPlan::Marker& marker, const Viewport& viewport) {
  const Twips point = viewport.ToView(marker.position);
  return marker.atPosition ? point : Placement::MarkerAt(point);
}

// At scale 1 also a marker beyond the map counts, as a data file may have it.
bool IsInView(const Twips& corner, const Viewport& viewport) {
  const auto reaches = [](int from, int length) {
    return from + Placement::MarkerSize > 0 && from < length;
  };
  return viewport.Scale() == 1 ||
         (reaches(corner.x, viewport.MapSize().x) && reaches(corner.y, viewport.MapSize().y));
}

}  // namespace

MapLayout Layout(const MapPlan& plan, const Viewport& viewport, const TextWidths& widths) {
  const Viewport whole = viewport.Whole();
  const int windowWidth = viewport.MapSize().x + Placement::WindowBorders;
  MapLayout layout;
  layout.headingLeft = Placement::HeadingLeft(widths.heading, windowWidth);
  layout.places.reserve(plan.markers.size());
  for (size_t i = 0; i < plan.markers.size(); ++i) {
    const int left = CornerOf(plan.markers[i], whole).x;
    const int width = widths.captions[i];
    const int label = plan.single
                          ? Placement::SingleLabelLeft(left, width, windowWidth)
                          : Placement::SlotLabelLeft(static_cast<int>(i), left, width, windowWidth);
    const Twips corner = CornerOf(plan.markers[i], viewport);
    layout.places.push_back({corner,
                             {corner.x + label - left, Placement::LabelTop(corner.y)},
                             IsInView(corner, viewport)});
  }
  return layout;
}
