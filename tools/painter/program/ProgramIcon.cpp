#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "program/Icons.h"

namespace Program {

namespace {

constexpr QColor IconOutline(62, 42, 26);
constexpr QColor Water(96, 152, 180);
constexpr QColor Land(206, 196, 128);
constexpr QColor Woods(92, 132, 70);
constexpr QColor IconPaper(250, 238, 206);
constexpr QColor Marker(196, 36, 32);

/// Draws in sixteenths of the side; edges fall on whole pixels at every size.
class Icon {
 public:
  explicit Icon(int side)
      : image_(side, side, QImage::Format_ARGB32_Premultiplied), unit_(side / 16.0) {
    image_.fill(Qt::transparent);
  }

  [[nodiscard]] QImage paint();

 private:
  [[nodiscard]] double snapped(double sixteenths) const { return std::round(sixteenths * unit_); }

  [[nodiscard]] QPointF at(double x, double y) const { return {x * unit_, y * unit_}; }

  void drawSheet(QPainter& painter) const;
  void drawLand(QPainter& painter) const;
  void drawFolds(QPainter& painter) const;
  void drawRoute(QPainter& painter) const;
  void drawMarker(QPainter& painter) const;

  QImage image_;
  double unit_;
};

void Icon::drawSheet(QPainter& painter) const {
  const QRectF sheet(snapped(1), snapped(2), snapped(15) - snapped(1), snapped(15) - snapped(2));
  painter.setPen(Qt::NoPen);
  painter.setBrush(IconOutline);
  painter.drawRoundedRect(sheet, unit_, unit_);
  const double rim = std::max(1.0, std::round(unit_ * 0.5));
  painter.setBrush(IconPaper);
  painter.drawRect(sheet.adjusted(rim, rim, -rim, -rim));
  const double margin = rim + (unit_ < 2 ? 0 : std::round(unit_ * 0.5));
  painter.setClipRect(sheet.adjusted(margin, margin, -margin, -margin));
  painter.setBrush(Water);
  painter.drawRect(sheet);
}

void Icon::drawLand(QPainter& painter) const {
  QPainterPath coast(at(5, 1));
  coast.cubicTo(at(3.5, 4), at(6.5, 5.5), at(4.6, 8));
  coast.cubicTo(at(3, 10), at(6, 11), at(6.5, 13));
  coast.cubicTo(at(8, 14.5), at(11, 12.5), at(16, 13.6));
  coast.lineTo(at(16, 1));
  coast.closeSubpath();
  painter.setPen(unit_ < 2 ? QPen(Qt::NoPen) : QPen(IconOutline, unit_ * 0.22));
  painter.setBrush(Land);
  painter.drawPath(coast);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Woods);
  painter.drawEllipse(at(12.6, 11), 1.9 * unit_, 1.3 * unit_);
  if (unit_ >= 2) {
    painter.drawEllipse(at(6.8, 4.6), 1.1 * unit_, 0.8 * unit_);
  }
}

void Icon::drawFolds(QPainter& painter) const {
  for (const double fold : {5.6, 10.3}) {
    QLinearGradient shade(at(fold - 1.4, 0), at(fold + 1.4, 0));
    shade.setColorAt(0, QColor(40, 20, 0, 0));
    shade.setColorAt(0.5, QColor(40, 20, 0, 70));
    shade.setColorAt(0.51, QColor(255, 255, 255, 90));
    shade.setColorAt(1, QColor(255, 255, 255, 0));
    painter.fillRect(QRectF(at(fold - 1.4, 0), at(fold + 1.4, 16)), shade);
  }
}

void Icon::drawRoute(QPainter& painter) const {
  QPainterPath route(at(5.6, 12));
  route.cubicTo(at(7, 9.4), at(9.4, 13.4), at(10.4, 9.6));
  QPen dashes(IconOutline, unit_ * 0.5, Qt::CustomDashLine, Qt::RoundCap);
  dashes.setDashPattern({0.6, 1.8});
  painter.setPen(dashes);
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(route);
}

void Icon::drawMarker(QPainter& painter) const {
  const double radius = unit_ < 1.6 ? 3.4 : 3.1;
  const QPointF head(std::round(10 * unit_), std::round(4.6 * unit_));
  const QPointF tip(head.x(), std::round(11 * unit_));
  const double reach = radius * unit_;
  QPainterPath drop(tip);
  drop.cubicTo(tip - QPointF(0.5 * unit_, 2 * unit_), head + QPointF(-reach, reach * 0.9),
               head - QPointF(reach, 0));
  drop.arcTo(QRectF(head - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach)), 180, -180);
  drop.cubicTo(head + QPointF(reach, reach * 0.9), tip + QPointF(0.5 * unit_, -2 * unit_), tip);
  if (unit_ >= 2) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 20, 10, 80));
    painter.drawEllipse(tip + QPointF(0.7 * unit_, 0.2 * unit_), 2 * unit_, 0.7 * unit_);
  }
  QRadialGradient light(head - QPointF(reach, reach) * 0.4, reach * 2);
  light.setColorAt(0, Marker.lighter(150));
  light.setColorAt(1, Marker.darker(130));
  painter.setPen(QPen(QColor(96, 14, 14), std::max(1.0, unit_ * 0.3), Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.setBrush(light);
  painter.drawPath(drop);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 222, 120));
  painter.drawEllipse(head, reach * 0.42, reach * 0.42);
}

QImage Icon::paint() {
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  drawSheet(painter);
  drawLand(painter);
  if (unit_ >= 2) {
    drawFolds(painter);
    drawRoute(painter);
  }
  painter.setClipping(false);
  drawMarker(painter);
  painter.end();
  return image_;
}

}  // namespace

QImage PaintProgramIcon(int side) {
  return Icon(side).paint();
}

}  // namespace Program
