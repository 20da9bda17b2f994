#include "mapdata/display/Layout.h"

#include "mapdata/display/Placement.h"

using Twips2Pixel_Module::Screen;
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

int OnPixel(int twips, double perPixel) {
  return Twips2Pixel_Module::Round(Twips2Pixel_Module::Round(twips / perPixel) * perPixel);
}

Twips OnPixel(const Twips& point, const Screen& screen) {
  return {OnPixel(point.x, screen.twipsPerPixelX), OnPixel(point.y, screen.twipsPerPixelY)};
}

// A closer view moves marker and name by the same whole pixels, or panning would have them tremble
// against one another.
Twips BesideMoved(const Twips& corner, const Twips& atWhole, const Twips& caption,
                  const Screen& screen) {
  const Twips to = OnPixel(corner, screen);
  const Twips from = OnPixel(atWhole, screen);
  const Twips moved = OnPixel(caption, screen);
  return {moved.x + to.x - from.x, moved.y + to.y - from.y};
}

}  // namespace

MapLayout Layout(const MapPlan& plan, const Viewport& viewport, const TextWidths& widths) {
  const Viewport whole = viewport.Whole();
  const int windowWidth = viewport.MapSize().x + Placement::WindowBorders;
  MapLayout layout;
  layout.headingLeft = Placement::HeadingLeft(widths.heading, windowWidth);
  layout.places.reserve(plan.markers.size());
  for (size_t i = 0; i < plan.markers.size(); ++i) {
    const Twips atWhole = CornerOf(plan.markers[i], whole);
    const int width = widths.captions[i];
    const int label =
        plan.single ? Placement::SingleLabelLeft(atWhole.x, width, windowWidth)
                    : Placement::SlotLabelLeft(static_cast<int>(i), atWhole.x, width, windowWidth);
    const Twips corner = CornerOf(plan.markers[i], viewport);
    const Twips caption = {label, Placement::LabelTop(atWhole.y)};
    layout.places.push_back({corner,
                             viewport.Scale() == 1
                                 ? caption
                                 : BesideMoved(corner, atWhole, caption, viewport.OnScreen()),
                             IsInView(corner, viewport)});
  }
  return layout;
}
