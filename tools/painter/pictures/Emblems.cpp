#include "pictures/Emblems.h"

#include <cmath>

namespace Pictures {

namespace {

constexpr Tone Bright{250, 238, 206};

QPainterPath Star(int points, double outer, double inner) {
  QPolygonF star;
  for (int corner = 0; corner < points * 2; ++corner) {
    const double angle = corner * 3.14159265 / points - 3.14159265 / 2;
    const double reach = corner % 2 == 0 ? outer : inner;
    star << QPointF(std::cos(angle) * reach, std::sin(angle) * reach);
  }
  QPainterPath path;
  path.addPolygon(star);
  path.closeSubpath();
  return path;
}

QPainterPath Bars(std::initializer_list<QRectF> bars) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const QRectF& bar : bars) {
    path.addRect(bar);
  }
  return path;
}

// Each sign fits into a circle of radius 6 around the origin.
constexpr QPointF FlameLine[] = {{0, -6},  {2, -2},   {4, 0},    {3.4, 4},
                                 {0, 5.6}, {-3.4, 4}, {-4, 0.6}, {-1.6, -1}};
constexpr QPointF DropLine[] = {{0, -6}, {2, -2}, {4, 2}, {2.4, 5}, {-2.4, 5}, {-4, 2}, {-2, -2}};
constexpr QPointF LeafLine[] = {{4.6, -5}, {4, 1}, {0, 4}, {-5, 5.4}, {-3.4, -1}, {0, -4}};
constexpr QPointF FlaskLine[] = {{-1.3, -5.6}, {1.3, -5.6}, {1.3, -1},
                                 {4.8, 4.6},   {-4.8, 4.6}, {-1.3, -1}};
constexpr QPointF DaggerLine[] = {{0, 6},       {-1.4, 0},    {-4, 0},     {-4, -1.6},
                                  {-0.9, -1.6}, {-0.9, -5.6}, {0.9, -5.6}, {0.9, -1.6},
                                  {4, -1.6},    {4, 0},       {1.4, 0}};

QPainterPath BowSign() {
  QPainterPath bow(QPointF(-2, -6));
  bow.quadTo(QPointF(7, 0), QPointF(-2, 6));
  bow.quadTo(QPointF(4.4, 0), QPointF(-2, -6));
  bow.addRect(QRectF(-6, -0.5, 11, 1));
  return bow;
}

QPainterPath SkullSign() {
  return Oval({0, -1}, 4.6, 4.2)
      .united(Bars({{-2.6, 1, 5.2, 4}}))
      .subtracted(Oval({-1.8, -0.6}, 1.3, 1.4))
      .subtracted(Oval({1.8, -0.6}, 1.3, 1.4));
}

QPainterPath SignOf(Emblem emblem) {
  switch (emblem) {
    case Emblem::None:
      break;
    case Emblem::Flame:
      return Rounded(FlameLine);
    case Emblem::Drop:
      return Rounded(DropLine);
    case Emblem::Leaf:
      return Rounded(LeafLine);
    case Emblem::Hammer:
      return Bars({{-4.6, -5, 9.2, 4}, {-1, -2, 2, 8}});
    case Emblem::Bow:
      return BowSign();
    case Emblem::Flask:
      return Angular(FlaskLine);
    case Emblem::Coin:
      return Oval({0, 0}, 4.6, 4.6).subtracted(Oval({0, 0}, 2.6, 2.6));
    case Emblem::Sun:
      return Star(8, 6, 3);
    case Emblem::Skull:
      return SkullSign();
    case Emblem::Crescent:
      return Oval({0, 0}, 5, 5).subtracted(Oval({2.2, -1}, 4.2, 4.2));
    case Emblem::Dagger:
      return Angular(DaggerLine);
    case Emblem::Star:
      return Star(5, 6, 2.5);
    case Emblem::Cross:
      return Bars({{-1.5, -5, 3, 10}, {-5, -1.5, 10, 3}});
  }
  return {};
}

}  // namespace

void PaintEmblem(Canvas& canvas, Emblem emblem, QPointF middle, const Tone& trim) {
  if (emblem == Emblem::None) {
    return;
  }
  canvas.body(Oval(middle, 9, 9), Gold.lit(0.85));
  canvas.body(Oval(middle, 7.4, 7.4), trim.towards(Ink, 0.72), 0.6);
  canvas.flat(SignOf(emblem).translated(middle), Bright.color());
}

}  // namespace Pictures
