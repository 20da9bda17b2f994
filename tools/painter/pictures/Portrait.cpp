#include "pictures/Portrait.h"

#include "pictures/Emblems.h"
#include "pictures/Face.h"

namespace Pictures {

namespace {

void PaintHills(Canvas& canvas, const Person& person) {
  canvas.flat(Rounded({{-10, 74}, {15, 50}, {40, 66}, {70, 46}, {110, 70}, {110, 110}, {-10, 110}}),
              person.backdrop.lit(0.62).color());
  canvas.glow({80, 22}, 18, Tone{255, 240, 200}.color(150));
}

void PaintArch(Canvas& canvas, const Person& person) {
  QPainterPath arch;
  arch.addRoundedRect(QRectF(16, 8, 68, 120), 34, 34);
  canvas.flat(arch, person.backdrop.lit(0.6).color());
  canvas.line(arch, person.backdrop.lit(1.25).color(), 2.4);
}

void PaintTrunks(Canvas& canvas, const Person& person) {
  for (int trunk = 0; trunk < 5; ++trunk) {
    const double x = 7 + trunk * 21 + (trunk % 2) * 4;
    const double half = 2.5 + trunk % 3;
    canvas.flat(Angular({{x - half, 0}, {x + half, 0}, {x + half + 2, 100}, {x - half - 1, 100}}),
                person.backdrop.lit(0.55 + 0.08 * (trunk % 2)).color(190));
  }
}

void PaintDrape(Canvas& canvas, const Person& person) {
  for (int fold = 0; fold < 7; ++fold) {
    QLinearGradient shade(fold * 15, 0, fold * 15 + 15, 0);
    shade.setColorAt(0, person.backdrop.lit(1.05).color(160));
    shade.setColorAt(1, person.backdrop.lit(0.6).color(160));
    canvas.painter().fillRect(QRectF(fold * 15, 0, 15, 100), shade);
  }
}

void PaintScenery(Canvas& canvas, const Person& person) {
  canvas.backdrop(person.backdrop.lit(1.18), person.backdrop.lit(0.42));
  switch (person.scenery) {
    case 0:
      return PaintHills(canvas, person);
    case 1:
      return PaintArch(canvas, person);
    case 2:
      return PaintTrunks(canvas, person);
    case 3:
      return PaintDrape(canvas, person);
    default:
      return;
  }
}

void PaintShoulders(Canvas& canvas, const Person& person) {
  const double wide = person.young ? 29 : person.woman ? 33 : person.orc ? 45 : 39;
  canvas.body(Rounded({{50, 76},
                       {50 - wide * 0.5, 79},
                       {50 - wide, 88},
                       {46 - wide, 112},
                       {50, 116},
                       {54 + wide, 112},
                       {50 + wide, 88},
                       {50 + wide * 0.5, 79}}),
              person.cloth);
}

void PaintNeck(Canvas& canvas, const Person& person) {
  const double half = person.young || person.woman ? 7.6 : person.orc ? 14 : 10.5;
  canvas.body(
      Angular({{50 - half, 60}, {50 + half, 60}, {51 + half, 80}, {50, 87}, {49 - half, 80}}),
      person.skin.lit(0.86), 0.6);
  canvas.flat(Oval({50, ChinOf(person) + 1.5}, half + 3, 4), Ink.color(70));
}

void PaintCollar(Canvas& canvas, const Person& person) {
  const Tone trim = person.role.trim;
  switch (person.role.clothes) {
    case Clothes::Armour:
      canvas.body(Rounded({{30, 80}, {50, 90}, {70, 80}, {74, 88}, {50, 99}, {26, 88}}), Steel);
      canvas.pair(Rounded({{10, 90}, {22, 82}, {34, 86}, {34, 100}, {8, 104}}), Steel.lit(1.05));
      canvas.line(QPointF(30, 81), QPointF(50, 91), Gold.color(), 1.4);
      canvas.line(QPointF(70, 81), QPointF(50, 91), Gold.color(), 1.4);
      return;
    case Clothes::Fur:
      for (int tuft = 0; tuft < 9; ++tuft) {
        const double x = 16 + tuft * 8.5;
        const double y = 84 + std::abs(tuft - 4) * 0.9;
        canvas.body(Angular({{x - 6, y + 3}, {x, y - 6}, {x + 6, y + 3}, {x, y + 11}}),
                    Tone{150, 126, 96}.lit(0.85 + 0.07 * (tuft % 3)), 0.5);
      }
      return;
    case Clothes::Apron:
      canvas.body(Angular({{34, 88}, {66, 88}, {70, 104}, {30, 104}}), trim);
      canvas.line(QPointF(35, 89), QPointF(40, 77), trim.color(), 3);
      canvas.line(QPointF(65, 89), QPointF(60, 77), trim.color(), 3);
      return;
    case Clothes::Leather:
      canvas.line(QPointF(22, 82), QPointF(70, 104), Wood.lit(0.6).color(), 4.2);
      canvas.line(QPointF(22, 82), QPointF(70, 104), Wood.color(), 3.0);
      canvas.pair(Angular({{38, 77}, {50, 90}, {46, 95}, {33, 81}}), person.cloth.lit(0.75));
      return;
    case Clothes::Noble:
      canvas.pair(Angular({{39, 76}, {50, 90}, {44, 100}, {30, 80}}), trim.lit(1.05));
      return;
    case Clothes::Rags:
      canvas.pair(Angular({{40, 77}, {50, 91}, {46, 93}, {35, 80}}), trim);
      return;
    case Clothes::Robe:
      canvas.pair(Angular({{38, 76}, {50, 92}, {50, 108}, {44, 108}, {31, 80}}), trim);
      return;
  }
}

}  // namespace

void PaintPerson(Canvas& canvas, const Person& person) {
  QPainter& painter = canvas.painter();
  painter.save();
  if (person.mirrored) {
    painter.setTransform(QTransform(-1, 0, 0, 1, 100, 0), true);
  }
  PaintScenery(canvas, person);
  painter.translate(0, 4);
  PaintBackHair(canvas, person);
  PaintShoulders(canvas, person);
  PaintNeck(canvas, person);
  PaintCollar(canvas, person);
  PaintFace(canvas, person);
  PaintBeard(canvas, person);
  PaintHair(canvas, person);
  PaintHeadgear(canvas, person);
  painter.restore();
  if (person.ghost) {
    canvas.glow({50, 50}, 62, Tone{150, 220, 240}.color(70));
  }
  PaintEmblem(canvas, person.role.emblem, {85, 86}, person.role.trim);
}

void PaintStranger(Canvas& canvas) {
  canvas.backdrop({112, 104, 94}, {44, 40, 38});
  canvas.body(Rounded({{50, 10},
                       {30, 18},
                       {24, 42},
                       {22, 66},
                       {6, 84},
                       {2, 112},
                       {98, 112},
                       {94, 84},
                       {78, 66},
                       {76, 42},
                       {70, 18}}),
              {74, 68, 66});
  canvas.flat(
      Rounded({{50, 22}, {36, 30}, {34, 50}, {40, 66}, {50, 74}, {60, 66}, {66, 50}, {64, 30}}),
      Ink.color());
  canvas.glow({50, 48}, 16, Tone{96, 84, 76}.color(120));
  canvas.line(QPointF(50, 76), QPointF(50, 110), Ink.color(140), 1.2);
  canvas.body(Oval({50, 79}, 4, 4), Gold);
}

}  // namespace Pictures
