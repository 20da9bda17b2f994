#include "pictures/Motif.h"

namespace Pictures {

namespace {

constexpr Tone Clay{176, 106, 70};
constexpr Tone Parchment{226, 208, 166};
constexpr Tone Brick{150, 92, 72};
constexpr Tone Hide{168, 124, 82};

void Book(Canvas& canvas) {
  canvas.body(Angular({{20, 22}, {66, 12}, {82, 76}, {36, 88}}), {112, 58, 42});
  canvas.body(Angular({{36, 88}, {82, 76}, {84, 83}, {38, 94}}), Parchment);
  canvas.line(QPointF(28, 21), QPointF(44, 86), Ink.color(150), 1.6);
  for (const QPointF& corner : {QPointF(64, 17), QPointF(78, 72), QPointF(46, 82)}) {
    canvas.body(Oval(corner, 4, 4), Gold, 0.6);
  }
  canvas.line(QPointF(40, 36), QPointF(62, 31), Gold.color(), 2);
  canvas.line(QPointF(42, 44), QPointF(64, 39), Gold.color(), 2);
}

void Scroll(Canvas& canvas) {
  canvas.body(Angular({{24, 20}, {76, 20}, {76, 80}, {24, 80}}), Parchment);
  for (int line = 0; line < 7; ++line) {
    canvas.line(QPointF(31, 32 + line * 6.5), QPointF(56, 32 + line * 6.5), Ink.color(170), 1.2);
    canvas.line(QPointF(62, 32 + line * 6.5), QPointF(69, 32 + line * 6.5),
                Tone{150, 40, 40}.color(), 1.2);
  }
  for (const double y : {17.0, 83.0}) {
    canvas.body(Rounded({{18, y - 5}, {82, y - 5}, {84, y}, {82, y + 5}, {18, y + 5}, {16, y}}),
                Parchment.lit(0.85));
  }
}

void Anvil(Canvas& canvas) {
  const Tone iron = Steel.lit(0.55);
  canvas.body(Angular({{34, 74}, {66, 74}, {72, 92}, {28, 92}}), Wood.lit(0.8));
  canvas.body(Angular({{40, 52}, {60, 52}, {64, 76}, {36, 76}}), iron.lit(0.9));
  canvas.body(Rounded({{8, 34}, {30, 32}, {84, 30}, {84, 48}, {62, 54}, {38, 54}, {26, 44}}), iron);
}

void Saw(Canvas& canvas) {
  canvas.body(Angular({{34, 56}, {88, 22}, {92, 30}, {44, 74}}), Steel.lit(1.1));
  for (int tooth = 0; tooth < 11; ++tooth) {
    const QPointF at = QPointF(46, 72) + QPointF(43, -38) * (tooth / 10.0);
    canvas.flat(Angular({at, at + QPointF(3, 3), at + QPointF(4, -3.4)}), Steel.color());
  }
  canvas.body(Rounded({{14, 76}, {24, 56}, {38, 54}, {46, 72}, {34, 88}, {20, 88}})
                  .subtracted(Oval({30, 72}, 6, 7)),
              Wood);
}

void Shovel(Canvas& canvas) {
  PaintShaft(canvas, {72, 12}, {42, 60}, 5);
  PaintShaft(canvas, {64, 8}, {80, 18}, 5);
  canvas.body(Rounded({{32, 54}, {52, 66}, {46, 84}, {22, 92}, {22, 68}}), Steel);
}

void Grindstone(Canvas& canvas) {
  PaintShaft(canvas, {26, 90}, {46, 48}, 5);
  PaintShaft(canvas, {78, 90}, {58, 48}, 5);
  canvas.body(Oval({52, 46}, 30, 30), {150, 144, 136});
  canvas.line(Oval({52, 46}, 22, 22), Ink.color(90), 1.2);
  canvas.body(Oval({52, 46}, 5, 5), Steel);
  PaintShaft(canvas, {52, 46}, {70, 56}, 3, Steel);
}

void TanningFrame(Canvas& canvas) {
  canvas.body(
      Rounded({{34, 28}, {50, 34}, {66, 28}, {64, 50}, {70, 72}, {50, 66}, {30, 72}, {36, 50}}),
      Hide);
  for (const QPointF& at : {QPointF(34, 28), QPointF(66, 28), QPointF(30, 72), QPointF(70, 72)}) {
    canvas.line(at, QPointF(50, 50) + (at - QPointF(50, 50)) * 1.7, Ink.color(), 1.2);
  }
  PaintShaft(canvas, {20, 10}, {20, 92}, 5);
  PaintShaft(canvas, {80, 10}, {80, 92}, 5);
  PaintShaft(canvas, {12, 16}, {88, 16}, 5);
  PaintShaft(canvas, {12, 84}, {88, 84}, 5);
}

void Bellows(Canvas& canvas) {
  canvas.body(Rounded({{16, 30}, {50, 18}, {76, 40}, {70, 66}, {40, 80}, {18, 66}}), Hide.lit(0.8));
  for (int fold = 0; fold < 4; ++fold) {
    canvas.line(QPointF(24 + fold * 12, 28 - fold), QPointF(26 + fold * 11, 72 - fold * 2),
                Ink.color(130), 1.4);
  }
  canvas.body(Rounded({{10, 26}, {52, 12}, {78, 40}, {72, 44}, {50, 20}, {14, 34}}), Wood);
  canvas.body(Rounded({{10, 72}, {20, 66}, {44, 80}, {72, 62}, {78, 66}, {46, 90}}),
              Wood.lit(0.85));
  canvas.body(Angular({{72, 46}, {94, 54}, {94, 60}, {72, 62}}), Steel.lit(0.7));
}

void Kiln(Canvas& canvas) {
  canvas.body(Rounded({{18, 88}, {20, 50}, {36, 30}, {64, 30}, {80, 50}, {82, 88}}), Brick);
  for (int row = 0; row < 6; ++row) {
    canvas.line(QPointF(20, 44 + row * 8), QPointF(80, 44 + row * 8), Ink.color(70), 1);
  }
  canvas.body(Angular({{42, 32}, {44, 12}, {56, 12}, {58, 32}}), Brick.lit(0.85));
  canvas.flat(Rounded({{36, 88}, {38, 66}, {50, 58}, {62, 66}, {64, 88}}), Ink.color());
  canvas.glow({50, 84}, 16, Tone{255, 150, 50}.color(230));
}

void Alembic(Canvas& canvas) {
  PaintShaft(canvas, {8, 80}, {92, 80}, 6);
  canvas.body(Rounded({{24, 76},
                       {16, 62},
                       {22, 50},
                       {28, 46},
                       {28, 30},
                       {36, 30},
                       {36, 46},
                       {42, 50},
                       {48, 62},
                       {40, 76}}),
              {164, 200, 150});
  canvas.line(QPointF(32, 30), QPointF(72, 52), Tone{190, 214, 210}.color(), 4);
  canvas.body(Rounded({{60, 76}, {60, 56}, {82, 56}, {82, 76}}), {150, 110, 170});
  canvas.body(Rounded({{66, 36}, {70, 22}, {74, 36}, {78, 44}, {62, 44}}), {196, 90, 70});
}

void Waterwheel(Canvas& canvas) {
  canvas.body(Oval({50, 46}, 36, 36).subtracted(Oval({50, 46}, 29, 29)), Wood);
  for (int spoke = 0; spoke < 8; ++spoke) {
    const QTransform turn = QTransform().translate(50, 46).rotate(spoke * 45 + 10);
    canvas.line(turn.map(QPointF(0, 0)), turn.map(QPointF(30, 0)), Wood.lit(0.8).color(), 3);
    canvas.body(turn.map(Angular({{32, -5}, {42, -5}, {42, 5}, {32, 5}})), Clay, 0.6);
  }
  canvas.body(Oval({50, 46}, 5, 5), Steel.lit(0.7));
  canvas.body(Rounded({{-10, 80}, {30, 76}, {70, 80}, {110, 76}, {110, 110}, {-10, 110}}),
              {70, 142, 160}, 0);
}

void Jug(Canvas& canvas) {
  canvas.line(Rounded({{66, 34}, {84, 34}, {84, 54}, {70, 58}}), Clay.lit(0.8).color(), 4.6);
  canvas.body(Rounded({{42, 22},
                       {58, 22},
                       {60, 34},
                       {74, 50},
                       {70, 80},
                       {50, 90},
                       {30, 80},
                       {26, 50},
                       {40, 34}}),
              Clay);
  canvas.body(Rounded({{38, 14}, {62, 14}, {62, 24}, {38, 24}}), {132, 40, 48});
  for (const QPointF& drop : {QPointF(38, 56), QPointF(58, 50), QPointF(52, 70), QPointF(42, 76)}) {
    canvas.flat(Oval(drop, 1.6, 2.2), QColor(220, 240, 255, 200));
  }
}

void Waterskin(Canvas& canvas) {
  canvas.line(Rounded({{62, 22}, {84, 40}, {74, 72}, {80, 44}}), Wood.lit(0.6).color(), 2.4);
  canvas.body(Rounded({{52, 20}, {62, 22}, {72, 46}, {68, 78}, {44, 90}, {22, 76}, {24, 48}}),
              {112, 128, 78});
  canvas.body(Angular({{50, 10}, {64, 12}, {63, 24}, {50, 23}}), Wood);
  for (int scale = 0; scale < 12; ++scale) {
    const int column = scale % 4;
    const int row = scale / 4;
    canvas.line(Oval({34 + column * 9.0, 48 + row * 11.0}, 3.6, 2.6), Ink.color(90), 0.8);
  }
}

void OilLamp(Canvas& canvas) {
  canvas.glow({84, 36}, 26, Tone{255, 200, 100}.color(220));
  canvas.line(Oval({18, 56}, 10, 10), Clay.lit(0.8).color(), 4);
  canvas.body(Rounded({{22, 54}, {44, 44}, {60, 46}, {88, 46}, {66, 70}, {44, 76}, {26, 68}}),
              Clay);
  canvas.body(Angular({{34, 84}, {40, 74}, {56, 74}, {62, 84}}), Clay.lit(0.85));
  canvas.body(Rounded({{84, 46}, {80, 36}, {86, 22}, {91, 36}}), {250, 180, 60}, 0.4);
}

constexpr Motif Tools[] = {{"book", {104, 96, 84}, Book},
                           {"scroll", {88, 84, 76}, Scroll},
                           {"anvil", {142, 92, 64}, Anvil},
                           {"saw", {132, 116, 88}, Saw},
                           {"shovel", {176, 144, 96}, Shovel},
                           {"grindstone", {116, 108, 96}, Grindstone},
                           {"tanning", {132, 136, 104}, TanningFrame},
                           {"bellows", {132, 84, 64}, Bellows},
                           {"kiln", {128, 116, 100}, Kiln},
                           {"alembic", {92, 80, 112}, Alembic},
                           {"waterwheel", {176, 152, 108}, Waterwheel},
                           {"jug", {160, 140, 104}, Jug},
                           {"waterskin", {148, 132, 104}, Waterskin},
                           {"lamp", {72, 64, 72}, OilLamp}};

}  // namespace

std::span<const Motif> Workshop() {
  return Tools;
}

}  // namespace Pictures
