#include "mapdata/display/Placement.h"

namespace {

// The entity's point lies a little left of and above the circle's centre, as in all data files.
constexpr int PointInMarker = 65;
constexpr int LabelGap = 50;
constexpr int LabelRise = 40;
constexpr int HeadingGap = 120;

int RightOf(int markerLeft) {
  return markerLeft + Placement::MarkerSize + LabelGap;
}

int LeftOf(int markerLeft, int labelWidth) {
  return markerLeft - labelWidth - LabelGap;
}

}  // namespace

namespace Placement {

Twips2Pixel_Module::Twips MarkerAt(const Twips2Pixel_Module::Twips& point) {
  return {point.x - PointInMarker, point.y - PointInMarker};
}

int SlotLabelLeft(int slot, int markerLeft, int labelWidth, int windowWidth) {
  int left = slot % 2 == 1 ? RightOf(markerLeft) : LeftOf(markerLeft, labelWidth);
  if (left < 0)
    left = RightOf(markerLeft);
  return left + labelWidth > windowWidth ? LeftOf(markerLeft, labelWidth) : left;
}

int SingleLabelLeft(int markerLeft, int labelWidth, int windowWidth) {
  const int left = RightOf(markerLeft);
  return left + labelWidth > windowWidth ? LeftOf(markerLeft, labelWidth) : left;
}

int LabelTop(int markerTop) {
  return markerTop - LabelRise;
}

int HeadingLeft(int headingWidth, int windowWidth) {
  return windowWidth - headingWidth - HeadingGap;
}

}  // namespace Placement
