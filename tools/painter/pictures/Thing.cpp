#include "pictures/Thing.h"

#include <algorithm>

#include "pictures/Motif.h"

namespace Pictures {

namespace {

constexpr Tone Leaf{104, 142, 66};
constexpr Tone Stone{150, 144, 136};

void Chest(Canvas& canvas, const Tone& wood, const Tone& metal) {
  canvas.flat(Oval({50, 84}, 38, 6), Ink.color(110));
  canvas.body(Rounded({{16, 52}, {20, 32}, {50, 24}, {80, 32}, {84, 52}}), wood.lit(1.1));
  canvas.body(Angular({{15, 50}, {85, 50}, {82, 84}, {18, 84}}), wood);
  for (const double x : {24.0, 50.0, 76.0}) {
    canvas.line(QPointF(x, 32), QPointF(x, 83), metal.towards(Ink, 0.6).color(), 6.4);
    canvas.line(QPointF(x, 32), QPointF(x, 83), metal.color(), 4.6);
  }
  canvas.line(QPointF(15, 51), QPointF(85, 51), Ink.color(), 1.8);
  canvas.body(Angular({{44, 48}, {56, 48}, {55, 62}, {45, 62}}), metal.lit(1.15));
  canvas.flat(Oval({50, 53}, 1.9, 1.9), Ink.color());
  canvas.flat(Angular({{49.2, 54}, {50.8, 54}, {51.4, 59}, {48.6, 59}}), Ink.color());
}

void PlainChest(Canvas& canvas) {
  Chest(canvas, Wood, Steel.lit(0.75));
}

void WeaponChest(Canvas& canvas) {
  PaintSword(canvas, {24, 60}, {78, 8});
  PaintSword(canvas, {76, 60}, {22, 8});
  Chest(canvas, {104, 76, 58}, Steel);
}

void MagicChest(Canvas& canvas) {
  canvas.glow({50, 36}, 48, Tone{120, 170, 255}.color(220));
  Chest(canvas, {64, 66, 112}, {168, 190, 232});
  canvas.glow({50, 54}, 16, Tone{170, 220, 255}.color(220));
}

void GoldChest(Canvas& canvas) {
  canvas.glow({50, 36}, 46, Tone{255, 220, 120}.color(200));
  Chest(canvas, {152, 96, 44}, Gold.lit(1.15));
  for (int coin = 0; coin < 7; ++coin) {
    canvas.body(Oval({20 + coin * 10.0, 84 + (coin % 2) * 5.0}, 6, 3.6), Gold.lit(1.2), 0.7);
  }
}

void StonePlate(Canvas& canvas) {
  canvas.glow({50, 50}, 44, Tone{120, 210, 220}.color(130));
  canvas.body(Rounded({{50, 12}, {28, 22}, {22, 56}, {30, 86}, {70, 86}, {78, 56}, {72, 22}}),
              Stone);
  const QColor rune = Tone{130, 230, 240}.color();
  canvas.line(QPointF(50, 26), QPointF(50, 72), rune, 3);
  canvas.line(QPointF(50, 34), QPointF(64, 46), rune, 3);
  canvas.line(QPointF(64, 46), QPointF(36, 60), rune, 3);
  canvas.line(Oval({50, 49}, 22, 28), rune, 1.6);
}

void Chalice(Canvas& canvas) {
  canvas.glow({50, 26}, 34, Tone{255, 150, 50}.color(210));
  canvas.body(Rounded({{50, 6}, {58, 18}, {60, 30}, {40, 30}, {42, 18}}), {250, 166, 50}, 0.4);
  canvas.body(Rounded({{26, 30}, {74, 30}, {68, 52}, {55, 60}, {45, 60}, {32, 52}}), Gold);
  canvas.body(Angular({{46, 58}, {54, 58}, {53, 78}, {47, 78}}), Gold.lit(0.9));
  canvas.body(Rounded({{30, 86}, {38, 78}, {62, 78}, {70, 86}, {50, 90}}), Gold);
  canvas.body(Oval({50, 43}, 5, 5), {190, 40, 44});
}

void Artefact(Canvas& canvas) {
  canvas.glow({50, 54}, 46, Tone{190, 130, 255}.color(170));
  canvas.line(Rounded({{50, 40}, {26, 24}, {30, 8}, {50, 6}, {70, 8}, {74, 24}}),
              Gold.lit(0.8).color(), 2.4);
  canvas.body(Oval({50, 58}, 24, 24), Gold);
  canvas.body(Oval({50, 58}, 17, 17), {84, 52, 128});
  canvas.body(Angular({{50, 44}, {60, 58}, {50, 72}, {40, 58}}), {180, 130, 240});
  canvas.flat(Angular({{50, 46}, {44, 58}, {50, 58}}), QColor(255, 255, 255, 140));
}

void Key(Canvas& canvas) {
  QPainterPath ring = Oval({34, 32}, 18, 18).subtracted(Oval({34, 32}, 9.5, 9.5));
  canvas.body(ring, Gold);
  canvas.body(Angular({{43, 46}, {48, 41}, {84, 77}, {79, 82}}), Gold);
  canvas.body(Angular({{70, 73}, {62, 81}, {67, 86}, {75, 78}}), Gold.lit(0.9));
  canvas.body(Angular({{59, 62}, {52, 69}, {57, 74}, {64, 67}}), Gold.lit(0.9));
}

void Millstone(Canvas& canvas) {
  canvas.flat(Oval({54, 84}, 36, 6), Ink.color(110));
  canvas.body(Oval({55, 50}, 35, 35), Stone.lit(0.7));
  canvas.body(Oval({48, 48}, 34, 34), Stone);
  for (int groove = 0; groove < 12; ++groove) {
    const QTransform turn = QTransform().translate(48, 48).rotate(groove * 30);
    canvas.line(turn.map(QPointF(12, 0)), turn.map(QPointF(31, 7)), Ink.color(110), 1.4);
  }
  canvas.flat(Oval({48, 48}, 9, 9), Ink.color());
}

void Basket(Canvas& canvas) {
  canvas.line(Rounded({{24, 50}, {34, 16}, {66, 16}, {76, 50}, {66, 22}, {34, 22}}),
              Wood.lit(0.8).color(), 3.4);
  for (int apple = 0; apple < 5; ++apple) {
    canvas.body(Oval({28 + apple * 11.0, 46 - (apple % 2) * 5.0}, 8, 8),
                apple % 2 == 0 ? Tone{190, 52, 44} : Tone{196, 176, 70});
  }
  canvas.body(Rounded({{16, 48}, {84, 48}, {74, 86}, {26, 86}}), {178, 132, 78});
  for (int band = 0; band < 4; ++band) {
    canvas.line(QPointF(18 + band * 2, 56 + band * 8), QPointF(82 - band * 2, 56 + band * 8),
                Ink.color(110), 1.2);
  }
  for (int rib = 0; rib < 7; ++rib) {
    canvas.line(QPointF(22 + rib * 9.3, 50), QPointF(29 + rib * 7, 85), Ink.color(90), 1.2);
  }
}

void Tool(Canvas& canvas) {
  canvas.line(QPointF(26, 84), QPointF(62, 30), Ink.color(), 7.4);
  canvas.line(QPointF(26, 84), QPointF(62, 30), Wood.color(), 5.6);
  canvas.body(Rounded({{34, 20}, {62, 18}, {84, 40}, {82, 52}, {66, 34}, {48, 26}, {32, 28}}),
              Steel);
}

void Tablet(Canvas& canvas) {
  canvas.body(Angular({{22, 14}, {70, 10}, {80, 22}, {78, 88}, {24, 90}, {18, 60}}),
              {186, 164, 126});
  for (int line = 0; line < 6; ++line) {
    for (int sign = 0; sign < 6; ++sign) {
      const QPointF at(29 + sign * 8.0, 25 + line * 10.0);
      canvas.line(at, at + QPointF((line * 3 + sign * 5) % 4, 5), Ink.color(190), 1.4);
      canvas.line(at + QPointF(0, (line + sign) % 3 * 2.0), at + QPointF(4, 1), Ink.color(190),
                  1.2);
    }
  }
  canvas.line(QPointF(78, 54), QPointF(56, 62), Ink.color(150), 1.0);
}

void Weapons(Canvas& canvas) {
  PaintSword(canvas, {20, 86}, {76, 12});
  PaintSword(canvas, {80, 86}, {24, 12});
  PaintSword(canvas, {50, 92}, {50, 8});
  canvas.body(Angular({{36, 58}, {64, 58}, {62, 68}, {38, 68}}), {150, 60, 44});
}

void Root(Canvas& canvas) {
  canvas.pair(Rounded({{50, 34}, {34, 24}, {28, 8}, {42, 14}}), Leaf);
  canvas.body(Rounded({{50, 36}, {46, 22}, {50, 6}, {54, 22}}), Leaf.lit(1.15));
  canvas.body(Rounded({{40, 34},
                       {60, 34},
                       {66, 50},
                       {58, 66},
                       {66, 88},
                       {52, 72},
                       {46, 92},
                       {42, 70},
                       {28, 82},
                       {36, 60},
                       {34, 46}}),
              {142, 108, 78});
  const QColor vein = Tone{188, 40, 36}.color();
  canvas.line(QPointF(47, 37), QPointF(45, 62), vein, 1.6);
  canvas.line(QPointF(45, 62), QPointF(33, 78), vein, 1.3);
  canvas.line(QPointF(46, 60), QPointF(47, 86), vein, 1.3);
  canvas.line(QPointF(55, 37), QPointF(54, 66), vein, 1.6);
  canvas.line(QPointF(54, 66), QPointF(63, 83), vein, 1.3);
}

void Berry(Canvas& canvas) {
  canvas.line(QPointF(50, 10), QPointF(50, 52), Leaf.lit(0.6).color(), 3);
  canvas.pair(Rounded({{49, 34}, {30, 36}, {16, 24}, {34, 20}}), Leaf);
  for (const QPointF& at : {QPointF(38, 56), QPointF(60, 54), QPointF(49, 66), QPointF(34, 74),
                            QPointF(64, 73), QPointF(49, 84)}) {
    canvas.body(Oval(at, 9, 9), {62, 76, 146});
    canvas.flat(Oval(at - QPointF(3, 3), 2.2, 2.2), QColor(255, 255, 255, 170));
  }
}

void Sorrel(Canvas& canvas) {
  for (const double lean : {-26.0, -10.0, 10.0, 26.0}) {
    canvas.body(Rounded({{50, 88}, {46 + lean * 0.7, 58}, {50 + lean, 30}, {54 + lean * 0.9, 60}}),
                Leaf.lit(1.05));
  }
  canvas.line(QPointF(50, 88), QPointF(50, 24), Tone{112, 92, 58}.color(), 2.4);
  for (int bud = 0; bud < 8; ++bud) {
    canvas.body(Oval({50 + (bud % 2 == 0 ? -4.0 : 4.0), 14 + bud * 5.0}, 4.2, 4.2), {196, 70, 84},
                0.5);
  }
}

void Resource(Canvas& canvas) {
  canvas.flat(Oval({50, 84}, 40, 6), Ink.color(110));
  canvas.body(Angular({{12, 84}, {20, 56}, {40, 46}, {58, 58}, {60, 84}}), Stone.lit(0.85));
  canvas.body(Angular({{46, 84}, {50, 54}, {72, 44}, {90, 62}, {88, 84}}), Stone);
  for (const QPointF& at : {QPointF(32, 62), QPointF(66, 60), QPointF(76, 74), QPointF(44, 76)}) {
    canvas.body(Angular({at + QPointF(-7, 2), at + QPointF(-1, -7), at + QPointF(7, -1),
                         at + QPointF(3, 6)}),
                {208, 134, 66}, 0.6);
  }
}

constexpr Motif PlainThings[] = {
    {"chest", {120, 104, 84}, PlainChest},    {"weaponchest", {108, 84, 80}, WeaponChest},
    {"magechest", {66, 62, 104}, MagicChest}, {"goldchest", {112, 72, 60}, GoldChest},
    {"stone", {72, 88, 96}, StonePlate},      {"chalice", {112, 50, 46}, Chalice},
    {"artefact", {72, 56, 96}, Artefact},     {"key", {62, 84, 92}, Key},
    {"millstone", {132, 128, 96}, Millstone}, {"basket", {120, 132, 92}, Basket},
    {"tool", {124, 112, 92}, Tool},           {"tablet", {94, 104, 104}, Tablet},
    {"weapons", {92, 76, 84}, Weapons},       {"root", {132, 128, 88}, Root},
    {"berry", {168, 160, 120}, Berry},        {"sorrel", {150, 156, 116}, Sorrel},
    {"resource", {104, 108, 112}, Resource}};

const Motif* FindMotif(std::string_view name) {
  for (const std::span<const Motif> motifs :
       {std::span<const Motif>(PlainThings), Curios(), Workshop()}) {
    const auto found = std::ranges::find(motifs, name, &Motif::name);
    if (found != motifs.end()) {
      return &*found;
    }
  }
  return nullptr;
}

}  // namespace

void PaintShaft(Canvas& canvas, QPointF from, QPointF to, double width, const Tone& tone) {
  canvas.line(from, to, Ink.color(), width + 1.8);
  canvas.line(from, to, tone.color(), width);
}

void PaintSword(Canvas& canvas, QPointF foot, QPointF tip) {
  const QPointF way = tip - foot;
  const QPointF aside = QPointF(-way.y(), way.x()) * 0.05;
  canvas.body(Angular({foot + way * 0.24 + aside, foot + way * 0.92 + aside, tip,
                       foot + way * 0.92 - aside, foot + way * 0.24 - aside}),
              Steel.lit(1.15));
  canvas.line(foot + way * 0.24 + aside * 4, foot + way * 0.24 - aside * 4, Ink.color(), 5.4);
  canvas.line(foot + way * 0.24 + aside * 4, foot + way * 0.24 - aside * 4, Gold.color(), 3.8);
  canvas.line(foot, foot + way * 0.22, Wood.lit(0.7).color(), 4.2);
  canvas.body(Oval(foot, 3.4, 3.4), Gold);
}

bool PaintThing(Canvas& canvas, std::string_view kind) {
  const Motif* found = FindMotif(kind);
  if (!found) {
    return false;
  }
  canvas.backdrop(found->cloth.lit(1.3), found->cloth.lit(0.42));
  found->paint(canvas);
  return true;
}

}  // namespace Pictures
