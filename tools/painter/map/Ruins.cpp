#include "map/Ruins.h"

#include "map/Relief.h"
#include "terrain/Noise.h"

namespace Map {

namespace {

using Terrain::Hall;
using Terrain::Random;

constexpr double StoneLength = 11;

QPen Ink(const RegionStyle& style) {
  return QPen(style.ink.color(), 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void DrawBlock(QPainter& painter, const RegionStyle& style, QPointF at, double tall) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color(90));
  painter.drawRect(QRectF(at.x() - 3, at.y() - 2, 13, 8));
  painter.setPen(Ink(style));
  painter.setBrush(style.paper.towards(style.rock, 0.25).color());
  painter.drawRect(QRectF(at.x() - 6, at.y() - tall - 3, 11, 6));
  painter.setBrush(style.paper.towards(style.rock, 0.6).color());
  painter.drawRect(QRectF(at.x() - 6, at.y() - tall + 3, 11, tall));
}

void DrawColumn(QPainter& painter, const RegionStyle& style, QPointF foot, double tall) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color(80));
  painter.drawPolygon(QPolygonF{foot, foot + QPointF(tall * 0.7, tall * 0.25),
                                foot + QPointF(tall * 0.7 + 5, tall * 0.25 + 4),
                                foot + QPointF(3, 4)});
  QLinearGradient stone(foot.x() - 4, 0, foot.x() + 4, 0);
  stone.setColorAt(0, style.paper.color());
  stone.setColorAt(1, style.paper.towards(style.rock, 0.7).color());
  painter.setPen(Ink(style));
  painter.setBrush(stone);
  painter.drawPolygon(QPolygonF{foot + QPointF(-4, 0), foot + QPointF(-4, -tall),
                                foot + QPointF(-1, -tall + 3), foot + QPointF(2, -tall - 2),
                                foot + QPointF(4, -tall + 2), foot + QPointF(4, 0)});
  painter.drawRect(QRectF(foot.x() - 6, foot.y() - 1, 12, 4));
}

class Walls {
 public:
  Walls(QPainter& painter, const RegionStyle& style, std::uint32_t seed)
      : painter_(painter), style_(style), random_(seed) {}

  void line(QPointF from, QPointF to) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    double standing = 0;
    for (double along = 0; along < length; along += StoneLength) {
      // Walls fall in stretches, not stone by stone.
      standing = Terrain::Clamp01(standing + random_.between(-0.45, 0.5));
      if (standing > 0.25) {
        DrawBlock(painter_, style_, from + way * (along / length), 3 + 7 * standing);
      }
    }
  }

  void round(const QRectF& area) {
    for (double angle = -1.6; angle < 4.68; angle += 2 * StoneLength / area.width()) {
      if (random_.chance(0.72)) {
        const QPointF rim(std::cos(angle) * area.width() / 2, std::sin(angle) * area.height() / 2);
        DrawBlock(painter_, style_, area.center() + rim, random_.between(3, 9));
      }
    }
  }

  void columns(const QRectF& area) {
    for (double y = area.top(); y <= area.bottom(); y += 44) {
      for (double x = area.left(); x <= area.right(); x += 44) {
        const bool aisle = std::abs(y - area.center().y()) < 24;
        if (!aisle && random_.chance(0.7)) {
          DrawColumn(painter_, style_, {x, y}, random_.between(8, 26));
        }
      }
    }
  }

 private:
  QPainter& painter_;
  const RegionStyle& style_;
  Random random_;
};

}  // namespace

void DrawRuins(QPainter& painter, const Terrain::Field& field, const RegionStyle& style) {
  Walls walls(painter, style, field.shape->seed + 8000);
  for (const Hall& hall : field.shape->halls) {
    const QRectF area(hall.left * Scale, hall.top * Scale, hall.width * Scale, hall.height * Scale);
    if (hall.form != Hall::Form::Square) {
      walls.round(area);
      continue;
    }
    walls.line(area.topLeft(), area.topRight());
    walls.line(area.topLeft(), area.bottomLeft());
    walls.line(area.topRight(), area.bottomRight());
    walls.columns(area.adjusted(32, 40, -32, -28));
    walls.line(area.bottomLeft(), area.bottomRight());
  }
}

}  // namespace Map
