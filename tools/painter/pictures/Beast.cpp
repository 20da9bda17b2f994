#include "pictures/Beast.h"

namespace Pictures {

namespace {

Tone Dark(const Beast& beast) {
  return beast.hide.towards(Ink, 0.6);
}

void PaintNeck(Canvas& canvas, const Beast& beast) {
  if (!beast.mane) {
    canvas.body(Rounded({{50, 58}, {24, 72}, {4, 88}, {-2, 114}, {102, 114}, {96, 88}, {76, 72}}),
                beast.hide.lit(0.72));
    return;
  }
  canvas.flat(Angular({{14, 78}, {86, 78}, {100, 112}, {0, 112}}), beast.hide.lit(0.6).color());
  for (int tuft = 0; tuft < 11; ++tuft) {
    const double x = 10 + tuft * 8;
    const double y = 70 + std::abs(tuft - 5) * 3.2;
    canvas.body(
        Rounded({{x - 9, y - 12}, {x + 9, y - 12}, {x + 8, y + 8}, {x, y + 26}, {x - 8, y + 8}}),
        beast.hide.lit(0.6 + 0.09 * (tuft % 3)), 0.5);
  }
}

void PaintEars(Canvas& canvas, const Beast& beast) {
  const double w = beast.width;
  switch (beast.ears) {
    case Ears::None:
      return;
    case Ears::Pointed:
      canvas.pair(Angular({{50 - w * 0.92, 36}, {48 - w * 0.82, 8}, {50 - w * 0.2, 25}}),
                  beast.hide);
      canvas.flat(Angular({{52 - w * 0.86, 32}, {50 - w * 0.76, 15}, {48 - w * 0.32, 26}}),
                  Dark(beast).color());
      canvas.flat(
          Mirrored(Angular({{52 - w * 0.86, 32}, {50 - w * 0.76, 15}, {48 - w * 0.32, 26}})),
          Dark(beast).color());
      return;
    case Ears::Round:
      canvas.pair(Oval({50 - w * 0.85, 25}, 8, 8), beast.hide);
      canvas.flat(Oval({50 - w * 0.85, 26}, 4.4, 4.4), Dark(beast).color());
      canvas.flat(Oval({50 + w * 0.85, 26}, 4.4, 4.4), Dark(beast).color());
      return;
    case Ears::Long:
      canvas.pair(Angular({{54 - w, 38}, {22 - w * 0.72, 28}, {24 - w * 0.72, 38}, {53 - w, 52}}),
                  beast.hide);
      return;
    case Ears::Torn:
      canvas.pair(Angular({{53 - w, 38}, {42 - w, 30}, {44 - w, 39}, {41 - w, 46}, {53 - w, 52}}),
                  beast.hide.lit(0.9));
      return;
  }
}

void PaintHorns(Canvas& canvas, const Beast& beast) {
  const double w = beast.width;
  switch (beast.horns) {
    case Horns::None:
      return;
    case Horns::Bull:
      canvas.pair(Rounded({{54 - w * 0.9, 30},
                           {34 - w * 0.9, 26},
                           {24 - w * 0.7, 8},
                           {31 - w * 0.8, 20},
                           {54 - w * 0.6, 20}}),
                  Bone);
      return;
    case Horns::Ram:
      canvas.pair(Rounded({{50 - w * 0.5, 22},
                           {36 - w * 0.6, 4},
                           {40 - w * 0.6, -4},
                           {48 - w * 0.4, 4},
                           {54 - w * 0.3, 18}}),
                  Tone{92, 72, 62});
      return;
    case Horns::Antlers:
      for (const double tine : {0.0, 8.0, 16.0}) {
        const QPointF fork(36 - tine * 0.9, 20 - tine * 0.5);
        canvas.line(fork, fork + QPointF(2, -11), Ink.color(), 4.2);
        canvas.line(fork, fork + QPointF(2, -11), Bone.lit(0.8).color(), 2.8);
        canvas.line({100 - fork.x(), fork.y()}, QPointF(98 - fork.x(), fork.y() - 11), Ink.color(),
                    4.2);
        canvas.line({100 - fork.x(), fork.y()}, QPointF(98 - fork.x(), fork.y() - 11),
                    Bone.lit(0.7).color(), 2.8);
      }
      canvas.line({45, 26}, {20, 11}, Bone.lit(0.8).color(), 3.4);
      canvas.line({55, 26}, {80, 11}, Bone.lit(0.7).color(), 3.4);
      return;
    case Horns::Spikes:
      for (int spike = -2; spike <= 2; ++spike) {
        const double x = 50 + spike * w * 0.38;
        canvas.body(
            Angular({{x - 3.4, 23}, {x + spike * 2.0, 7.0 + std::abs(spike) * 3}, {x + 3.4, 23}}),
            Dark(beast).lit(1.3), 0.6);
      }
      return;
  }
}

QPainterPath HeadOf(const Beast& beast) {
  const double w = beast.width;
  switch (beast.muzzle) {
    case Muzzle::Wolf:
      return Rounded({{50, 19},
                      {50 - w * 0.7, 24},
                      {50 - w, 42},
                      {50 - w * 1.05, 52},
                      {50 - w * 0.5, 66},
                      {42, 82},
                      {50, 86},
                      {58, 82},
                      {50 + w * 0.5, 66},
                      {50 + w * 1.05, 52},
                      {50 + w, 42},
                      {50 + w * 0.7, 24}});
    case Muzzle::Bull:
    case Muzzle::Boar:
      return Rounded({{50, 18},
                      {50 - w * 0.8, 22},
                      {50 - w, 40},
                      {50 - w * 0.7, 60},
                      {36, 80},
                      {50, 86},
                      {64, 80},
                      {50 + w * 0.7, 60},
                      {50 + w, 40},
                      {50 + w * 0.8, 22}});
    case Muzzle::Reptile:
      return Rounded({{50, 22},
                      {50 - w * 0.6, 26},
                      {50 - w, 44},
                      {50 - w * 0.9, 62},
                      {38, 82},
                      {50, 86},
                      {62, 82},
                      {50 + w * 0.9, 62},
                      {50 + w, 44},
                      {50 + w * 0.6, 26}});
    case Muzzle::Skull:
      return Rounded({{50, 14},
                      {50 - w * 0.8, 20},
                      {50 - w, 40},
                      {50 - w * 0.75, 58},
                      {39, 66},
                      {40, 82},
                      {60, 82},
                      {61, 66},
                      {50 + w * 0.75, 58},
                      {50 + w, 40},
                      {50 + w * 0.8, 20}});
    case Muzzle::Bear:
    case Muzzle::Flat:
      break;
  }
  return Rounded({{50, 17},
                  {50 - w * 0.8, 22},
                  {50 - w, 42},
                  {50 - w * 0.95, 62},
                  {50 - w * 0.55, 78},
                  {50, 84},
                  {50 + w * 0.55, 78},
                  {50 + w * 0.95, 62},
                  {50 + w, 42},
                  {50 + w * 0.8, 22}});
}

void PaintEyes(Canvas& canvas, const Beast& beast) {
  const double away = beast.width * 0.45;
  const bool skull = beast.muzzle == Muzzle::Skull;
  for (const double side : {-1.0, 1.0}) {
    const QPointF at(50 + side * away, 42);
    canvas.flat(Oval(at, skull ? 7.4 : 5.6, skull ? 7.0 : 4.4), Ink.color(skull ? 255 : 190));
    if (skull) {
      canvas.glow(at, 5.5, beast.eyes.color(230));
      continue;
    }
    canvas.flat(Angular({at + QPointF(-side * 4.6, 1.8), at + QPointF(side * 4.4, -2.6),
                         at + QPointF(side * 3.0, 2.8)}),
                beast.eyes.color());
    canvas.flat(Oval(at + QPointF(side * 0.4, 0.6), 0.9, 1.7), Ink.color());
    canvas.line(at + QPointF(-side * 6.5, 1.2), at + QPointF(side * 6.5, -5.2), Dark(beast).color(),
                2.4);
  }
}

void PaintSnout(Canvas& canvas, const Beast& beast) {
  const Tone dark = Dark(beast);
  switch (beast.muzzle) {
    case Muzzle::Wolf:
    case Muzzle::Bear: {
      const double half = beast.muzzle == Muzzle::Bear ? 14 : 9.5;
      canvas.body(Rounded({{50, 46},
                           {50 - half * 0.7, 54},
                           {50 - half, 68},
                           {50 - half * 0.6, 79},
                           {50, 82},
                           {50 + half * 0.6, 79},
                           {50 + half, 68},
                           {50 + half * 0.7, 54}}),
                  beast.hide.towards(Bone, 0.4), 0.5);
      canvas.flat(Rounded({{44.5, 63}, {50, 61}, {55.5, 63}, {50, 70}}), Ink.color());
      canvas.line({50, 69}, {50, 74}, Ink.color(), 1.2);
      canvas.line(Rounded({{41, 76}, {45, 77}, {50, 74}, {55, 77}, {59, 76}, {50, 78}}),
                  Ink.color(), 1.2);
      return;
    }
    case Muzzle::Boar:
      canvas.body(Oval({50, 71}, 12, 8.4), beast.hide.towards({206, 140, 126}, 0.6));
      canvas.flat(Oval({45.5, 71}, 2.4, 3.6), Ink.color());
      canvas.flat(Oval({54.5, 71}, 2.4, 3.6), Ink.color());
      return;
    case Muzzle::Bull:
      canvas.body(Rounded({{35, 66}, {50, 60}, {65, 66}, {62, 82}, {50, 86}, {38, 82}}),
                  beast.hide.towards(Bone, 0.25));
      canvas.flat(Oval({43, 71}, 2.8, 2.0), Ink.color());
      canvas.flat(Oval({57, 71}, 2.8, 2.0), Ink.color());
      canvas.line(Oval({50, 78}, 5.2, 5.2), Gold.color(), 1.8);
      return;
    case Muzzle::Reptile:
      canvas.flat(Oval({45, 66}, 1.5, 2.2), Ink.color());
      canvas.flat(Oval({55, 66}, 1.5, 2.2), Ink.color());
      canvas.line(Rounded({{32, 72}, {42, 77}, {50, 75}, {58, 77}, {68, 72}, {50, 79}}),
                  dark.color(), 1.4);
      for (int scale = 0; scale < 14; ++scale) {
        canvas.line(Oval({36 + (scale % 5) * 7.0, 28 + (scale / 5) * 6.0}, 2.2, 1.5),
                    dark.color(110), 0.6);
      }
      return;
    case Muzzle::Skull:
      canvas.flat(Angular({{50, 51}, {45.6, 60}, {54.4, 60}}), Ink.color());
      for (int tooth = 0; tooth < 6; ++tooth) {
        canvas.line({41.5 + tooth * 3.4, 67}, {41.5 + tooth * 3.4, 80}, Ink.color(190), 1.1);
      }
      canvas.line({39, 73}, {61, 73}, Ink.color(), 1.4);
      return;
    case Muzzle::Flat:
      canvas.body(Rounded({{50, 46}, {46, 56}, {43.5, 62}, {50, 65}, {56.5, 62}, {54, 56}}),
                  beast.hide.lit(1.08), 0.5);
      canvas.flat(Oval({46.8, 62}, 1.5, 1.2), Ink.color());
      canvas.flat(Oval({53.2, 62}, 1.5, 1.2), Ink.color());
      canvas.flat(Rounded({{34, 70}, {50, 67.5}, {66, 70}, {50, 76}}), Ink.color());
      return;
  }
}

void PaintTeeth(Canvas& canvas, const Beast& beast) {
  switch (beast.teeth) {
    case Teeth::None:
      return;
    case Teeth::Fangs:
      canvas.pair(Angular({{42, 75}, {45.5, 75.6}, {44, 84}}), Bone, 0.5);
      return;
    case Teeth::Tusks:
      canvas.pair(Rounded({{40, 77}, {33, 72}, {31, 60}, {35.5, 69}, {42, 72}}), Bone, 0.7);
      return;
    case Teeth::Rows:
      for (int tooth = 0; tooth < 7; ++tooth) {
        const double x = 37 + tooth * 4;
        canvas.body(Angular({{x, 69.4}, {x + 3, 69.4}, {x + 1.5, 74.5}}), Bone, 0.3);
      }
      return;
  }
}

}  // namespace

void PaintBeast(Canvas& canvas, const Beast& beast) {
  canvas.backdrop(beast.backdrop.lit(1.15), beast.backdrop.lit(0.38));
  PaintNeck(canvas, beast);
  if (beast.horns != Horns::Spikes) {
    PaintHorns(canvas, beast);
  }
  PaintEars(canvas, beast);
  canvas.body(HeadOf(beast), beast.hide);
  if (beast.horns == Horns::Spikes) {
    PaintHorns(canvas, beast);
  }
  PaintEyes(canvas, beast);
  PaintSnout(canvas, beast);
  PaintTeeth(canvas, beast);
}

}  // namespace Pictures
