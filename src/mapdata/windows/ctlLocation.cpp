#include "mapdata/windows/ctlLocation.h"

#include "controls/windows/EventCodes.h"
#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Placement.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPen>

namespace {

// Outlines in twips. A highlighted marker differs by more than its colour.
constexpr int OutlineWidth = 20;
constexpr int HighlightedOutlineWidth = 40;

QSize MarkerSize(const QWidget& widget) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  return {WidgetTwips::ToPixelsX(screen, Placement::MarkerSize),
          WidgetTwips::ToPixelsY(screen, Placement::MarkerSize)};
}

}  // namespace

ctlLocation::ctlLocation(QWidget* parent) : QWidget(parent) {
  setFixedSize(MarkerSize(*this));
  setMouseTracking(true);
}

void ctlLocation::SetDesc(const QString& desc) {
  setToolTip(desc);
  setAccessibleName(desc);
}

void ctlLocation::SetBorderColor(int color) {
  borderColor_ = color;
  update();
}

void ctlLocation::SetBackColor(int color) {
  backColor_ = color;
  update();
}

void ctlLocation::SetHighlighted(bool highlighted) {
  highlighted_ = highlighted;
  update();
}

void ctlLocation::Hover() {
  constexpr float centre = Placement::MarkerSize / 2.0F;
  Q_EMIT MouseMove(0, 0, centre, centre);
}

void ctlLocation::mouseMoveEvent(QMouseEvent* event) {
  const auto position = EventCodes::PositionOf(*this, *event);
  Q_EMIT MouseMove(EventCodes::Button(*event), EventCodes::Shift(*event), position.x, position.y);
}

void ctlLocation::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    Q_EMIT DblClick();
}

void ctlLocation::paintEvent(QPaintEvent*) {
  const double twipsPerPixel = WidgetTwips::ScreenOf(*this).twipsPerPixelX;
  const int outline = highlighted_ ? HighlightedOutlineWidth : OutlineWidth;
  const double width = outline / twipsPerPixel;
  const double diameter = Placement::MarkerSize / twipsPerPixel - width;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(WidgetTwips::Color(borderColor_), width));
  painter.setBrush(WidgetTwips::Color(backColor_));
  painter.drawEllipse(QRectF(width / 2, width / 2, diameter, diameter));
}
