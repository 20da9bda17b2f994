#include "mapdata/display/Viewport.h"

#include "mapdata/display/Placement.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using EntityFile::Position;
using Twips2Pixel_Module::Screen;
using Twips2Pixel_Module::Twips;

namespace {

// The coordinate whose marker's centre is nearest to `wanted`; `centreOf` must be monotonic.
template <typename CentreOf>
int NearestCoordinate(int around, int wanted, CentreOf centreOf) {
  int best = around;
  for (const int candidate : {around - 1, around + 1})
    if (std::abs(centreOf(candidate) - wanted) < std::abs(centreOf(best) - wanted))
      best = candidate;
  return best;
}

// How far a length of the map must move to have what begins at `from` in it.
int StepInto(int from, int length, int mapLength) {
  const int over = std::max(from + length - mapLength, 0);
  return from < 0 ? -from : -std::min(over, from);
}

double Part(double before, double scale, int mapLength) {
  return mapLength > 0 ? before / (scale * mapLength) : 0;
}

}  // namespace

Viewport::Viewport(const Screen& screen, const Twips& mapSize)
    : screen_(screen), mapSize_(mapSize) {}

double Viewport::LeftPart() const {
  return Part(left_, scale_, mapSize_.x);
}

double Viewport::TopPart() const {
  return Part(top_, scale_, mapSize_.y);
}

Twips Viewport::ToView(const Position& position) const {
  const Twips onPicture =
      Twips2Pixel_Module::PointOnMap(screen_, mapSize_, position.x, position.y, scale_);
  return {onPicture.x - Twips2Pixel_Module::Round(left_),
          onPicture.y - Twips2Pixel_Module::Round(top_)};
}

Position Viewport::ToFrame(const Twips& point) const {
  if (mapSize_.x <= 0 || mapSize_.y <= 0)
    return {};
  const auto centre = [this](const Position& position) {
    const Twips corner = Placement::MarkerAt(ToView(position));
    return Twips{corner.x + Placement::MarkerSize / 2, corner.y + Placement::MarkerSize / 2};
  };
  const Twips ofOrigin = centre({0, 0});
  const auto guess = [this](int twips, int frame, int length) {
    return Twips2Pixel_Module::Round(twips * static_cast<double>(frame) / (scale_ * length));
  };
  const Position about = {guess(point.x - ofOrigin.x, Twips2Pixel_Module::FrameWidth, mapSize_.x),
                          guess(point.y - ofOrigin.y, Twips2Pixel_Module::FrameHeight, mapSize_.y)};
  return {NearestCoordinate(about.x, point.x,
                            [&](int x) {
                              return centre({x, 0}).x;
                            }),
          NearestCoordinate(about.y, point.y, [&](int y) {
            return centre({0, y}).y;
          })};
}

Viewport Viewport::ZoomedAt(const Twips& point, double factor) const {
  Viewport zoomed = *this;
  zoomed.scale_ = factor > 0 ? std::clamp(scale_ * factor, 1.0, MaximumScale) : 1;
  const double grown = zoomed.scale_ / scale_;
  zoomed.left_ = (left_ + point.x) * grown - point.x;
  zoomed.top_ = (top_ + point.y) * grown - point.y;
  zoomed.Clamp();
  return zoomed;
}

Viewport Viewport::Panned(const Twips& by) const {
  Viewport panned = *this;
  panned.left_ -= by.x;
  panned.top_ -= by.y;
  panned.Clamp();
  return panned;
}

Viewport Viewport::Resized(const Screen& screen, const Twips& mapSize) const {
  Viewport resized(screen, mapSize);
  resized.scale_ = scale_;
  const double middleX = LeftPart() + 0.5 / scale_;
  const double middleY = TopPart() + 0.5 / scale_;
  resized.left_ = middleX * scale_ * mapSize.x - mapSize.x / 2.0;
  resized.top_ = middleY * scale_ * mapSize.y - mapSize.y / 2.0;
  resized.Clamp();
  return resized;
}

Viewport Viewport::Showing(const Twips& corner, const Twips& size) const {
  return Panned({StepInto(corner.x, size.x, mapSize_.x), StepInto(corner.y, size.y, mapSize_.y)});
}

void Viewport::Clamp() {
  left_ = std::clamp(left_, 0.0, std::max(0.0, (scale_ - 1) * mapSize_.x));
  top_ = std::clamp(top_, 0.0, std::max(0.0, (scale_ - 1) * mapSize_.y));
}
