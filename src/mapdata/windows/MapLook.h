#pragma once

#include "app/Twips2Pixel_Module.h"
#include "mapdata/display/Plan.h"
#include "mapdata/display/Viewport.h"

#include <QObject>

#include <cstddef>

class MapControls;
class MapFocus;
class MapGestures;
class QPainter;
class QWidget;

/// What is seen of the map: a plan, laid out in the part of the picture that is shown. Looking
/// closer reads no data file.
class MapLook : public QObject {
  Q_OBJECT

 public:
  /// Zooms and pans as the gestures wish, and shows each marker that the walk by keys comes to.
  MapLook(QWidget& map, MapControls& controls, MapFocus& focus, MapGestures& gestures);

  /// Puts the plan on the map. Names that show on hover only are hidden.
  void Show(MapPlan plan);

  /// Shows all of the picture.
  void ShowWhole();

  /// Follows the map's size, keeping scale and middle. The plan must be shown again after it.
  void Resize();

  /// Moves the picture as far as it takes to have the marker in view; nothing if there is none.
  void BringIntoView(size_t marker);

  /// The pointer is on the marker: its name shows, and with `alone` no other.
  void Hover(int marker, bool alone);

  /// Paints what is seen with all the pixels of the picture.
  void Paint(QPainter& painter) const;

  /// Copies the position at this pixel of the map, as data files write it, and shows it there.
  void CopyPosition(const QPoint& at) const;

  [[nodiscard]] const MapPlan& Plan() const { return plan_; }

  [[nodiscard]] const Viewport& Part() const { return viewport_; }

 private:
  void Look(const Viewport& viewport);
  void ShowPart(const Viewport& viewport);
  void Arrange();
  [[nodiscard]] bool CanZoom() const;
  [[nodiscard]] Twips2Pixel_Module::Twips InTwips(const QPoint& pixels) const;
  [[nodiscard]] Twips2Pixel_Module::Twips PointToKeep() const;

  QWidget& map_;
  MapControls& controls_;
  MapFocus& focus_;
  MapPlan plan_;
  Viewport viewport_;
  // The marker whose name shows because the pointer was on it; -1 for none.
  int hovered_ = -1;
};
