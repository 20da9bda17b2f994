#include "pictures/Motif.h"

#include <cmath>

namespace Pictures {

namespace {

constexpr Tone Bronze{176, 122, 62};
constexpr Tone Glass{176, 208, 204};
constexpr Tone Linen{222, 208, 178};
constexpr Tone Wine{132, 40, 48};

void OneSword(Canvas& canvas) {
  PaintSword(canvas, {22, 86}, {80, 10});
}

void BrokenSword(Canvas& canvas) {
  PaintShaft(canvas, {22, 88}, {32, 74}, 4.2, Wood.lit(0.7));
  PaintShaft(canvas, {24, 68}, {42, 82}, 3.8, Gold);
  canvas.body(Oval({21, 89}, 3.6, 3.6), Gold);
  canvas.body(Angular({{31, 72}, {46, 52}, {50, 56}, {54, 53}, {38, 77}}), Steel.lit(1.1));
  canvas.body(Angular({{52, 40}, {62, 28}, {68, 32}, {60, 44}, {56, 41}}), Steel.lit(1.15));
  canvas.body(Angular({{70, 22}, {84, 8}, {76, 28}}), Steel.lit(1.2));
  canvas.body(Angular({{66, 62}, {76, 54}, {78, 64}, {70, 68}}), Steel);
}

void Axe(Canvas& canvas) {
  PaintShaft(canvas, {30, 90}, {64, 18}, 5.4);
  canvas.body(Rounded({{56, 22}, {66, 28}, {82, 24}, {90, 40}, {82, 58}, {72, 48}, {54, 42}}),
              Steel);
}

void Sabre(Canvas& canvas) {
  canvas.body(Rounded({{30, 76}, {52, 60}, {72, 36}, {84, 8}, {78, 42}, {58, 70}, {36, 84}}),
              Steel.lit(1.15));
  PaintShaft(canvas, {20, 88}, {31, 78}, 4.4, Wood.lit(0.6));
  PaintShaft(canvas, {25, 70}, {40, 88}, 3.6, Gold);
}

void Dagger(Canvas& canvas) {
  canvas.body(Angular({{46, 62}, {42, 40}, {52, 8}, {60, 40}, {56, 62}}), {48, 44, 58});
  canvas.line(QPointF(52, 14), QPointF(50, 60), QColor(190, 190, 220, 150), 1.2);
  PaintShaft(canvas, {36, 63}, {66, 63}, 4, Gold.lit(0.8));
  PaintShaft(canvas, {51, 66}, {51, 86}, 5, Wine);
}

void Shield(Canvas& canvas) {
  canvas.body(Oval({50, 50}, 38, 38), Bronze);
  canvas.body(Oval({50, 50}, 29, 29), Bronze.lit(1.12));
  canvas.body(Oval({50, 50}, 9, 9), Bronze.lit(1.25));
  for (int nail = 0; nail < 8; ++nail) {
    canvas.body(Oval(QTransform().translate(50, 50).rotate(nail * 45).map(QPointF(33, 0)), 2, 2),
                Gold, 0.5);
  }
}

void Hammer(Canvas& canvas) {
  PaintShaft(canvas, {26, 90}, {60, 30}, 6);
  canvas.body(Angular({{40, 12}, {84, 36}, {74, 54}, {30, 30}}), Steel.lit(0.85));
}

void Horn(Canvas& canvas) {
  canvas.body(Rounded({{14, 26},
                       {20, 60},
                       {44, 80},
                       {72, 74},
                       {90, 58},
                       {66, 60},
                       {46, 56},
                       {38, 40},
                       {38, 18}}),
              Bone.lit(0.95));
  canvas.body(Oval({26, 23}, 13, 6), Gold);
  canvas.flat(Oval({26, 23}, 9, 3.6), Ink.color());
  PaintShaft(canvas, {40, 57}, {36, 72}, 3, Gold);
  PaintShaft(canvas, {67, 60}, {69, 74}, 3, Gold);
}

void Anchor(Canvas& canvas) {
  const Tone iron = Steel.lit(0.55);
  canvas.line(Oval({50, 14}, 6, 6), iron.color(), 4);
  PaintShaft(canvas, {50, 20}, {50, 84}, 6, iron);
  PaintShaft(canvas, {32, 32}, {68, 32}, 5, iron);
  QPainterPath arms(QPointF(18, 58));
  arms.quadTo(QPointF(26, 86), QPointF(50, 88));
  arms.quadTo(QPointF(74, 86), QPointF(82, 58));
  canvas.line(arms, iron.color(), 7);
  canvas.pair(Angular({{10, 64}, {18, 48}, {28, 62}}), iron);
  PaintShaft(canvas, {46, 44}, {56, 50}, 2.4, Wine);
}

void Seal(Canvas& canvas) {
  canvas.body(Oval({50, 50}, 34, 33), Bone.lit(0.85));
  canvas.line(Oval({50, 50}, 27, 26), Ink.color(150), 1.6);
  for (int ray = 0; ray < 4; ++ray) {
    const QTransform turn = QTransform().translate(50, 50).rotate(ray * 90);
    canvas.body(turn.map(Angular({{-5, 0}, {0, -22}, {5, 0}})), Bone.lit(ray == 0 ? 1.05 : 0.65),
                0.6);
  }
  canvas.flat(Oval({50, 20}, 2.6, 2.6), Ink.color());
}

void SignetRing(Canvas& canvas) {
  canvas.body(Oval({50, 60}, 27, 28).subtracted(Oval({50, 61}, 19, 20)), Gold);
  canvas.body(Rounded({{32, 34}, {36, 16}, {50, 12}, {64, 16}, {68, 34}, {50, 42}}), Gold.lit(1.1));
  canvas.body(Oval({50, 26}, 11, 9), Wine);
  canvas.line(QPointF(50, 21), QPointF(50, 31), Gold.color(), 1.8);
}

void Amber(Canvas& canvas) {
  canvas.line(Rounded({{50, 40}, {26, 26}, {32, 8}, {68, 8}, {74, 26}}), Wood.lit(0.6).color(), 2);
  canvas.body(Rounded({{50, 36}, {28, 50}, {32, 78}, {50, 90}, {68, 78}, {72, 50}}),
              {224, 140, 44});
  canvas.flat(Oval({50, 64}, 7, 4.6), Ink.color(210));
  canvas.flat(Oval({46, 57}, 5, 2.4), QColor(255, 250, 220, 150));
}

void Crown(Canvas& canvas) {
  canvas.glow({50, 50}, 44, Tone{255, 220, 120}.color(120));
  canvas.body(Angular({{18, 74}, {14, 32}, {32, 52}, {50, 20}, {68, 52}, {86, 32}, {82, 74}}),
              Gold);
  canvas.body(Angular({{18, 70}, {82, 70}, {81, 82}, {19, 82}}), Gold.lit(0.85));
  for (const double x : {30.0, 50.0, 70.0}) {
    canvas.body(Oval({x, 76}, 3.6, 3.6), x == 50 ? Wine : Tone{60, 100, 160}, 0.5);
  }
}

void Mask(Canvas& canvas) {
  canvas.body(
      Rounded({{50, 12}, {24, 22}, {22, 50}, {36, 82}, {50, 90}, {64, 82}, {78, 50}, {76, 22}}),
      Linen);
  canvas.flat(Rounded({{30, 42}, {38, 37}, {45, 43}, {38, 47}}), Ink.color());
  canvas.flat(Mirrored(Rounded({{30, 42}, {38, 37}, {45, 43}, {38, 47}})), Ink.color());
  canvas.line(QPointF(50, 44), QPointF(48, 60), Ink.color(120), 1.4);
  for (int x = 38; x < 64; x += 5) {
    canvas.line(QPointF(x, 68), QPointF(x + 1, 76), Wine.color(), 1.6);
  }
  canvas.line(QPointF(36, 72), QPointF(64, 72), Wine.color(), 1.4);
}

void Bell(Canvas& canvas) {
  canvas.line(Oval({50, 18}, 7, 8), Wood.lit(0.6).color(), 3);
  canvas.body(Oval({50, 80}, 6, 6), Steel.lit(0.7));
  canvas.body(
      Rounded({{50, 22}, {36, 28}, {32, 54}, {20, 74}, {50, 80}, {80, 74}, {68, 54}, {64, 28}}),
      Steel.lit(1.3));
  canvas.line(QPointF(30, 62), QPointF(70, 62), Ink.color(120), 1.4);
}

void Mirror(Canvas& canvas) {
  PaintShaft(canvas, {50, 62}, {50, 90}, 6, Bronze.lit(0.8));
  canvas.body(Oval({50, 38}, 28, 30), Bronze);
  canvas.body(Oval({50, 38}, 22, 24), Bronze.lit(1.3));
  canvas.line(QPointF(38, 44), QPointF(54, 24), QColor(255, 240, 210, 190), 3);
}

void Scales(Canvas& canvas) {
  PaintShaft(canvas, {50, 16}, {50, 82}, 4, Bronze);
  PaintShaft(canvas, {18, 30}, {82, 22}, 3, Bronze);
  canvas.body(Angular({{32, 88}, {40, 80}, {60, 80}, {68, 88}}), Bronze);
  for (const QPointF& end : {QPointF(18, 30), QPointF(82, 22)}) {
    canvas.line(end, end + QPointF(-11, 30), Ink.color(180), 1);
    canvas.line(end, end + QPointF(11, 30), Ink.color(180), 1);
    canvas.body(Rounded({end + QPointF(-14, 30), end + QPointF(14, 30), end + QPointF(0, 40)}),
                Bronze.lit(1.15));
  }
}

void Hourglass(Canvas& canvas) {
  canvas.body(Rounded({{30, 20},
                       {70, 20},
                       {66, 38},
                       {53, 50},
                       {66, 62},
                       {70, 82},
                       {30, 82},
                       {34, 62},
                       {47, 50},
                       {34, 38}}),
              Glass);
  canvas.flat(Rounded({{36, 22}, {64, 22}, {60, 36}, {50, 44}, {40, 36}}), Ink.color());
  canvas.line(QPointF(50, 46), QPointF(50, 78), Ink.color(), 1.4);
  for (const double y : {15.0, 85.0}) {
    canvas.body(Angular({{22, y - 4}, {78, y - 4}, {78, y + 4}, {22, y + 4}}), Wood.lit(0.8));
  }
}

void Staff(Canvas& canvas) {
  PaintShaft(canvas, {30, 94}, {62, 26}, 4.6, Wood.lit(0.75));
  canvas.glow({66, 18}, 24, Tone{255, 196, 90}.color(170));
  canvas.body(Angular({{66, 4}, {76, 18}, {66, 32}, {56, 18}}), {214, 150, 60});
  canvas.line(QPointF(66, 6), QPointF(66, 30), Ink.color(140), 1);
}

void Ribbon(Canvas& canvas) {
  canvas.body(Rounded({{10, 30}, {30, 24}, {44, 38}, {42, 50}, {28, 36}, {12, 40}}), Wine.lit(1.3));
  canvas.body(Rounded({{90, 74}, {72, 80}, {56, 66}, {58, 52}, {74, 66}, {88, 62}}), Wine.lit(1.1));
  for (int thread = 0; thread < 4; ++thread) {
    canvas.line(QPointF(42, 40 + thread * 3), QPointF(48 + thread % 2 * 2, 42 + thread * 3),
                Wine.color(), 1);
    canvas.line(QPointF(58, 54 + thread * 3), QPointF(52 - thread % 2 * 2, 53 + thread * 3),
                Wine.color(), 1);
  }
}

void Dice(Canvas& canvas) {
  for (const QPointF& at : {QPointF(32, 58), QPointF(64, 40), QPointF(62, 76)}) {
    canvas.body(Rounded({at + QPointF(-14, -12), at + QPointF(13, -14), at + QPointF(14, 12),
                         at + QPointF(-12, 14)}),
                Bone);
    for (const QPointF& eye : {QPointF(-6, -6), QPointF(0, 0), QPointF(6, 6)}) {
      canvas.flat(Oval(at + eye, 1.8, 1.8), Ink.color());
    }
  }
}

void Astrolabe(Canvas& canvas) {
  canvas.line(Oval({50, 12}, 5, 5), Gold.color(), 2.4);
  canvas.body(Oval({50, 54}, 36, 36).subtracted(Oval({50, 54}, 28, 28)), Gold);
  canvas.body(Oval({50, 60}, 20, 20).subtracted(Oval({50, 60}, 16, 16)), Gold.lit(0.85));
  PaintShaft(canvas, {26, 74}, {74, 34}, 2.4, Gold.lit(1.1));
  for (int notch = 0; notch < 24; ++notch) {
    const QTransform turn = QTransform().translate(50, 54).rotate(notch * 15);
    canvas.line(turn.map(QPointF(30, 0)), turn.map(QPointF(34, 0)), Ink.color(170), 0.8);
  }
}

void Cloak(Canvas& canvas) {
  canvas.body(
      Rounded({{50, 16}, {34, 22}, {22, 50}, {14, 88}, {50, 94}, {86, 88}, {78, 50}, {66, 22}}),
      {116, 54, 44});
  canvas.flat(Angular({{50, 30}, {44, 92}, {56, 92}}), Ink.color(130));
  for (int tuft = 0; tuft < 9; ++tuft) {
    canvas.body(Oval({30 + tuft * 5.0, 22 + std::abs(tuft - 4) * 1.4}, 5, 5), Linen, 0.4);
  }
  canvas.body(Oval({50, 31}, 4, 4), Gold);
}

void BeeInAJar(Canvas& canvas) {
  canvas.body(Rounded({{36, 22}, {64, 22}, {74, 40}, {74, 82}, {50, 88}, {26, 82}, {26, 40}}),
              Glass);
  canvas.body(Angular({{34, 12}, {66, 12}, {66, 23}, {34, 23}}), Wood);
  canvas.flat(Oval({42, 50}, 9, 5), QColor(255, 255, 255, 190));
  canvas.flat(Oval({58, 50}, 9, 5), QColor(255, 255, 255, 190));
  canvas.body(Oval({50, 60}, 7, 13), {232, 176, 52}, 0.6);
  for (const double y : {56.0, 62.0, 68.0}) {
    canvas.line(QPointF(44.5, y), QPointF(55.5, y), Ink.color(), 2);
  }
}

constexpr Motif Things[] = {
    {"sword", {92, 76, 84}, OneSword},   {"brokensword", {84, 84, 96}, BrokenSword},
    {"axe", {104, 112, 96}, Axe},        {"sabre", {150, 120, 84}, Sabre},
    {"dagger", {128, 112, 112}, Dagger}, {"shield", {92, 84, 76}, Shield},
    {"hammer", {96, 72, 64}, Hammer},    {"horn", {84, 96, 108}, Horn},
    {"anchor", {110, 130, 140}, Anchor}, {"seal", {88, 72, 60}, Seal},
    {"ring", {72, 66, 92}, SignetRing},  {"amber", {96, 108, 116}, Amber},
    {"crown", {84, 52, 72}, Crown},      {"mask", {66, 60, 76}, Mask},
    {"bell", {128, 104, 76}, Bell},      {"mirror", {88, 84, 92}, Mirror},
    {"scales", {100, 92, 84}, Scales},   {"hourglass", {108, 92, 84}, Hourglass},
    {"staff", {110, 92, 70}, Staff},     {"ribbon", {150, 146, 136}, Ribbon},
    {"dice", {72, 84, 88}, Dice},        {"astrolabe", {76, 88, 108}, Astrolabe},
    {"cloak", {120, 124, 128}, Cloak},   {"bee", {112, 124, 84}, BeeInAJar}};

}  // namespace

std::span<const Motif> Curios() {
  return Things;
}

}  // namespace Pictures
