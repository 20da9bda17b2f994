#include "mapdata/windows/MapLook.h"

#include "controls/windows/PrintableWidget.h"
#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Layout.h"
#include "mapdata/display/MarkerWalk.h"
#include "mapdata/display/Placement.h"
#include "mapdata/windows/MapArea.h"
#include "mapdata/windows/MapControls.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MapGestures.h"
#include "mapdata/windows/MarkerSlots.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QToolTip>

#include <optional>
#include <utility>
#include <vector>

using Twips2Pixel_Module::Twips;

namespace {

// Of the map's size, what a key moves the picture by.
constexpr int PartOfKey = 8;
constexpr int TipMilliseconds = 2000;

}  // namespace

MapLook::MapLook(QWidget& map, MapControls& controls, MapFocus& focus, MapGestures& gestures)
    : QObject(&map), map_(map), controls_(controls), focus_(focus) {
  connect(&focus, &MapFocus::Reached, this,
          [this](size_t number) { BringIntoView(plan_.single ? number : number - 1); });
  connect(&gestures, &MapGestures::ZoomWanted, this, [this](const QPoint& at, double factor) {
    Look(viewport_.ZoomedAt(InTwips(at), factor));
  });
  connect(&gestures, &MapGestures::KeyZoomWanted, this,
          [this](double factor) { Look(viewport_.ZoomedAt(PointToKeep(), factor)); });
  connect(&gestures, &MapGestures::PanWanted, this,
          [this](const QPoint& by) { Look(viewport_.Panned(InTwips(by))); });
  connect(&gestures, &MapGestures::KeyPanWanted, this, [this](int right, int down) {
    const Twips& size = viewport_.MapSize();
    Look(viewport_.Panned({size.x / PartOfKey * right, size.y / PartOfKey * down}));
  });
  connect(&gestures, &MapGestures::PositionWanted, this, &MapLook::CopyPosition);
}

void MapLook::Show(MapPlan plan) {
  plan_ = std::move(plan);
  hovered_ = -1;
  controls_.Fill(plan_);
  Arrange();
  focus_.Resume();
}

void MapLook::ShowWhole() {
  if (viewport_.Scale() == 1)
    return;
  ShowPart(viewport_.Whole());
  Arrange();
}

void MapLook::Resize() {
  const auto screen = WidgetTwips::ScreenOf(map_);
  ShowPart(viewport_.Resized(screen, WidgetTwips::ToTwips(screen, map_.size())));
  controls_.FitTo(map_.size(), viewport_.MapSize().x + Placement::WindowBorders);
}

void MapLook::BringIntoView(size_t marker) {
  constexpr int size = Placement::MarkerSize;
  if (marker >= plan_.markers.size())
    return;
  const auto places = Layout(plan_, viewport_, controls_.Widths(plan_)).places;
  Look(viewport_.Showing(places[marker].marker, {size, size}));
}

void MapLook::Hover(int marker, bool alone) {
  if (static_cast<size_t>(marker) >= plan_.markers.size())
    return;
  if (alone && hovered_ >= 0 && hovered_ != marker)
    controls_.slots_->Label(hovered_).hide();
  hovered_ = marker;
  controls_.slots_->Label(marker).show();
}

void MapLook::CopyPosition(const QPoint& at) const {
  if (!CanZoom())
    return;
  const auto position = viewport_.ToFrame(InTwips(at));
  const QString text = QStringLiteral("%1,%2").arg(position.x).arg(position.y);
  QGuiApplication::clipboard()->setText(text);
  QToolTip::showText(map_.mapToGlobal(at), text, &map_, {}, TipMilliseconds);
}

void MapLook::Paint(QPainter& painter) const {
  painter.setClipRect(map_.rect());
  controls_.imgMap->PaintPixels(painter);
  focus_.SetRingLeftOut(true);
  for (QObject* child : map_.children()) {
    auto* widget = qobject_cast<QWidget*>(child);
    if (widget && widget != controls_.imgMap && widget->isVisible())
      PrintableWidget::Paint(*widget, painter, widget->pos());
  }
  focus_.SetRingLeftOut(false);
}

bool MapLook::CanZoom() const {
  return !controls_.imgMap->ShowsStartPicture();
}

void MapLook::Look(const Viewport& viewport) {
  if (viewport == viewport_ || !CanZoom())
    return;
  ShowPart(viewport);
  Arrange();
}

void MapLook::ShowPart(const Viewport& viewport) {
  viewport_ = viewport;
  const double length = 1 / viewport_.Scale();
  controls_.imgMap->ShowPart({viewport_.LeftPart(), viewport_.TopPart(), length, length});
}

void MapLook::Arrange() {
  const MapLayout layout = Layout(plan_, viewport_, controls_.Widths(plan_));
  std::vector<std::optional<MarkerWalk::Point>> points(MapPlan::MaximumMarkers + 1);
  for (size_t i = 0; i < plan_.markers.size(); ++i)
    if (plan_.markers[i].shown)
      points[plan_.single ? i : i + 1] = {layout.places[i].marker.x, layout.places[i].marker.y};
  focus_.SetPoints(std::move(points));
  controls_.Place(plan_, layout, hovered_);
}

Twips MapLook::InTwips(const QPoint& pixels) const {
  return WidgetTwips::ToTwips(WidgetTwips::ScreenOf(map_), {pixels.x(), pixels.y()});
}

// What the keyboard is on, so that it stays in view.
Twips MapLook::PointToKeep() const {
  const ctlLocation* const focused = focus_.Current();
  return InTwips(focused ? focused->geometry().center() : map_.rect().center());
}
