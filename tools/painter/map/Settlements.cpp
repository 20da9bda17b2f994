#include "map/Settlements.h"

#include <QPainterPath>

namespace Map {

namespace {

constexpr Tone Roofs[] = {{178, 84, 58}, {158, 70, 52}, {190, 104, 66}};

QPen Ink(const RegionStyle& style, double width) {
  return QPen(style.ink.color(), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

Tone RoofTone(const RegionStyle& style, int index) {
  const Tone roof = Roofs[index % 3];
  switch (style.tree) {
    case Tree::Fir:
      return roof.towards({96, 108, 128}, 0.65);
    case Tree::Palm:
      return roof.towards(style.paper, 0.55);
    case Tree::Dead:
      return roof.towards(style.rock, 0.6);
    case Tree::Broadleaf:
      break;
  }
  return roof;
}

void DrawHouse(QPainter& painter, const RegionStyle& style, QPointF foot, double size, int index) {
  const QRectF wall(foot.x() - size / 2, foot.y() - size * 0.6, size, size * 0.6);
  const Tone plaster = style.paper.towards(style.rock, 0.12);
  painter.setPen(Ink(style, 1.3));
  painter.setBrush(plaster.color());
  painter.drawRect(wall);
  painter.setBrush(RoofTone(style, index).color());
  painter.drawPolygon(QPolygonF{wall.topLeft() + QPointF(-2, 0),
                                QPointF(foot.x(), wall.top() - size * 0.55),
                                wall.topRight() + QPointF(2, 0)});
}

void DrawTower(QPainter& painter, const RegionStyle& style, QPointF foot, double height) {
  const QRectF shaft(foot.x() - 5.5, foot.y() - height, 11, height);
  QLinearGradient stone(shaft.topLeft(), shaft.topRight());
  stone.setColorAt(0, style.paper.color());
  stone.setColorAt(1, style.paper.towards(style.rock, 0.6).color());
  painter.setPen(Ink(style, 1.4));
  painter.setBrush(stone);
  painter.drawRect(shaft);
  painter.setBrush(RoofTone(style, 1).color());
  painter.drawPolygon(QPolygonF{shaft.topLeft() + QPointF(-3, 0),
                                QPointF(foot.x(), shaft.top() - 15),
                                shaft.topRight() + QPointF(3, 0)});
}

void DrawCity(QPainter& painter, const RegionStyle& style, QPointF at) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color(50));
  painter.drawEllipse(at + QPointF(4, 14), 32, 9);
  DrawHouse(painter, style, at + QPointF(-15, 4), 15, 0);
  DrawHouse(painter, style, at + QPointF(15, 4), 15, 2);
  DrawTower(painter, style, at + QPointF(0, 6), 25);
  DrawHouse(painter, style, at + QPointF(-9, 13), 16, 1);
  DrawHouse(painter, style, at + QPointF(10, 13), 16, 0);
  // The town wall closes the group in front.
  painter.setPen(Ink(style, 1.4));
  painter.setBrush(style.paper.towards(style.rock, 0.4).color());
  painter.drawRect(QRectF(at.x() - 25, at.y() + 11, 50, 7));
  for (int merlon = 0; merlon < 6; ++merlon) {
    painter.drawRect(QRectF(at.x() - 25 + merlon * 9.2, at.y() + 8, 4, 3));
  }
  painter.setBrush(style.ink.color());
  painter.drawRect(QRectF(at.x() - 3, at.y() + 12, 6, 6));
}

void DrawCave(QPainter& painter, const RegionStyle& style, QPointF at) {
  QPainterPath mound(at + QPointF(-11, 7));
  mound.cubicTo(at + QPointF(-9, -12), at + QPointF(9, -12), at + QPointF(11, 7));
  mound.closeSubpath();
  painter.setPen(Ink(style, 1.4));
  painter.setBrush(style.rock.lit(1.15).color());
  painter.drawPath(mound);
  QPainterPath mouth(at + QPointF(-5, 7));
  mouth.cubicTo(at + QPointF(-4, -5), at + QPointF(4, -5), at + QPointF(5, 7));
  painter.setBrush(style.ink.color());
  painter.drawPath(mouth);
}

void DrawShrine(QPainter& painter, const RegionStyle& style, QPointF at) {
  painter.setPen(Ink(style, 1.4));
  painter.setBrush(style.paper.color());
  painter.drawRect(QRectF(at.x() - 7, at.y() + 4, 14, 3.5));
  painter.drawRect(QRectF(at.x() - 3.5, at.y() - 6, 7, 10));
  painter.setBrush(Tone{214, 168, 60}.color());
  painter.drawEllipse(at + QPointF(0, -9), 4, 4);
}

void DrawPlace(QPainter& painter, const RegionStyle& style, QPointF at) {
  painter.setPen(Ink(style, 1.6));
  painter.setBrush(style.paper.color());
  painter.drawPolygon(
      QPolygonF{at + QPointF(0, -8), at + QPointF(8, 0), at + QPointF(0, 8), at + QPointF(-8, 0)});
  painter.setBrush(style.ink.color());
  painter.drawEllipse(at, 2.4, 2.4);
}

}  // namespace

double ReachOf(Landmark kind) {
  switch (kind) {
    case Landmark::City:
      return 28;
    case Landmark::Cave:
    case Landmark::Shrine:
      return 13;
    case Landmark::Place:
      break;
  }
  return 11;
}

void DrawLandmark(QPainter& painter, const RegionStyle& style, Landmark kind, QPointF at) {
  switch (kind) {
    case Landmark::City:
      return DrawCity(painter, style, at);
    case Landmark::Cave:
      return DrawCave(painter, style, at);
    case Landmark::Shrine:
      return DrawShrine(painter, style, at);
    case Landmark::Place:
      return DrawPlace(painter, style, at);
  }
}

}  // namespace Map
