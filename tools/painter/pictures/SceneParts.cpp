#include "pictures/SceneParts.h"

#include <cmath>

namespace Pictures {

void PaintGround(Canvas& canvas, Random& random, const Tone& ground) {
  const double far = random.between(44, 56);
  canvas.flat(Rounded({{-20, 80},
                       {random.between(5, 25), far},
                       {45, far + 12},
                       {random.between(65, 90), far - 4},
                       {120, 80}}),
              ground.towards({128, 148, 168}, 0.55).color());
  canvas.body(Rounded({{-20, 72},
                       {20, random.between(64, 70)},
                       {60, 70},
                       {120, random.between(62, 70)},
                       {120, 120},
                       {-20, 120}}),
              ground, 0);
}

void House(Canvas& canvas, QPointF foot, double size, const Tone& roof) {
  const double half = size / 2;
  canvas.body(Angular({foot + QPointF(-half, -size * 0.62), foot + QPointF(half, -size * 0.62),
                       foot + QPointF(half, 0), foot + QPointF(-half, 0)}),
              {226, 210, 176});
  canvas.body(Angular({foot + QPointF(-half * 1.25, -size * 0.6), foot + QPointF(0, -size * 1.25),
                       foot + QPointF(half * 1.25, -size * 0.6)}),
              roof);
  canvas.flat(Angular({foot + QPointF(-size * 0.1, 0), foot + QPointF(-size * 0.1, -size * 0.36),
                       foot + QPointF(size * 0.12, -size * 0.36), foot + QPointF(size * 0.12, 0)}),
              Wood.lit(0.6).color());
}

void Tower(Canvas& canvas, QPointF foot, double half, double tall, bool pointed) {
  canvas.body(Angular({foot + QPointF(-half, -tall), foot + QPointF(half, -tall),
                       foot + QPointF(half * 1.1, 0), foot + QPointF(-half * 1.1, 0)}),
              Masonry);
  if (pointed) {
    canvas.body(Angular({foot + QPointF(-half * 1.35, -tall), foot + QPointF(0, -tall - half * 2.6),
                         foot + QPointF(half * 1.35, -tall)}),
                Tiles);
  } else {
    for (int merlon = -1; merlon <= 1; ++merlon) {
      const QPointF at = foot + QPointF(merlon * half * 0.9, -tall);
      canvas.body(
          Angular({at + QPointF(-half * 0.3, -half * 0.6), at + QPointF(half * 0.3, -half * 0.6),
                   at + QPointF(half * 0.3, 1), at + QPointF(-half * 0.3, 1)}),
          Masonry, 0.6);
    }
  }
  canvas.flat(Angular({foot + QPointF(-1.3, -tall * 0.7), foot + QPointF(1.3, -tall * 0.7),
                       foot + QPointF(1.3, -tall * 0.52), foot + QPointF(-1.3, -tall * 0.52)}),
              Ink.color());
}

void Wall(Canvas& canvas, double left, double right, double top, double bottom) {
  canvas.body(Angular({{left, top}, {right, top}, {right, bottom}, {left, bottom}}),
              Masonry.lit(0.92));
  for (int stone = 0; left + stone * 8 < right - 4; ++stone) {
    const double x = left + stone * 8;
    canvas.body(Angular({{x, top - 4}, {x + 4.4, top - 4}, {x + 4.4, top + 0.5}, {x, top + 0.5}}),
                Masonry, 0.6);
  }
}

void Gate(Canvas& canvas, QPointF foot, double half, double tall) {
  QPainterPath gate(foot + QPointF(-half, 0));
  gate.lineTo(foot + QPointF(-half, -tall * 0.6));
  gate.quadTo(foot + QPointF(0, -tall * 1.3), foot + QPointF(half, -tall * 0.6));
  gate.lineTo(foot + QPointF(half, 0));
  gate.closeSubpath();
  canvas.flat(gate, Ink.color());
}

void Columns(Canvas& canvas, double top, double bottom, int count, bool broken, Random& random) {
  for (int column = 0; column < count; ++column) {
    const double x = 26 + 48.0 * column / (count - 1);
    const double head = broken ? top + random.between(0, (bottom - top) * 0.6) : top;
    canvas.body(Angular({{x - 3.4, head},
                         {x + 3.4, head + (broken ? 3 : 0)},
                         {x + 3.4, bottom},
                         {x - 3.4, bottom}}),
                {222, 212, 190});
    canvas.line(QPointF(x, head + 3), QPointF(x, bottom), Ink.color(60), 0.7);
  }
}

void Tent(Canvas& canvas, QPointF foot, double half, const Tone& cloth) {
  canvas.body(
      Angular({foot + QPointF(-half, 0), foot + QPointF(0, -half * 1.4), foot + QPointF(half, 0)}),
      cloth);
  canvas.flat(Angular({foot + QPointF(-half * 0.25, 0), foot + QPointF(0, -half * 0.9),
                       foot + QPointF(half * 0.25, 0)}),
              Ink.color());
}

void Palm(Canvas& canvas, QPointF foot, double tall) {
  const QPointF top = foot + QPointF(tall * 0.14, -tall);
  QPainterPath trunk(foot);
  trunk.quadTo(foot + QPointF(-2, -tall * 0.5), top);
  canvas.line(trunk, Ink.color(), 4.4);
  canvas.line(trunk, Wood.color(), 3.2);
  for (int leaf = 0; leaf < 7; ++leaf) {
    const double angle = -3.0 + leaf * 0.48;
    const QPointF tip =
        top + QPointF(std::cos(angle) * tall * 0.45, std::sin(angle) * tall * 0.22 + tall * 0.14);
    QPainterPath frond(top);
    frond.quadTo(top + QPointF(std::cos(angle) * tall * 0.3, std::sin(angle) * tall * 0.34 - 1),
                 tip);
    frond.quadTo(top + QPointF(std::cos(angle) * tall * 0.2, std::sin(angle) * tall * 0.16), top);
    canvas.body(frond, {84, 128, 58}, 0.5);
  }
}

}  // namespace Pictures
