#include "pictures/Face.h"

namespace Pictures {

namespace {

constexpr double EyeLine = 42;

void PaintEye(Canvas& canvas, const Person& person, double side) {
  const double size = 1 + 0.14 * person.eyeSize + (person.woman ? 0.12 : 0);
  const QPointF at(50 + side * (8.2 + 0.6 * person.width), EyeLine);
  const double wide = 4.3 * size;
  const double tall = 2.3 * size;
  const QPainterPath white = Rounded({at + QPointF(-wide, 0.4), at + QPointF(-wide * 0.3, -tall),
                                      at + QPointF(wide * 0.5, -tall * 0.9),
                                      at + QPointF(wide, 0.4), at + QPointF(0, tall * 0.9)});
  canvas.flat(Oval(at + QPointF(0, -0.5), wide * 1.35, tall * 1.9),
              person.skin.towards(Ink, 0.45).color(60));
  canvas.flat(white, Tone{240, 236, 228}.color());
  canvas.painter().save();
  canvas.painter().setClipPath(white);
  canvas.flat(Oval(at + QPointF(0.3, -0.3), 2.3 * size, 2.4 * size), person.eyes.color());
  canvas.flat(Oval(at + QPointF(0.3, -0.3), 1.15 * size, 1.2 * size), Ink.color());
  canvas.painter().restore();
  canvas.flat(Oval(at + QPointF(-0.5, -1.1), 0.6, 0.6), Qt::white);
  QPainterPath lid(at + QPointF(-wide, 0.3));
  lid.quadTo(at + QPointF(0, -tall * 2), at + QPointF(wide, 0.3));
  canvas.line(lid, person.skin.towards(Ink, 0.85).color(), person.woman ? 1.4 : 1.0);
  if (person.old) {
    QPainterPath bag(at + QPointF(-wide * 0.8, 3.2));
    bag.quadTo(at + QPointF(0, 5.2), at + QPointF(wide * 0.9, 2.8));
    canvas.line(bag, person.skin.towards(Ink, 0.5).color(130), 0.7);
  }
}

void PaintBrow(Canvas& canvas, const Person& person, double side) {
  const double tilt = person.brow * 1.8 + (person.orc ? 2.0 : 0);
  const QPointF inner(50 + side * 3.6, EyeLine - 5.2 + tilt * 0.6);
  const QPointF outer(50 + side * 14, EyeLine - 4.6 - tilt * 0.4);
  QPainterPath brow(inner);
  brow.quadTo(QPointF(50 + side * 9, EyeLine - 8 - tilt * 0.2), outer);
  canvas.line(brow, person.hair.towards(Ink, 0.3).color(),
              person.woman ? 1.2
              : person.orc ? 3.0
                           : 2.1 + 0.5 * person.brow);
}

void PaintNose(Canvas& canvas, const Person& person) {
  const double length = 55 + 1.8 * person.nose;
  const double half = person.orc ? 5.2 : 3.1 + 0.7 * person.width;
  const QColor shadow = person.skin.towards(Ink, 0.55).color(170);
  QPainterPath ridge(QPointF(51.8, EyeLine - 1));
  ridge.quadTo(QPointF(52.6, 50), QPointF(50 + half, length - 1));
  ridge.quadTo(QPointF(50 + half, length + 1.6), QPointF(50, length + 1.6));
  canvas.line(ridge, shadow, 1.1);
  canvas.line(QPointF(50 - half * 0.8, length + 0.6), QPointF(50 - half * 0.3, length + 1.3),
              shadow, 1.0);
  canvas.flat(Rounded({{48.6, EyeLine}, {50.4, EyeLine}, {50.6, length - 1}, {48.6, length - 1}}),
              person.skin.lit(1.25).color(120));
}

void PaintTusks(Canvas& canvas, const Person& person, double y) {
  const double length = 5 + 3.2 * person.tusks;
  const double root = 41 - person.tusks;
  const QPainterPath tusk = Rounded(
      {{root, y + 2}, {root - 1.2, y - length * 0.5}, {root + 1, y - length}, {root + 4.4, y + 2}});
  canvas.body(tusk, Bone, 0.6);
  // The one or other tusk was lost in a fight.
  if (!person.scarred) {
    canvas.body(Mirrored(tusk), Bone.lit(0.9), 0.6);
  }
}

void PaintMouth(Canvas& canvas, const Person& person) {
  const double y = 62.5 + 0.8 * person.jaw;
  const double half = (person.woman ? 5.6 : 6.6) + 0.8 * person.width + (person.orc ? 2.5 : 0);
  const double bend = person.mouth * 1.3;
  const Tone lips = person.woman ? person.skin.towards({176, 60, 62}, 0.6)
                                 : person.skin.towards({150, 84, 72}, 0.35);
  canvas.flat(Rounded({{50 - half, y - bend},
                       {48, y - 2},
                       {50, y - 1.5},
                       {52, y - 2},
                       {50 + half, y - bend},
                       {50, y + (person.woman ? 3.2 : 2.4)}}),
              lips.color());
  QPainterPath gap(QPointF(50 - half, y - bend));
  gap.quadTo(QPointF(50, y + 1), QPointF(50 + half, y - bend));
  canvas.line(gap, lips.towards(Ink, 0.7).color(), 0.9);
  if (person.orc) {
    PaintTusks(canvas, person, y);
  }
}

void PaintMarks(Canvas& canvas, const Person& person) {
  const QColor crease = person.skin.towards(Ink, 0.5).color(120);
  if (person.old) {
    for (const double side : {-1.0, 1.0}) {
      QPainterPath fold(QPointF(50 + side * 5.5, 54));
      fold.quadTo(QPointF(50 + side * 9.5, 58), QPointF(50 + side * 9, 64));
      canvas.line(fold, crease, 0.8);
    }
    canvas.line(QPointF(42, 30), QPointF(58, 29.6), crease, 0.7);
    canvas.line(QPointF(43, 32.6), QPointF(57, 32.4), crease, 0.7);
  }
  if (person.scarred) {
    canvas.line(QPointF(57, 31), QPointF(62, 57), person.skin.lit(1.25).color(), 2.2);
    canvas.line(QPointF(57.8, 31), QPointF(62.8, 57), Tone{150, 66, 58}.color(190), 1.1);
  }
  if (person.noseRing) {
    canvas.line(Oval({50, 59.5}, 3.0, 3.2), Ink.color(), 1.9);
    canvas.line(Oval({50, 59.5}, 3.0, 3.2), Gold.color(), 1.2);
  }
  if (person.eyepatch) {
    canvas.line(QPointF(50 - CheekOf(person), 30), QPointF(50 + CheekOf(person), 45), Ink.color(),
                1.6);
    canvas.flat(Rounded({{53, 37}, {65, 38}, {64, 47}, {58, 50}, {53, 46}}), Ink.color());
  }
  const QColor paint = person.role.trim.color(200);
  if (person.painted && person.hairStyle % 2 == 1) {
    canvas.line(QPointF(36, 38), QPointF(37, 60), paint, 2.6);
    canvas.line(QPointF(41, 37), QPointF(42, 64), paint, 2.6);
    canvas.line(QPointF(46, 70), QPointF(54, 70), paint, 2.6);
  } else if (person.painted) {
    canvas.line(QPointF(34, 47), QPointF(44, 51), paint, 2.2);
    canvas.line(QPointF(66, 47), QPointF(56, 51), paint, 2.2);
    canvas.line(QPointF(50, 24), QPointF(50, 35), paint, 2.0);
  }
}

void PaintEars(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person);
  if (person.orc) {
    canvas.pair(Angular({{52 - cheek, 40}, {38 - cheek, 34}, {52 - cheek, 52}}), person.skin);
  } else {
    const QPainterPath ear = Oval({50.5 - cheek, 46}, 3.0, 5.2);
    canvas.body(ear, person.skin.lit(0.93), 0.6);
    canvas.body(person.oneEared ? Oval({50 + cheek, 47}, 1.6, 2.6) : Mirrored(ear),
                person.oneEared ? Tone{176, 96, 84} : person.skin.lit(0.81), 0.6);
  }
  if (person.earrings) {
    canvas.line(Oval({49.5 - cheek, 53}, 1.6, 2.0), Gold.color(), 1.0);
    canvas.line(Oval({50.5 + cheek, 53}, 1.6, 2.0), Gold.lit(0.8).color(), 1.0);
  }
}

}  // namespace

double CheekOf(const Person& person) {
  return (person.woman ? 18.6 : 20.2) + 1.7 * person.width + (person.orc ? 3.0 : 0);
}

double ChinOf(const Person& person) {
  return (person.woman ? 71.5 : 73.5) + 1.8 * person.jaw + (person.orc ? 2 : 0);
}

void PaintFace(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person);
  const double chin = ChinOf(person);
  const double jaw =
      cheek * (person.woman ? 0.62 : 0.74 + 0.08 * person.jaw) + (person.orc ? 3 : 0);
  PaintEars(canvas, person);
  canvas.body(Rounded({{50, 16},
                       {50 - cheek * 0.78, 21},
                       {50 - cheek, 36},
                       {50 - cheek * 0.97, 50},
                       {50 - jaw, 63},
                       {50 - jaw * 0.45, chin - 1},
                       {50, chin},
                       {50 + jaw * 0.45, chin - 1},
                       {50 + jaw, 63},
                       {50 + cheek * 0.97, 50},
                       {50 + cheek, 36},
                       {50 + cheek * 0.78, 21}}),
              person.skin);
  canvas.glow({39, 54}, 8, Tone{214, 110, 90}.color(person.orc || person.ghost ? 0 : 46));
  canvas.glow({61, 55}, 8, Tone{200, 90, 76}.color(person.orc || person.ghost ? 0 : 46));
  for (const double side : {-1.0, 1.0}) {
    PaintEye(canvas, person, side);
    PaintBrow(canvas, person, side);
  }
  PaintNose(canvas, person);
  PaintMouth(canvas, person);
  PaintMarks(canvas, person);
}

}  // namespace Pictures
