#include "pictures/Scene.h"

#include <algorithm>

#include "pictures/Landmarks.h"
#include "pictures/Person.h"
#include "pictures/SceneParts.h"

namespace Pictures {

namespace {

using Terrain::Random;

struct Hour {
  Tone zenith, horizon, light;
};

constexpr Hour Hours[] = {{{112, 160, 208}, {214, 228, 230}, {255, 250, 220}},
                          {{122, 110, 156}, {246, 186, 126}, {255, 220, 150}},
                          {{34, 46, 84}, {108, 118, 148}, {226, 232, 244}},
                          {{150, 176, 196}, {232, 222, 196}, {255, 244, 210}}};

void PaintSky(Canvas& canvas, Random& random) {
  const Hour& hour = Hours[random.below(4)];
  QLinearGradient sky(0, 0, 0, 70);
  sky.setColorAt(0, hour.zenith.color());
  sky.setColorAt(1, hour.horizon.color());
  canvas.painter().fillRect(QRectF(0, 0, 100, 100), sky);
  const QPointF sun(random.between(15, 85), random.between(14, 30));
  canvas.glow(sun, 26, hour.light.color(130));
  canvas.flat(Oval(sun, 5, 5), hour.light.color());
}

void City(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  for (int house = 0; house < 5; ++house) {
    House(canvas, {18 + house * 16.0, random.between(64, 69)}, random.between(13, 18),
          Tiles.lit(random.between(0.85, 1.15)));
  }
  Tower(canvas, {50, 72}, 6.5, 42, true);
  Tower(canvas, {random.between(24, 32), 74}, 5, 28, true);
  Wall(canvas, 4, 96, 72, 88);
  Gate(canvas, {50, 88}, 6, 12);
}

void Village(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  House(canvas, {28, 74}, 22, {176, 140, 78});
  House(canvas, {70, 72}, 19, {164, 126, 72});
  House(canvas, {49, 88}, 26, {186, 146, 84});
}

void Fort(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Rock.lit(1.1));
  Tower(canvas, {50, 76}, 12, 46, false);
  Tower(canvas, {18, 84}, 8, 36, false);
  Tower(canvas, {82, 84}, 8, 36, false);
  Wall(canvas, 18, 82, 64, 86);
  Gate(canvas, {50, 86}, 8, 15);
}

void Cave(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.lit(0.8));
  canvas.body(Rounded({{2, 86}, {8, 48}, {28, 26}, {52, 18}, {78, 30}, {94, 58}, {98, 88}}), Rock);
  canvas.flat(Rounded({{28, 90}, {30, 62}, {42, 46}, {56, 44}, {68, 58}, {72, 90}}), Ink.color());
  for (const double x : {38.0, 47.0, 57.0}) {
    canvas.body(Angular({{x - 3, 48}, {x + 3, 48}, {x, 58 + random.between(0, 6)}}), Rock.lit(0.7),
                0.4);
  }
}

void Shrine(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  canvas.glow({50, 42}, 34, Tone{255, 226, 140}.color(170));
  canvas.body(Angular({{28, 84}, {72, 84}, {68, 74}, {32, 74}}), Masonry);
  canvas.body(Angular({{40, 74}, {60, 74}, {57, 48}, {43, 48}}), Masonry.lit(1.1));
  canvas.body(Oval({50, 38}, 11, 11), Gold);
  canvas.body(Oval({50, 38}, 5, 5), {232, 240, 246});
}

void Ruin(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.towards(Rock, 0.4));
  canvas.body(Angular({{8, 84}, {8, 46}, {16, 40}, {20, 50}, {28, 46}, {30, 84}}), Masonry);
  Columns(canvas, 34, 84, 5, true, random);
  canvas.body(Angular({{66, 90}, {70, 78}, {92, 82}, {94, 92}}), Masonry.lit(0.8));
}

void Temple(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand);
  canvas.body(Angular({{10, 92}, {90, 92}, {84, 84}, {16, 84}}), Masonry);
  canvas.flat(Angular({{22, 46}, {78, 46}, {78, 84}, {22, 84}}), Ink.color(210));
  Columns(canvas, 46, 84, 5, false, random);
  canvas.body(Angular({{16, 46}, {84, 46}, {50, 22}}), {212, 196, 166});
  canvas.body(Oval({50, 38}, 4.6, 4.6), Gold);
}

void Camp(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.towards(Sand, 0.4));
  Tent(canvas, {26, 78}, 19, {188, 160, 112});
  Tent(canvas, {74, 76}, 17, {164, 92, 66});
  canvas.glow({50, 84}, 22, Tone{255, 190, 80}.color(200));
  canvas.body(Rounded({{50, 70}, {56, 80}, {54, 88}, {46, 88}, {44, 80}}), {240, 150, 48}, 0.4);
  canvas.line(QPointF(42, 90), QPointF(58, 86), Wood.lit(0.7).color(), 2.6);
  canvas.line(QPointF(42, 86), QPointF(58, 90), Wood.lit(0.7).color(), 2.6);
}

void Tomb(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.lit(0.7));
  canvas.body(Rounded({{6, 90}, {18, 62}, {50, 46}, {82, 62}, {94, 90}}), Grass.lit(0.85));
  canvas.body(Angular({{34, 88}, {36, 58}, {42, 58}, {42, 88}}), Masonry);
  canvas.body(Angular({{58, 88}, {58, 58}, {64, 58}, {66, 88}}), Masonry);
  canvas.flat(Angular({{42, 60}, {58, 60}, {58, 88}, {42, 88}}), Ink.color());
  canvas.body(Angular({{29, 60}, {32, 50}, {68, 50}, {71, 60}}), Masonry.lit(1.05));
  canvas.body(Rounded({{14, 92}, {14, 76}, {19, 71}, {24, 76}, {24, 92}}), Masonry.lit(0.9));
}

void Mine(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Rock.lit(1.2));
  canvas.body(Angular({{0, 88}, {10, 46}, {36, 22}, {58, 28}, {86, 50}, {100, 88}}), Rock);
  canvas.flat(Angular({{32, 88}, {36, 50}, {64, 50}, {68, 88}}), Ink.color());
  canvas.line(QPointF(33, 88), QPointF(37, 50), Wood.color(), 4.6);
  canvas.line(QPointF(67, 88), QPointF(63, 50), Wood.lit(0.85).color(), 4.6);
  canvas.line(QPointF(31, 49), QPointF(69, 49), Wood.lit(1.1).color(), 5.4);
  canvas.line(QPointF(46, 70), QPointF(40, 96), Steel.color(), 1.8);
  canvas.line(QPointF(54, 70), QPointF(60, 96), Steel.color(), 1.8);
  canvas.body(Angular({{40, 82}, {60, 82}, {56, 92}, {44, 92}}), Wood.lit(0.8));
}

void WatchTower(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  Tower(canvas, {50, 88}, 11, 60, random.chance(0.5));
  canvas.line(QPointF(50, 20), QPointF(50, 8), Wood.color(), 1.6);
  canvas.body(Angular({{50, 8}, {66, 11}, {50, 16}}), {178, 44, 40}, 0.5);
}

void Oasis(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand);
  canvas.body(Oval({50, 82}, 34, 9), {84, 168, 176});
  canvas.line(QPointF(32, 82), QPointF(50, 82), QColor(255, 255, 255, 130), 1.0);
  Palm(canvas, {24, 80}, random.between(38, 46));
  Palm(canvas, {74, 78}, random.between(42, 50));
  Palm(canvas, {52, 74}, random.between(26, 34));
}

void Harbour(Canvas& canvas, Random& random) {
  canvas.body(Angular({{0, 62}, {100, 62}, {100, 100}, {0, 100}}), {66, 118, 146}, 0);
  canvas.body(Rounded({{20, 70}, {82, 68}, {74, 86}, {30, 86}}), Wood);
  canvas.line(QPointF(50, 70), QPointF(50, 16), Wood.lit(0.6).color(), 2.6);
  canvas.body(Rounded({{52, 20}, {76, 38}, {74, 62}, {52, 64}}), {238, 228, 204});
  canvas.body(Angular({{48, 24}, {48, 62}, {24, 62}}), {222, 208, 180});
  canvas.body(Angular({{50, 16}, {64, 19}, {50, 23}}), {178, 44, 40}, 0.4);
  for (int wave = 0; wave < 5; ++wave) {
    const double x = random.between(4, 84);
    canvas.line(QPointF(x, 88 + wave * 2), QPointF(x + 12, 88 + wave * 2),
                QColor(255, 255, 255, 110), 1.0);
  }
}

void Monastery(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  House(canvas, {62, 84}, 40, Tiles.lit(0.85));
  Tower(canvas, {28, 86}, 9, 46, true);
  canvas.line(QPointF(28, 18), QPointF(28, 6), Gold.color(), 1.8);
  canvas.line(QPointF(24.5, 10), QPointF(31.5, 10), Gold.color(), 1.8);
  Gate(canvas, {28, 86}, 4, 11);
}

constexpr Landmark Kinds[] = {{"city", City},       {"village", Village},    {"fort", Fort},
                              {"cave", Cave},       {"shrine", Shrine},      {"ruin", Ruin},
                              {"temple", Temple},   {"camp", Camp},          {"tomb", Tomb},
                              {"mine", Mine},       {"tower", WatchTower},   {"oasis", Oasis},
                              {"harbour", Harbour}, {"monastery", Monastery}};

const Landmark* FindKind(std::string_view name) {
  for (const std::span<const Landmark> kinds : {std::span<const Landmark>(Kinds), Landmarks()}) {
    const auto found = std::ranges::find(kinds, name, &Landmark::name);
    if (found != kinds.end()) {
      return &*found;
    }
  }
  return nullptr;
}

}  // namespace

bool PaintScene(Canvas& canvas, std::string_view kind, std::string_view name) {
  const Landmark* found = FindKind(kind);
  if (!found) {
    return false;
  }
  Random random(NameSeed(name));
  PaintSky(canvas, random);
  QPainter& painter = canvas.painter();
  painter.save();
  // Seen from the one or other side, from nearer or farther.
  const double near = random.between(1.0, 1.18);
  const double side = random.chance(0.5) ? near : -near;
  painter.setTransform(QTransform(side, 0, 0, near, 50 - 50 * side, 90 - 90 * near), true);
  found->paint(canvas, random);
  painter.restore();
  return true;
}

}  // namespace Pictures
