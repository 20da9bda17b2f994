#include "pictures/Creature.h"

#include <algorithm>
#include <cmath>

#include "pictures/Beast.h"

namespace Pictures {

namespace {

constexpr Beast Beasts[] = {{"wolf",
                             {112, 124, 104},
                             {112, 108, 104},
                             {224, 178, 52},
                             Ears::Pointed,
                             Muzzle::Wolf,
                             Horns::None,
                             Teeth::Fangs,
                             25,
                             true},
                            {"icewolf",
                             {138, 170, 196},
                             {214, 224, 232},
                             {86, 190, 236},
                             Ears::Pointed,
                             Muzzle::Wolf,
                             Horns::None,
                             Teeth::Fangs,
                             25,
                             true},
                            {"jackal",
                             {206, 172, 112},
                             {190, 142, 82},
                             {236, 206, 92},
                             Ears::Pointed,
                             Muzzle::Wolf,
                             Horns::None,
                             Teeth::None,
                             19,
                             false},
                            {"boar",
                             {126, 120, 84},
                             {98, 76, 60},
                             {176, 60, 40},
                             Ears::Pointed,
                             Muzzle::Boar,
                             Horns::None,
                             Teeth::Tusks,
                             26,
                             true},
                            {"bear",
                             {104, 112, 92},
                             {112, 76, 48},
                             {60, 40, 26},
                             Ears::Round,
                             Muzzle::Bear,
                             Horns::None,
                             Teeth::None,
                             29,
                             true},
                            {"stag",
                             {134, 148, 104},
                             {158, 112, 68},
                             {52, 34, 22},
                             Ears::Pointed,
                             Muzzle::Wolf,
                             Horns::Antlers,
                             Teeth::None,
                             17,
                             false},
                            {"troll",
                             {112, 126, 134},
                             {122, 136, 120},
                             {240, 214, 90},
                             Ears::Torn,
                             Muzzle::Flat,
                             Horns::None,
                             Teeth::Tusks,
                             30,
                             true},
                            {"goblin",
                             {124, 116, 76},
                             {116, 146, 64},
                             {246, 210, 60},
                             Ears::Long,
                             Muzzle::Flat,
                             Horns::None,
                             Teeth::Rows,
                             23,
                             false},
                            {"lizard",
                             {146, 140, 84},
                             {84, 128, 84},
                             {240, 196, 40},
                             Ears::None,
                             Muzzle::Reptile,
                             Horns::Spikes,
                             Teeth::Fangs,
                             24,
                             false},
                            {"golem",
                             {128, 116, 104},
                             {134, 130, 124},
                             {112, 220, 240},
                             Ears::None,
                             Muzzle::Skull,
                             Horns::None,
                             Teeth::None,
                             30,
                             false},
                            {"skeleton",
                             {74, 84, 92},
                             {226, 216, 190},
                             {220, 70, 40},
                             Ears::None,
                             Muzzle::Skull,
                             Horns::None,
                             Teeth::None,
                             22,
                             false},
                            {"zombie",
                             {84, 92, 70},
                             {136, 150, 112},
                             {232, 232, 200},
                             Ears::Torn,
                             Muzzle::Flat,
                             Horns::None,
                             Teeth::Rows,
                             20,
                             false},
                            {"demon",
                             {130, 44, 32},
                             {156, 40, 34},
                             {252, 214, 60},
                             Ears::Long,
                             Muzzle::Flat,
                             Horns::Ram,
                             Teeth::Rows,
                             23,
                             false},
                            {"minotaur",
                             {132, 96, 68},
                             {120, 80, 52},
                             {212, 60, 36},
                             Ears::Long,
                             Muzzle::Bull,
                             Horns::Bull,
                             Teeth::None,
                             25,
                             true},
                            {"ogre",
                             {138, 124, 92},
                             {186, 150, 110},
                             {92, 70, 40},
                             Ears::Round,
                             Muzzle::Flat,
                             Horns::Spikes,
                             Teeth::Tusks,
                             31,
                             false},
                            {"lurker",
                             {84, 120, 128},
                             {64, 112, 116},
                             {232, 240, 110},
                             Ears::None,
                             Muzzle::Reptile,
                             Horns::None,
                             Teeth::Fangs,
                             30,
                             false},
                            {"ghoul",
                             {92, 78, 100},
                             {176, 166, 176},
                             {196, 40, 60},
                             Ears::Long,
                             Muzzle::Flat,
                             Horns::None,
                             Teeth::Rows,
                             19,
                             false}};

void PaintLegs(Canvas& canvas, QPointF body, const Tone& tone, int pairs, double reach) {
  for (int pair = 0; pair < pairs; ++pair) {
    const double lean = (pair - (pairs - 1) / 2.0) * 13;
    for (const double side : {-1.0, 1.0}) {
      QPainterPath leg(body + QPointF(side * 8, lean * 0.3));
      leg.lineTo(body + QPointF(side * reach * 0.62, lean * 0.9 - 14));
      leg.lineTo(body + QPointF(side * reach, lean * 1.35 + 10));
      canvas.line(leg, Ink.color(), 4.8);
      canvas.line(leg, tone.color(), 3.2);
    }
  }
}

void PaintSpider(Canvas& canvas) {
  canvas.backdrop({116, 108, 116}, {32, 28, 36});
  for (int thread = 0; thread < 8; ++thread) {
    const double angle = thread * 0.785;
    canvas.line(QPointF(50, 50), QPointF(50 + 80 * std::cos(angle), 50 + 80 * std::sin(angle)),
                QColor(230, 230, 230, 70), 0.7);
  }
  canvas.line(Oval({50, 50}, 26, 26), QColor(230, 230, 230, 60), 0.7);
  canvas.line(Oval({50, 50}, 42, 42), QColor(230, 230, 230, 60), 0.7);
  constexpr Tone Hide{72, 58, 56};
  PaintLegs(canvas, {50, 54}, Hide, 4, 38);
  canvas.body(Oval({50, 40}, 17, 19), Hide);
  canvas.flat(Angular({{50, 28}, {55, 38}, {50, 50}, {45, 38}}), Tone{196, 52, 40}.color());
  canvas.body(Oval({50, 63}, 11, 10), Hide.lit(1.1));
  for (const double x : {44.0, 48.0, 52.0, 56.0}) {
    canvas.flat(Oval({x, 65}, 1.5, 1.5), Tone{240, 70, 50}.color());
  }
  canvas.pair(Angular({{45, 71}, {47.4, 71}, {46.6, 78}}), Bone, 0.4);
}

void PaintScorpion(Canvas& canvas) {
  canvas.backdrop({226, 190, 128}, {128, 88, 48});
  constexpr Tone Shell{142, 84, 40};
  PaintLegs(canvas, {50, 64}, Shell, 3, 30);
  const QPointF tail[] = {{50, 50}, {58, 42}, {66, 32}, {66, 21}, {57, 15}};
  for (const QPointF& joint : tail) {
    canvas.body(Oval(joint, 6, 6), Shell);
  }
  canvas.body(Angular({{56, 11}, {42, 14}, {54, 20}}), Shell.lit(0.6));
  for (int ring = 0; ring < 4; ++ring) {
    canvas.body(Oval({50, 52 + ring * 7.0}, 11 + ring * 1.5, 6), Shell.lit(1.1));
  }
  canvas.pair(Rounded({{37, 76}, {22, 72}, {16, 80}, {20, 92}, {26, 82}, {34, 92}, {32, 82}}),
              Shell.lit(1.15));
  canvas.flat(Oval({46, 75}, 1.5, 1.5), Ink.color());
  canvas.flat(Oval({54, 75}, 1.5, 1.5), Ink.color());
}

void PaintSnake(Canvas& canvas) {
  canvas.backdrop({170, 164, 104}, {74, 70, 42});
  constexpr Tone Scales{104, 132, 58};
  QPainterPath coil(QPointF(18, 84));
  coil.cubicTo({60, 104}, {100, 84}, {74, 70});
  coil.cubicTo({44, 56}, {14, 66}, {32, 50});
  coil.cubicTo({44, 40}, {60, 46}, {56, 30});
  canvas.line(coil, Ink.color(), 15);
  canvas.line(coil, Scales.color(), 13);
  QPen bands(Scales.towards({226, 200, 100}, 0.7).color(), 9, Qt::CustomDashLine, Qt::FlatCap);
  bands.setDashPattern({0.3, 0.6});
  canvas.painter().setPen(bands);
  canvas.painter().drawPath(coil);
  canvas.body(Rounded({{56, 12}, {44, 20}, {44, 32}, {52, 40}, {64, 36}, {70, 24}}),
              Scales.lit(1.15));
  canvas.flat(Oval({51, 24}, 2.2, 2.6), Tone{246, 196, 40}.color());
  canvas.flat(Oval({64, 24}, 2.2, 2.6), Tone{246, 196, 40}.color());
  canvas.line(QPointF(55, 38), QPointF(50, 50), Tone{190, 40, 50}.color(), 1.4);
  canvas.line(QPointF(50, 50), QPointF(45, 52), Tone{190, 40, 50}.color(), 1.2);
  canvas.line(QPointF(50, 50), QPointF(51, 56), Tone{190, 40, 50}.color(), 1.2);
}

void PaintBurrower(Canvas& canvas) {
  canvas.backdrop({236, 204, 144}, {150, 104, 58});
  constexpr Tone Plates{170, 126, 96};
  for (int ring = 7; ring >= 0; --ring) {
    const double t = ring / 7.0;
    canvas.body(Oval({64 + 18 * std::sin(t * 3.2), 34 + t * 46}, 12 + 10 * t, 10 + 4 * t),
                Plates.lit(1.15 - 0.3 * t));
  }
  canvas.body(Oval({58, 32}, 25, 24), Plates.lit(1.1));
  canvas.flat(Oval({54, 33}, 17, 17), Tone{96, 32, 30}.color());
  for (int tooth = 0; tooth < 14; ++tooth) {
    const double angle = tooth * 0.4488;
    const QPointF way(std::cos(angle), std::sin(angle));
    const QPointF aside(-way.y() * 2.6, way.x() * 2.6);
    const QPointF root = QPointF(54, 33) + way * 17;
    canvas.body(Angular({root + aside, root - aside, root - way * 9}), Bone, 0.4);
  }
  canvas.flat(Rounded({{-5, 84}, {30, 76}, {60, 88}, {105, 80}, {105, 108}, {-5, 108}}),
              Tone{214, 172, 110}.color());
}

void PaintBird(Canvas& canvas) {
  canvas.backdrop({168, 196, 214}, {76, 104, 130});
  constexpr Tone Plumage{98, 68, 46};
  canvas.body(Rounded({{50, 56}, {24, 74}, {14, 112}, {92, 112}, {82, 76}}), Plumage);
  for (int feather = 0; feather < 6; ++feather) {
    canvas.line(QPointF(28 + feather * 9, 78), QPointF(25 + feather * 10, 98),
                Plumage.lit(0.5).color(), 1.6);
  }
  canvas.body(Rounded({{46, 14}, {28, 26}, {26, 48}, {40, 68}, {60, 68}, {70, 46}, {62, 22}}),
              Tone{238, 230, 214});
  canvas.body(Rounded({{60, 36}, {76, 40}, {84, 52}, {80, 62}, {76, 54}, {60, 52}}), Gold.lit(1.1));
  canvas.flat(Oval({53, 38}, 5, 5), Ink.color());
  canvas.flat(Oval({53, 38}, 3.8, 3.8), Tone{244, 190, 40}.color());
  canvas.flat(Oval({54, 38}, 1.9, 1.9), Ink.color());
  canvas.line(QPointF(44, 31), QPointF(63, 36), Plumage.lit(0.6).color(), 2.8);
}

struct Crawler {
  std::string_view kind;
  void (*paint)(Canvas&);
};

constexpr Crawler Crawlers[] = {{"spider", PaintSpider},
                                {"scorpion", PaintScorpion},
                                {"snake", PaintSnake},
                                {"burrower", PaintBurrower},
                                {"bird", PaintBird}};

}  // namespace

bool PaintCreature(Canvas& canvas, std::string_view kind) {
  const auto* beast = std::ranges::find(Beasts, kind, &Beast::kind);
  if (beast != std::end(Beasts)) {
    PaintBeast(canvas, *beast);
    return true;
  }
  const auto* crawler = std::ranges::find(Crawlers, kind, &Crawler::kind);
  if (crawler == std::end(Crawlers)) {
    return false;
  }
  crawler->paint(canvas);
  return true;
}

}  // namespace Pictures
