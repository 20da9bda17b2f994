#pragma once

#include "app/Twips2Pixel_Module.h"
#include "mapdata/world/EntityFile.h"

/// The part of the picture that the map shows: all of it at scale 1, up to an eighth of its width
/// at scale 8. The picture always fills the map. At scale 1 every point is where the scaling
/// functions put it, to the twip.
class Viewport {
 public:
  static constexpr double MaximumScale = 8;

  Viewport() = default;

  /// All of the picture on a map of this size.
  Viewport(const Twips2Pixel_Module::Screen& screen, const Twips2Pixel_Module::Twips& mapSize);

  [[nodiscard]] double Scale() const { return scale_; }

  [[nodiscard]] const Twips2Pixel_Module::Twips& MapSize() const { return mapSize_; }

  /// The screen that the map is on.
  [[nodiscard]] const Twips2Pixel_Module::Screen& OnScreen() const { return screen_; }

  /// What lies left of and above the map, as parts of the whole picture's width and height.
  [[nodiscard]] double LeftPart() const;
  [[nodiscard]] double TopPart() const;

  /// The point of the map, in twips, for a position of the 1024 x 768 frame; it may lie outside.
  [[nodiscard]] Twips2Pixel_Module::Twips ToView(const EntityFile::Position& position) const;

  /// The position whose marker has its centre nearest to this point of the map.
  [[nodiscard]] EntityFile::Position ToFrame(const Twips2Pixel_Module::Twips& point) const;

  /// The same map at scale 1.
  [[nodiscard]] Viewport Whole() const { return {screen_, mapSize_}; }

  /// The scale multiplied by the factor, this point of the map (twips) kept in place. A factor that
  /// is no positive number leads to scale 1.
  [[nodiscard]] Viewport ZoomedAt(const Twips2Pixel_Module::Twips& point, double factor) const;

  /// The picture moved by so many twips right and down, as far as it fills the map.
  [[nodiscard]] Viewport Panned(const Twips2Pixel_Module::Twips& by) const;

  /// A map of another size, with the scale and the point in the middle of this one.
  [[nodiscard]] Viewport Resized(const Twips2Pixel_Module::Screen& screen,
                                 const Twips2Pixel_Module::Twips& mapSize) const;

  /// Panned just so far that all of this rectangle (twips) is on the map, its corner first.
  [[nodiscard]] Viewport Showing(const Twips2Pixel_Module::Twips& corner,
                                 const Twips2Pixel_Module::Twips& size) const;

  bool operator==(const Viewport&) const = default;

 private:
  void Clamp();

  Twips2Pixel_Module::Screen screen_;
  Twips2Pixel_Module::Twips mapSize_;
  double scale_ = 1;
  // The map's corner on the scaled picture, in twips.
  double left_ = 0;
  double top_ = 0;
};
