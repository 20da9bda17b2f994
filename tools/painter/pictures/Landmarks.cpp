#include "pictures/Landmarks.h"

#include <cmath>

#include "pictures/SceneParts.h"

namespace Pictures {

namespace {

constexpr Tone Snow{226, 232, 238};
constexpr Tone Water{70, 126, 158};
constexpr Tone Fir{58, 88, 62};
constexpr Tone Loam{206, 170, 116};

void FirTree(Canvas& canvas, QPointF foot, double tall, const Tone& tone) {
  canvas.line(foot, foot + QPointF(0, -tall * 0.2), Wood.lit(0.6).color(), tall * 0.08);
  for (int tier = 0; tier < 3; ++tier) {
    const double low = -tall * (0.14 + tier * 0.26);
    const double half = tall * (0.3 - tier * 0.07);
    canvas.body(Angular({foot + QPointF(-half, low), foot + QPointF(0, low - tall * 0.42),
                         foot + QPointF(half, low)}),
                tone, 0.5);
  }
}

void Ripples(Canvas& canvas, double top, Random& random) {
  canvas.body(Angular({{-30, top}, {130, top}, {130, 120}, {-30, 120}}), Water, 0);
  for (int wave = 0; wave < 9; ++wave) {
    const double x = random.between(0, 88);
    const double y = top + 4 + wave * (96 - top) / 9;
    canvas.line(QPointF(x, y), QPointF(x + 12, y), QColor(255, 255, 255, 110), 1.0);
  }
}

void WaterMill(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  House(canvas, {60, 82}, 38, {150, 112, 70});
  const QPointF hub(34, 70);
  canvas.line(Oval(hub, 17, 17), Ink.color(), 4.6);
  canvas.line(Oval(hub, 17, 17), Wood.color(), 3.2);
  for (int spoke = 0; spoke < 8; ++spoke) {
    const QPointF way(std::cos(spoke * 0.785), std::sin(spoke * 0.785));
    canvas.line(hub, hub + way * 20, Wood.lit(0.75).color(), 2);
  }
  canvas.body(Rounded({{-10, 86}, {30, 82}, {60, 88}, {110, 84}, {110, 112}, {-10, 112}}), Water,
              0);
}

void Smithy(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Rock.lit(1.1));
  House(canvas, {42, 84}, 42, {92, 82, 78});
  canvas.body(Angular({{62, 84}, {66, 22}, {80, 22}, {84, 84}}), Masonry.lit(0.85));
  for (int puff = 0; puff < 4; ++puff) {
    canvas.flat(Oval({73 + puff * 5.0, 18 - puff * 5.0}, 5.0 + puff, 4.0 + puff),
                Ink.lit(1.8).color(110));
  }
  canvas.glow({42, 80}, 18, Tone{255, 150, 50}.color(240));
  canvas.glow({73, 80}, 14, Tone{255, 150, 50}.color(220));
}

void UnderForge(Canvas& canvas, Random& random) {
  canvas.backdrop({92, 66, 60}, {30, 26, 30});
  Columns(canvas, 8, 88, 3, false, random);
  canvas.body(Rounded({{24, 90}, {26, 58}, {50, 40}, {74, 58}, {76, 90}}), Rock.lit(0.8));
  canvas.flat(Rounded({{34, 88}, {38, 64}, {50, 58}, {62, 64}, {66, 88}}), Ink.color());
  canvas.glow({50, 76}, 30, Tone{120, 220, 255}.color(210));
  canvas.body(Rounded({{50, 60}, {57, 74}, {54, 86}, {46, 86}, {43, 74}}), {190, 240, 255}, 0.3);
}

void FrozenLake(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Snow);
  for (const double x : {8.0, 20.0, 84.0, 94.0}) {
    FirTree(canvas, {x, random.between(66, 70)}, random.between(18, 26), Fir.towards(Snow, 0.35));
  }
  canvas.body(Rounded({{10, 82}, {30, 72}, {70, 71}, {92, 80}, {76, 93}, {28, 94}}),
              {178, 210, 226});
  for (int crack = 0; crack < 5; ++crack) {
    const QPointF at(24 + crack * 12.0, 76 + crack % 3 * 5.0);
    canvas.line(at, at + QPointF(9, 4), QColor(255, 255, 255, 220), 1.2);
    canvas.line(at + QPointF(9, 4), at + QPointF(11, 9), QColor(255, 255, 255, 180), 0.8);
  }
}

void Wreck(Canvas& canvas, Random& random) {
  Ripples(canvas, 64, random);
  canvas.body(Rounded({{16, 62}, {30, 58}, {62, 66}, {84, 56}, {74, 84}, {30, 84}}), Wood.lit(0.7));
  for (int rib = 0; rib < 5; ++rib) {
    QPainterPath frame(QPointF(32 + rib * 9.0, 82));
    frame.quadTo(QPointF(28 + rib * 9.0, 60), QPointF(34 + rib * 9.0, 48 + rib % 2 * 6));
    canvas.line(frame, Wood.lit(0.5).color(), 2.4);
  }
  canvas.line(QPointF(50, 72), QPointF(66, 22), Ink.color(), 4.4);
  canvas.line(QPointF(50, 72), QPointF(66, 22), Wood.lit(0.6).color(), 3);
  canvas.body(Angular({{64, 28}, {82, 40}, {72, 46}, {76, 54}, {58, 46}}), {196, 188, 168}, 0.5);
  canvas.body(Rounded({{-10, 92}, {30, 84}, {64, 90}, {110, 84}, {110, 112}, {-10, 112}}),
              Water.lit(0.9), 0);
}

void Longship(Canvas& canvas, Random& random) {
  Ripples(canvas, 66, random);
  canvas.line(QPointF(48, 74), QPointF(48, 20), Wood.lit(0.6).color(), 2.8);
  canvas.line(QPointF(28, 26), QPointF(68, 26), Wood.lit(0.6).color(), 2.2);
  canvas.line(QPointF(48, 22), QPointF(16, 66), Ink.color(150), 0.8);
  canvas.line(QPointF(48, 22), QPointF(80, 66), Ink.color(150), 0.8);
  canvas.body(
      Rounded(
          {{6, 40}, {12, 66}, {48, 72}, {84, 66}, {92, 36}, {90, 72}, {70, 84}, {26, 84}, {8, 72}}),
      Wood.lit(0.85));
  for (int shield = 0; shield < 6; ++shield) {
    canvas.body(Oval({22 + shield * 11.0, 73}, 4.6, 4.6),
                shield % 2 == 0 ? Tone{152, 56, 48} : Tone{206, 196, 160}, 0.6);
  }
}

void DesertCity(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand);
  for (int house = 0; house < 5; ++house) {
    const double left = 6 + house * 18.0;
    const double top = random.between(52, 62);
    canvas.body(Angular({{left, top}, {left + 17, top}, {left + 17, 80}, {left, 80}}),
                Loam.lit(random.between(0.9, 1.12)));
    canvas.flat(Angular({{left + 6, top + 6},
                         {left + 10, top + 6},
                         {left + 10, top + 12},
                         {left + 6, top + 12}}),
                Ink.color(200));
  }
  canvas.body(Rounded({{36, 54}, {38, 36}, {50, 26}, {62, 36}, {64, 54}}), {96, 150, 156});
  canvas.body(Angular({{76, 58}, {78, 22}, {84, 22}, {86, 58}}), Loam.lit(1.1));
  canvas.body(Angular({{4, 76}, {96, 76}, {98, 92}, {2, 92}}), Loam);
  Gate(canvas, {50, 92}, 6, 13);
  Palm(canvas, {16, 92}, 26);
}

void RockCity(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand.towards(Rock, 0.3));
  canvas.body(Angular({{0, 92}, {4, 30}, {24, 16}, {60, 20}, {88, 12}, {100, 40}, {100, 92}}),
              {178, 116, 84});
  for (int row = 0; row < 3; ++row) {
    for (int door = 0; door < 5; ++door) {
      Gate(canvas, {16 + door * 17.0 + row % 2 * 4, 44 + row * 21.0}, row == 2 ? 4.6 : 3,
           row == 2 ? 12 : 8);
    }
    canvas.line(QPointF(8, 47 + row * 21), QPointF(94, 47 + row * 21), Ink.color(110), 1.2);
  }
}

void Peak(Canvas& canvas, QPointF top, double half, const Tone& tone) {
  canvas.body(Angular({{top.x() - half, 92}, top, {top.x() + half, 92}}), tone);
  canvas.body(Angular({{top.x() - half * 0.24, top.y() + (92 - top.y()) * 0.24},
                       top,
                       {top.x() + half * 0.26, top.y() + (92 - top.y()) * 0.26},
                       {top.x(), top.y() + (92 - top.y()) * 0.18}}),
              Snow, 0.3);
}

void Pass(Canvas& canvas, const Tone& ground) {
  Peak(canvas, {16, 14}, 40, Rock);
  Peak(canvas, {86, 18}, 42, Rock.lit(0.9));
  canvas.body(Angular({{-10, 84}, {40, 66}, {60, 66}, {110, 84}, {110, 112}, {-10, 112}}), ground,
              0);
  QPainterPath road(QPointF(30, 100));
  road.quadTo(QPointF(66, 82), QPointF(50, 66));
  canvas.line(road, Loam.lit(0.9).color(), 6);
}

void FrostPass(Canvas& canvas, Random& random) {
  Pass(canvas, Snow);
  FirTree(canvas, {14, 90}, random.between(20, 28), Fir.towards(Snow, 0.4));
  FirTree(canvas, {86, 92}, random.between(20, 28), Fir.towards(Snow, 0.4));
}

void MistPass(Canvas& canvas, Random& random) {
  Pass(canvas, Grass.lit(0.85));
  for (int bank = 0; bank < 6; ++bank) {
    canvas.flat(Oval({random.between(0, 100), 52 + bank * 8.0}, 44, 6), QColor(236, 238, 240, 120));
  }
}

void Bridge(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  canvas.body(Rounded({{-10, 82}, {50, 78}, {110, 82}, {110, 112}, {-10, 112}}), Water, 0);
  QPainterPath bridge = Angular({{0, 92}, {0, 66}, {30, 58}, {70, 58}, {100, 66}, {100, 92}});
  for (const double x : {24.0, 50.0, 76.0}) {
    bridge = bridge.subtracted(Oval({x, 92}, 10, 20));
  }
  canvas.body(bridge, Masonry);
  canvas.body(Angular({{42, 58}, {44, 34}, {56, 34}, {58, 58}}), Masonry.lit(0.9));
  Gate(canvas, {50, 58}, 4.6, 12);
  canvas.body(Angular({{38, 35}, {50, 22}, {62, 35}}), Tiles);
}

void TrialBridge(Canvas& canvas, Random& random) {
  canvas.backdrop({84, 88, 104}, {16, 16, 22});
  Columns(canvas, 4, 60, 4, false, random);
  canvas.flat(Angular({{0, 58}, {100, 58}, {100, 100}, {0, 100}}), Ink.color(235));
  canvas.body(Angular({{44, 56}, {56, 56}, {72, 100}, {28, 100}}), Masonry.lit(0.9));
  for (int y = 62; y < 98; y += 7) {
    canvas.line(QPointF(50 - (y - 34) * 0.3, y), QPointF(50 + (y - 34) * 0.3, y), Ink.color(90), 1);
  }
}

void Gallows(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.lit(0.8));
  canvas.body(Rounded({{4, 94}, {30, 70}, {54, 64}, {80, 74}, {98, 94}}), Grass.lit(0.9));
  canvas.line(QPointF(40, 74), QPointF(40, 18), Wood.lit(0.55).color(), 4);
  canvas.line(QPointF(38, 20), QPointF(72, 20), Wood.lit(0.6).color(), 4);
  canvas.line(QPointF(41, 34), QPointF(54, 21), Wood.lit(0.5).color(), 2.6);
  canvas.line(QPointF(68, 22), QPointF(68, 36), Loam.color(), 1.4);
  canvas.line(Oval({68, 40}, 3.4, 4.6), Loam.color(), 1.4);
  for (const double x : {46.0, 58.0}) {
    canvas.body(Rounded({{x, 16}, {x + 4, 10}, {x + 8, 13}, {x + 5, 18}}), Ink, 0.3);
  }
}

void Well(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand);
  canvas.body(Oval({50, 70}, 25, 9), Masonry);
  canvas.flat(Oval({50, 70}, 19, 6), Ink.color());
  canvas.body(Rounded({{25, 70}, {50, 80}, {75, 70}, {73, 92}, {50, 97}, {27, 92}}),
              Masonry.lit(0.9));
  canvas.line(QPointF(28, 70), QPointF(28, 30), Wood.color(), 3.6);
  canvas.line(QPointF(72, 70), QPointF(72, 30), Wood.lit(0.8).color(), 3.6);
  canvas.line(QPointF(22, 30), QPointF(78, 30), Wood.lit(0.9).color(), 4);
  canvas.line(QPointF(50, 30), QPointF(50, 68), Ink.color(170), 1);
  for (int crack = 0; crack < 4; ++crack) {
    const QPointF at(12 + crack * 24.0, 94);
    canvas.line(at, at + QPointF(8, 4), Ink.color(130), 1.1);
  }
}

void Arena(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand);
  for (int tier = 0; tier < 4; ++tier) {
    canvas.body(Oval({50, 66 + tier * 3.0}, 48 - tier * 8.0, 28 - tier * 5.0),
                Masonry.lit(1.1 - tier * 0.07));
  }
  canvas.body(Oval({50, 78}, 20, 9), Sand.lit(0.95));
  Gate(canvas, {50, 71}, 4, 9);
}

// Eight pillars in two rows.
void Hall(Canvas& canvas, Random& random) {
  canvas.backdrop({126, 130, 150}, {30, 32, 44});
  canvas.body(Angular({{36, 70}, {64, 70}, {110, 110}, {-10, 110}}), Rock.lit(0.9), 0);
  canvas.glow({50, 60}, 30, Tone{160, 210, 255}.color(150));
  for (int pillar = 3; pillar >= 0; --pillar) {
    const double x = 14 + pillar * 8.6;
    const double half = 4.6 - pillar * 0.8;
    const double top = 4 + pillar * 7.0 + random.between(0, 0.5);
    const double bottom = 92 - pillar * 6.0;
    canvas.pair(Angular({{x - half, top}, {x + half, top}, {x + half, bottom}, {x - half, bottom}}),
                Masonry.lit(1.15 - pillar * 0.14));
    canvas.pair(Angular({{x - half - 1, top - 3},
                         {x + half + 1, top - 3},
                         {x + half, top + 1},
                         {x - half, top + 1}}),
                Masonry.lit(0.9 - pillar * 0.1), 0.5);
  }
}

void Obelisk(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand.towards(Rock, 0.3));
  canvas.flat(Angular({{56, 88}, {98, 78}, {99, 81}, {58, 92}}), Ink.color(170));
  canvas.body(Angular({{40, 90}, {45, 18}, {50, 8}, {55, 18}, {60, 90}}), {52, 48, 58});
  for (int sign = 0; sign < 5; ++sign) {
    canvas.line(QPointF(48, 28 + sign * 11), QPointF(52, 31 + sign * 11), Gold.color(190), 1.4);
  }
}

void Meadow(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.lit(1.1));
  for (const double x : {6.0, 20.0, 82.0, 95.0}) {
    FirTree(canvas, {x, 70}, random.between(22, 32), Fir.lit(1.15));
  }
  for (int flower = 0; flower < 26; ++flower) {
    canvas.flat(Oval({random.between(2, 98), random.between(76, 98)}, 1.3, 1.3),
                flower % 3 == 0 ? QColor(240, 220, 120) : QColor(244, 240, 236));
  }
}

void Vineyard(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.towards(Loam, 0.4));
  for (int row = 0; row < 6; ++row) {
    for (int vine = 0; vine < 9; ++vine) {
      const QPointF at(4 + vine * 11.5 + row % 2 * 5, 64 + row * 6.0);
      canvas.body(Oval(at, 4.4, 3.2), {78, 112, 52}, 0.4);
      canvas.flat(Oval(at + QPointF(1, 2), 1.3, 1.6), Tone{92, 48, 96}.color());
    }
  }
}

void BorderRoad(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass);
  canvas.body(Angular({{30, 100}, {48, 58}, {54, 58}, {74, 100}}), Loam, 0.4);
  canvas.line(QPointF(22, 92), QPointF(22, 52), Wood.lit(0.7).color(), 3.4);
  canvas.body(Angular({{12, 54}, {38, 54}, {44, 58}, {38, 63}, {12, 63}}), Wood.lit(1.1));
  FirTree(canvas, {84, 84}, 34, Fir);
}

void Falls(Canvas& canvas, Random& random) {
  canvas.body(Angular({{-10, 100}, {-10, 30}, {30, 20}, {70, 22}, {110, 34}, {110, 100}}), Rock);
  canvas.body(Angular({{40, 22}, {62, 22}, {66, 84}, {34, 84}}), {206, 226, 238}, 0.4);
  for (int thread = 0; thread < 6; ++thread) {
    const double x = 41 + thread * 4.0;
    canvas.line(QPointF(x, 24), QPointF(x - 4 + thread * 1.6, 82), QColor(120, 160, 190, 150), 1);
  }
  Ripples(canvas, 82, random);
  canvas.glow({50, 84}, 28, QColor(255, 255, 255, 190));
}

void Portal(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Sand);
  canvas.body(Angular({{22, 92}, {26, 26}, {38, 26}, {38, 92}}), Masonry);
  canvas.body(Angular({{62, 92}, {62, 26}, {74, 26}, {78, 92}}), Masonry.lit(0.85));
  canvas.body(Angular({{18, 28}, {22, 14}, {78, 14}, {82, 28}}), Masonry.lit(1.05));
  canvas.flat(Angular({{38, 28}, {62, 28}, {62, 90}, {38, 90}}), Water.lit(0.7).color());
  canvas.glow({50, 58}, 32, Tone{150, 220, 240}.color(200));
}

void Grove(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, Grass.lit(0.8));
  for (int tree = 0; tree < 6; ++tree) {
    const QPointF foot(8 + tree * 17.0, random.between(72, 80));
    canvas.line(foot, foot + QPointF(0, -26), Wood.lit(0.6).color(), 4.4);
    canvas.body(Oval(foot + QPointF(0, -36), 13, 16), Fir.lit(random.between(1.2, 1.6)), 0.6);
  }
  for (const double x : {30.0, 50.0, 70.0}) {
    canvas.body(Rounded({{x - 5, 94}, {x - 4, 80}, {x, 76}, {x + 4, 80}, {x + 5, 94}}), Masonry);
  }
}

void Bog(Canvas& canvas, Random& random) {
  PaintGround(canvas, random, {104, 112, 76});
  for (const QPointF& pool : {QPointF(24, 82), QPointF(68, 78), QPointF(48, 94)}) {
    canvas.body(Oval(pool, 19, 5), {62, 74, 70}, 0.5);
  }
  canvas.line(QPointF(6, 98), QPointF(60, 74), Wood.lit(0.8).color(), 4);
  Tent(canvas, {66, 74}, 14, {132, 124, 92});
  for (int reed = 0; reed < 14; ++reed) {
    const double x = random.between(2, 98);
    canvas.line(QPointF(x, 92), QPointF(x + 2, random.between(76, 82)), Tone{84, 92, 46}.color(),
                1);
  }
}

constexpr Landmark AllLandmarks[] = {{"watermill", WaterMill},   {"smithy", Smithy},
                                     {"underforge", UnderForge}, {"frozenlake", FrozenLake},
                                     {"wreck", Wreck},           {"longship", Longship},
                                     {"desertcity", DesertCity}, {"rockcity", RockCity},
                                     {"frostpass", FrostPass},   {"mistpass", MistPass},
                                     {"bridge", Bridge},         {"trialbridge", TrialBridge},
                                     {"gallows", Gallows},       {"well", Well},
                                     {"arena", Arena},           {"hall", Hall},
                                     {"obelisk", Obelisk},       {"meadow", Meadow},
                                     {"vineyard", Vineyard},     {"road", BorderRoad},
                                     {"falls", Falls},           {"portal", Portal},
                                     {"grove", Grove},           {"bog", Bog}};

}  // namespace

std::span<const Landmark> Landmarks() {
  return AllLandmarks;
}

}  // namespace Pictures
