#include "map/Lettering.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <array>

namespace Map {

namespace {

constexpr double EdgeMargin = 30;

double Area(const QRectF& rect) {
  return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

// Where a box of that size may stand beside a place, best side first.
std::array<QPointF, 8> Sides(QPointF at, QSizeF box, double gap) {
  const double left = at.x() - gap - box.width();
  const double right = at.x() + gap;
  const double centred = at.x() - box.width() / 2;
  const double middle = at.y() - box.height() / 2;
  const double above = at.y() - gap - box.height();
  const double below = at.y() + gap;
  return {QPointF(right, middle),  QPointF(left, middle), QPointF(centred, below),
          QPointF(centred, above), QPointF(right, above), QPointF(right, below),
          QPointF(left, above),    QPointF(left, below)};
}

}  // namespace

QFont MapFont(double pixels, bool bold, bool italic) {
  QFont font;
  font.setFamilies({QStringLiteral("P052"), QStringLiteral("Liberation Serif")});
  font.setPixelSize(static_cast<int>(pixels));
  font.setBold(bold);
  font.setItalic(italic);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

void DrawHaloed(QPainter& painter, const RegionStyle& style, const QString& text, const QFont& font,
                QPointF at) {
  QPainterPath path;
  path.addText(at, font, text);
  painter.setBrush(Qt::NoBrush);
  // Large titles need no wider halo than names.
  const double size = std::min(font.pixelSize(), 44);
  painter.setPen(
      QPen(style.paper.color(130), size * 0.32, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  painter.setPen(
      QPen(style.paper.color(235), size * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color());
  painter.drawPath(path);
}

double Lettering::covered(const QRectF& area) const {
  const QRectF inside =
      QRectF(QPointF(0, 0), picture_).adjusted(EdgeMargin, EdgeMargin, -EdgeMargin, -EdgeMargin);
  double sum = (Area(area) - Area(area & inside)) * 10;
  for (const QRectF& rect : taken_) {
    sum += Area(rect & area);
  }
  return sum;
}

bool Lettering::isFree(const QRectF& area) const {
  return covered(area) <= 0;
}

bool Lettering::write(QPainter& painter, const QString& name, const QFont& font, QPointF at,
                      double gap, bool mustStand) {
  const QFontMetricsF metrics(font);
  const QSizeF box(metrics.horizontalAdvance(name), metrics.capHeight() * 1.5);
  const auto sides = Sides(at, box, gap);
  const auto cost = [&](QPointF corner) { return covered(QRectF(corner, box)); };
  const auto* best = std::ranges::min_element(sides, {}, cost);
  const bool free = cost(*best) <= 0;
  if (!free && !mustStand) {
    return false;
  }
  DrawHaloed(painter, style_, name, font, *best + QPointF(0, metrics.capHeight() * 1.25));
  reserve(QRectF(*best, box).adjusted(-8, -6, 8, 6));
  return free;
}

}  // namespace Map
