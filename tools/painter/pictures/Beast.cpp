#include "pictures/Beast.h"

#include <cmath>
#include <span>
#include <vector>

namespace Pictures {

namespace {

/// A point that moves outward with the head: `share` times half its width is added to `x`.
struct Spot {
  double x, y;
  double share = 0;
};

constexpr Spot PointedEar[] = {{50, 36, -0.92}, {48, 8, -0.82}, {50, 25, -0.2}};
constexpr Spot PointedEarInside[] = {{52, 32, -0.86}, {50, 15, -0.76}, {48, 26, -0.32}};
constexpr Spot LongEar[] = {{54, 38, -1}, {22, 28, -0.72}, {24, 38, -0.72}, {53, 52, -1}};
constexpr Spot TornEar[] = {{53, 38, -1}, {42, 30, -1}, {44, 39, -1}, {41, 46, -1}, {53, 52, -1}};

constexpr Spot BullHorn[] = {
    {54, 30, -0.9}, {34, 26, -0.9}, {24, 8, -0.7}, {31, 20, -0.8}, {54, 20, -0.6}};
constexpr Spot RamHorn[] = {
    {50, 22, -0.5}, {36, 4, -0.6}, {40, -4, -0.6}, {48, 4, -0.4}, {54, 18, -0.3}};

// Heads from the crown down the left side; the right side mirrors it.
constexpr Spot WolfHead[] = {{50, 19},       {50, 24, -0.7}, {50, 42, -1}, {50, 52, -1.05},
                             {50, 66, -0.5}, {42, 82},       {50, 86}};
constexpr Spot BullHead[] = {{50, 18},       {50, 22, -0.8}, {50, 40, -1},
                             {50, 60, -0.7}, {36, 80},       {50, 86}};
constexpr Spot ReptileHead[] = {{50, 22},       {50, 26, -0.6}, {50, 44, -1},
                                {50, 62, -0.9}, {38, 82},       {50, 86}};
constexpr Spot SkullHead[] = {{50, 14},        {50, 20, -0.8}, {50, 40, -1},
                              {50, 58, -0.75}, {39, 66},       {40, 82}};
constexpr Spot FlatHead[] = {{50, 17},        {50, 22, -0.8},  {50, 42, -1},
                             {50, 62, -0.95}, {50, 78, -0.55}, {50, 84}};

QPointF Placed(const Spot& spot, const Beast& beast) {
  return {spot.x + spot.share * beast.width, spot.y};
}

std::vector<QPointF> Placed(std::span<const Spot> spots, const Beast& beast) {
  std::vector<QPointF> points;
  for (const Spot& spot : spots) {
    points.push_back(Placed(spot, beast));
  }
  return points;
}

// Spots on the middle line are their own mirror image.
std::vector<QPointF> PlacedOnBothSides(std::span<const Spot> spots, const Beast& beast) {
  std::vector<QPointF> points = Placed(spots, beast);
  for (std::size_t i = spots.size(); i-- > 0;) {
    const Spot mirrored{100 - spots[i].x, spots[i].y, -spots[i].share};
    if (mirrored.x != spots[i].x || mirrored.share != 0) {
      points.push_back(Placed(mirrored, beast));
    }
  }
  return points;
}

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

void PaintPointedEars(Canvas& canvas, const Beast& beast) {
  canvas.pair(Angular(Placed(PointedEar, beast)), beast.hide);
  const QPainterPath inside = Angular(Placed(PointedEarInside, beast));
  canvas.flat(inside, Dark(beast).color());
  canvas.flat(Mirrored(inside), Dark(beast).color());
}

void PaintRoundEars(Canvas& canvas, const Beast& beast) {
  const double away = beast.width * 0.85;
  canvas.pair(Oval({50 - away, 25}, 8, 8), beast.hide);
  canvas.flat(Oval({50 - away, 26}, 4.4, 4.4), Dark(beast).color());
  canvas.flat(Oval({50 + away, 26}, 4.4, 4.4), Dark(beast).color());
}

void PaintEars(Canvas& canvas, const Beast& beast) {
  switch (beast.ears) {
    case Ears::None:
      return;
    case Ears::Pointed:
      return PaintPointedEars(canvas, beast);
    case Ears::Round:
      return PaintRoundEars(canvas, beast);
    case Ears::Long:
      return canvas.pair(Angular(Placed(LongEar, beast)), beast.hide);
    case Ears::Torn:
      return canvas.pair(Angular(Placed(TornEar, beast)), beast.hide.lit(0.9));
  }
}

void PaintAntlers(Canvas& canvas) {
  for (const double tine : {0.0, 8.0, 16.0}) {
    const QPointF left(36 - tine * 0.9, 20 - tine * 0.5);
    const QPointF right(100 - left.x(), left.y());
    canvas.line(left, left + QPointF(2, -11), Ink.color(), 4.2);
    canvas.line(left, left + QPointF(2, -11), Bone.lit(0.8).color(), 2.8);
    canvas.line(right, right + QPointF(-2, -11), Ink.color(), 4.2);
    canvas.line(right, right + QPointF(-2, -11), Bone.lit(0.7).color(), 2.8);
  }
  canvas.line({45, 26}, {20, 11}, Bone.lit(0.8).color(), 3.4);
  canvas.line({55, 26}, {80, 11}, Bone.lit(0.7).color(), 3.4);
}

void PaintSpikes(Canvas& canvas, const Beast& beast) {
  for (int spike = -2; spike <= 2; ++spike) {
    const double x = 50 + spike * beast.width * 0.38;
    const double top = 7.0 + std::abs(spike) * 3;
    canvas.body(Angular({{x - 3.4, 23}, {x + spike * 2.0, top}, {x + 3.4, 23}}),
                Dark(beast).lit(1.3), 0.6);
  }
}

void PaintHorns(Canvas& canvas, const Beast& beast) {
  switch (beast.horns) {
    case Horns::None:
      return;
    case Horns::Bull:
      return canvas.pair(Rounded(Placed(BullHorn, beast)), Bone);
    case Horns::Ram:
      return canvas.pair(Rounded(Placed(RamHorn, beast)), Tone{92, 72, 62});
    case Horns::Antlers:
      return PaintAntlers(canvas);
    case Horns::Spikes:
      return PaintSpikes(canvas, beast);
  }
}

std::span<const Spot> HeadOf(Muzzle muzzle) {
  switch (muzzle) {
    case Muzzle::Wolf:
      return WolfHead;
    case Muzzle::Bull:
    case Muzzle::Boar:
      return BullHead;
    case Muzzle::Reptile:
      return ReptileHead;
    case Muzzle::Skull:
      return SkullHead;
    case Muzzle::Bear:
    case Muzzle::Flat:
      break;
  }
  return FlatHead;
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

// Both nostrils, `away` from the middle line.
void PaintNostrils(Canvas& canvas, double away, double y, double across, double down) {
  canvas.flat(Oval({50 - away, y}, across, down), Ink.color());
  canvas.flat(Oval({50 + away, y}, across, down), Ink.color());
}

void PaintLongSnout(Canvas& canvas, const Beast& beast, double half) {
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
  canvas.line(Rounded({{41, 76}, {45, 77}, {50, 74}, {55, 77}, {59, 76}, {50, 78}}), Ink.color(),
              1.2);
}

void PaintBoarSnout(Canvas& canvas, const Beast& beast) {
  canvas.body(Oval({50, 71}, 12, 8.4), beast.hide.towards({206, 140, 126}, 0.6));
  PaintNostrils(canvas, 4.5, 71, 2.4, 3.6);
}

void PaintBullSnout(Canvas& canvas, const Beast& beast) {
  canvas.body(Rounded({{35, 66}, {50, 60}, {65, 66}, {62, 82}, {50, 86}, {38, 82}}),
              beast.hide.towards(Bone, 0.25));
  PaintNostrils(canvas, 7, 71, 2.8, 2.0);
  canvas.line(Oval({50, 78}, 5.2, 5.2), Gold.color(), 1.8);
}

void PaintReptileSnout(Canvas& canvas, const Beast& beast) {
  const Tone dark = Dark(beast);
  PaintNostrils(canvas, 5, 66, 1.5, 2.2);
  canvas.line(Rounded({{32, 72}, {42, 77}, {50, 75}, {58, 77}, {68, 72}, {50, 79}}), dark.color(),
              1.4);
  for (int scale = 0; scale < 14; ++scale) {
    const int column = scale % 5;
    const int row = scale / 5;
    canvas.line(Oval({36 + column * 7.0, 28 + row * 6.0}, 2.2, 1.5), dark.color(110), 0.6);
  }
}

void PaintBareJaw(Canvas& canvas) {
  canvas.flat(Angular({{50, 51}, {45.6, 60}, {54.4, 60}}), Ink.color());
  for (int tooth = 0; tooth < 6; ++tooth) {
    const double x = 41.5 + tooth * 3.4;
    canvas.line({x, 67}, {x, 80}, Ink.color(190), 1.1);
  }
  canvas.line({39, 73}, {61, 73}, Ink.color(), 1.4);
}

void PaintFlatNose(Canvas& canvas, const Beast& beast) {
  canvas.body(Rounded({{50, 46}, {46, 56}, {43.5, 62}, {50, 65}, {56.5, 62}, {54, 56}}),
              beast.hide.lit(1.08), 0.5);
  PaintNostrils(canvas, 3.2, 62, 1.5, 1.2);
  canvas.flat(Rounded({{34, 70}, {50, 67.5}, {66, 70}, {50, 76}}), Ink.color());
}

void PaintSnout(Canvas& canvas, const Beast& beast) {
  switch (beast.muzzle) {
    case Muzzle::Wolf:
      return PaintLongSnout(canvas, beast, 9.5);
    case Muzzle::Bear:
      return PaintLongSnout(canvas, beast, 14);
    case Muzzle::Boar:
      return PaintBoarSnout(canvas, beast);
    case Muzzle::Bull:
      return PaintBullSnout(canvas, beast);
    case Muzzle::Reptile:
      return PaintReptileSnout(canvas, beast);
    case Muzzle::Skull:
      return PaintBareJaw(canvas);
    case Muzzle::Flat:
      return PaintFlatNose(canvas, beast);
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
  canvas.body(Rounded(PlacedOnBothSides(HeadOf(beast.muzzle), beast)), beast.hide);
  if (beast.horns == Horns::Spikes) {
    PaintHorns(canvas, beast);
  }
  PaintEyes(canvas, beast);
  PaintSnout(canvas, beast);
  PaintTeeth(canvas, beast);
}

}  // namespace Pictures
