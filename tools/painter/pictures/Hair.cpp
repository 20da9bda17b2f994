#include "pictures/Face.h"

#include <cmath>

namespace Pictures {

namespace {

bool IsBald(const Person& person) {
  return !person.woman && person.hairStyle == 0;
}

void PaintStrands(Canvas& canvas, const Person& person, double left, double right) {
  const QColor dark = person.hair.towards(Ink, 0.45).color(130);
  for (int strand = 1; strand < 6; ++strand) {
    const double x = left + (right - left) * strand / 6.0;
    QPainterPath path(QPointF(50 + (x - 50) * 0.35, 13));
    path.quadTo(QPointF(x, 17), QPointF(50 + (x - 50) * 1.08, 27));
    canvas.line(path, dark, 0.7);
  }
}

void PaintFeather(Canvas& canvas, const Person& person) {
  canvas.body(Rounded({{66, 26}, {70, 10}, {80, 3}, {80, 12}, {70, 26}}),
              person.role.trim.lit(1.15), 0.6);
  canvas.line(QPointF(67, 27), QPointF(79, 5), Ink.color(150), 0.6);
}

void PaintHood(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person);
  QPainterPath hood = Rounded({{50, 3},
                               {28, 10},
                               {20, 34},
                               {22, 62},
                               {30, 84},
                               {50, 90},
                               {70, 84},
                               {78, 62},
                               {80, 34},
                               {72, 10}});
  QPainterPath opening = Rounded({{50, 17},
                                  {50 - cheek, 26},
                                  {49 - cheek, 48},
                                  {53 - cheek, 64},
                                  {50, 82},
                                  {47 + cheek, 64},
                                  {51 + cheek, 48},
                                  {50 + cheek, 26}});
  canvas.body(hood.subtracted(opening), person.cloth.lit(0.92));
  canvas.line(opening, person.role.trim.color(), 1.5);
}

void PaintHelmet(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person) + 2;
  canvas.body(Rounded({{50, 5},
                       {50 - cheek * 0.8, 11},
                       {50 - cheek, 30},
                       {50 - cheek, 37},
                       {50, 30},
                       {50 + cheek, 37},
                       {50 + cheek, 30},
                       {50 + cheek * 0.8, 11}}),
              Steel);
  canvas.pair(Rounded({{50 - cheek, 34},
                       {54 - cheek, 35},
                       {56 - cheek, 52},
                       {53 - cheek, 62},
                       {49.5 - cheek, 50}}),
              Steel.lit(0.9));
  canvas.body(Angular({{47.8, 5}, {52.2, 5}, {52, 34}, {50, 48}, {48, 34}}), Gold, 0.6);
  QPainterPath rim(QPointF(50 - cheek, 36));
  rim.quadTo(QPointF(50, 25), QPointF(50 + cheek, 36));
  canvas.line(rim, Gold.color(), 2.0);
}

void PaintTurban(Canvas& canvas, const Person& person) {
  const Tone cloth = person.cloth.lit(1.1);
  canvas.body(
      Rounded({{50, 3}, {31, 8}, {25, 20}, {28, 32}, {50, 28}, {72, 32}, {75, 20}, {69, 8}}),
      cloth);
  for (int fold = 0; fold < 4; ++fold) {
    QPainterPath path(QPointF(27 + fold * 5, 27 - fold * 4.5));
    path.quadTo(QPointF(50 + fold * 2, 20 - fold * 4), QPointF(72 - fold, 30 - fold * 7));
    canvas.line(path, cloth.towards(Ink, 0.45).color(150), 1.0);
  }
  canvas.body(Oval({50, 20}, 3, 3.6), person.role.trim, 0.7);
}

void PaintVeil(Canvas& canvas, const Person& person) {
  PaintHood(canvas, person);
  const double cheek = CheekOf(person);
  canvas.body(Rounded({{50 - cheek, 51},
                       {50, 53.5},
                       {50 + cheek, 51},
                       {47 + cheek, 66},
                       {50, 82},
                       {53 - cheek, 66}}),
              person.cloth.lit(1.15));
}

void PaintHat(Canvas& canvas, const Person& person) {
  canvas.body(Rounded({{50, 2}, {32, 6}, {29, 24}, {50, 27}, {71, 24}, {68, 6}}), person.cloth);
  canvas.body(Rounded({{20, 25}, {50, 20}, {80, 25}, {76, 31}, {50, 28}, {24, 31}}),
              person.cloth.lit(0.85));
  QPainterPath band(QPointF(29.5, 22));
  band.quadTo(QPointF(50, 25), QPointF(70.5, 22));
  canvas.line(band, person.role.trim.color(), 2.4);
}

// Orcs wear the feather in a headband.
void PaintFeatheredHat(Canvas& canvas, const Person& person) {
  PaintFeather(canvas, person);
  if (person.orc) {
    canvas.line(QPointF(28, 26), QPointF(72, 26), person.role.trim.color(), 2.6);
  } else {
    PaintHat(canvas, person);
  }
}

void PaintCirclet(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person) + 1;
  QPainterPath band(QPointF(50 - cheek, 29));
  band.quadTo(QPointF(50, 24), QPointF(50 + cheek, 29));
  canvas.line(band, Ink.color(), 3.2);
  canvas.line(band, Gold.color(), 2.2);
  canvas.body(Angular({{50, 20.5}, {53, 26.5}, {50, 31}, {47, 26.5}}), person.role.cloth.lit(1.3));
}

void PaintBandana(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person) + 1;
  canvas.body(Rounded({{50, 9},
                       {50 - cheek * 0.8, 15},
                       {50 - cheek, 30},
                       {50, 27},
                       {50 + cheek, 30},
                       {50 + cheek * 0.8, 15}}),
              person.role.trim);
  canvas.body(Angular({{49 + cheek, 28},
                       {58 + cheek, 30},
                       {55 + cheek, 35},
                       {59 + cheek, 41},
                       {51 + cheek, 36}}),
              person.role.trim.lit(0.8));
}

void PaintFurCap(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person) + 2;
  canvas.body(Rounded({{50, 5}, {33, 9}, {28, 24}, {50, 22}, {72, 24}, {67, 9}}), person.cloth);
  canvas.body(Rounded({{50 - cheek, 22},
                       {40, 18},
                       {50, 20},
                       {60, 18},
                       {50 + cheek, 22},
                       {51 + cheek, 31},
                       {60, 27.5},
                       {50, 29},
                       {40, 27.5},
                       {49 - cheek, 31}}),
              Tone{150, 128, 100});
}

void PaintHornedHelmet(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person) + 1;
  canvas.pair(Rounded({{54 - cheek, 20},
                       {40 - cheek, 14},
                       {38 - cheek, -2},
                       {45 - cheek, 8},
                       {58 - cheek, 13}}),
              Bone.lit(0.9));
  canvas.body(Rounded({{50, 6},
                       {50 - cheek * 0.8, 12},
                       {50 - cheek, 31},
                       {50, 27},
                       {50 + cheek, 31},
                       {50 + cheek * 0.8, 12}}),
              Steel.towards(Wood, 0.45));
  canvas.body(Angular({{47.5, 27}, {52.5, 27}, {51.5, 42}, {48.5, 42}}), Steel.lit(0.8), 0.6);
}

void PaintOrcHair(Canvas& canvas, const Person& person) {
  const double cheek = CheekOf(person);
  switch (person.hairStyle) {
    case 1:
      return PaintHornedHelmet(canvas, person);
    case 2:
      for (const double x : {50 - cheek, 50 + cheek}) {
        for (int knot = 0; knot < 5; ++knot) {
          canvas.body(Oval({x, 34 + knot * 8.0}, 3.4, 4.6), person.hair, 0.5);
        }
      }
      [[fallthrough]];
    case 3:
      canvas.body(Rounded({{50, 11},
                           {50 - cheek * 0.8, 16},
                           {52 - cheek, 32},
                           {40, 25},
                           {50, 23},
                           {60, 25},
                           {48 + cheek, 32},
                           {50 + cheek * 0.8, 16}}),
                  person.hair);
      return;
    case 4:
      canvas.body(Rounded({{46, 18}, {42, 4}, {50, 2}, {60, 6}, {54, 18}}), person.hair);
      return;
    case 5:
      for (int spike = -3; spike <= 3; ++spike) {
        const double x = 50 + spike * 4.2;
        canvas.body(Angular({{x - 3, 20.0 + std::abs(spike)},
                             {x, 4.0 + std::abs(spike) * 2},
                             {x + 3, 20.0 + std::abs(spike)}}),
                    person.hair, 0.5);
      }
      return;
    default:
      return;
  }
}

// Half the width of the jaw, where beards begin.
double JawOf(const Person& person) {
  return CheekOf(person) * 0.93;
}

void PaintTuft(Canvas& canvas, const Person& person) {
  canvas.body(Rounded({{44, 71}, {50, 70}, {56, 71}, {54, 84}, {50, 92}, {46, 84}}), person.hair,
              0.6);
  canvas.line(QPointF(46.5, 82), QPointF(53.5, 82), Gold.color(), 2);
}

void PaintStubble(Canvas& canvas, const Person& person) {
  const double jaw = JawOf(person);
  canvas.flat(Rounded({{50 - jaw, 54},
                       {43, 59},
                       {50, 57.5},
                       {57, 59},
                       {50 + jaw, 54},
                       {49 + jaw * 0.8, 65},
                       {50, ChinOf(person)},
                       {51 - jaw * 0.8, 65}}),
              person.hair.towards(Ink, 0.2).color(70));
}

void PaintGoatee(Canvas& canvas, const Person& person) {
  const double chin = ChinOf(person);
  canvas.body(
      Rounded({{45, 67}, {50, 66}, {55, 67}, {53, chin + 3}, {50, chin + 6}, {47, chin + 3}}),
      person.hair, 0.5);
}

void PaintFullBeard(Canvas& canvas, const Person& person) {
  const double jaw = JawOf(person);
  const double tip = ChinOf(person) + (person.beard == 4 ? 2 : person.beard == 5 ? 9 : 19);
  const QPainterPath beard = Rounded({{50 - jaw - 1, 46},
                                      {52.5 - jaw, 56},
                                      {42, 58.5},
                                      {50, 57.8},
                                      {58, 58.5},
                                      {47.5 + jaw, 56},
                                      {51 + jaw, 46},
                                      {50 + jaw, 63},
                                      {50 + jaw * 0.55, tip - 4},
                                      {50, tip},
                                      {50 - jaw * 0.55, tip - 4},
                                      {50 - jaw, 63}});
  const double lip = 62.5 + 0.8 * person.jaw;
  canvas.body(beard.subtracted(Oval({50, lip + 0.4}, 5.6, 1.9)), person.hair);
  for (int strand = -3; strand <= 3; ++strand) {
    canvas.line(QPointF(50 + strand * 3.6, 67), QPointF(50 + strand * 2.4, tip - 4),
                person.hair.towards(Ink, 0.4).color(110), 0.6);
  }
}

void PaintMoustache(Canvas& canvas, const Person& person) {
  canvas.pair(Rounded({{50.4, 57.6}, {44, 58.6}, {39.5, 63.5}, {44, 62.4}, {50.4, 60.6}}),
              person.hair, 0.5);
}

}  // namespace

void PaintBackHair(Canvas& canvas, const Person& person) {
  const bool flowing = person.woman ? person.hairStyle != 1 : person.hairStyle >= 4;
  if (!flowing || person.orc) {
    return;
  }
  const double low = person.woman && person.hairStyle > 2 ? 90 : 74;
  const double cheek = CheekOf(person) + 5;
  canvas.body(Rounded({{50, 10},
                       {50 - cheek * 0.8, 16},
                       {50 - cheek, 38},
                       {48 - cheek, low - 12},
                       {54 - cheek, low},
                       {50, low - 6},
                       {46 + cheek, low},
                       {52 + cheek, low - 12},
                       {50 + cheek, 38},
                       {50 + cheek * 0.8, 16}}),
              person.hair.lit(0.8));
}

void PaintHair(Canvas& canvas, const Person& person) {
  if (person.orc) {
    return PaintOrcHair(canvas, person);
  }
  if (IsBald(person)) {
    return;
  }
  const double cheek = CheekOf(person) + 1.2;
  const double temple = person.woman ? 46 : 38 + (person.hairStyle % 3) * 3;
  const double fringe = 22 + (person.hairStyle * 7 % 4) * 1.7;
  const double parting = 50 + (person.mirrored ? -1 : 1) * (person.hairStyle % 4) * 4;
  canvas.body(Rounded({{50, 10.5},
                       {50 - cheek * 0.75, 14.5},
                       {50 - cheek, 29},
                       {50 - cheek, temple},
                       {52.5 - cheek, temple - 2},
                       {54.5 - cheek, fringe + 8},
                       {50 - cheek * 0.4, fringe + 2.5},
                       {parting, fringe},
                       {50 + cheek * 0.45, fringe + 2},
                       {45.5 + cheek, fringe + 8},
                       {47.5 + cheek, temple - 2},
                       {50 + cheek, temple},
                       {50 + cheek, 29},
                       {50 + cheek * 0.75, 14.5}}),
              person.hair);
  PaintStrands(canvas, person, 50 - cheek, 50 + cheek);
  if (person.woman && person.hairStyle == 1) {
    canvas.body(Oval({50, 9}, 9, 6.5), person.hair);
  }
}

void PaintBeard(Canvas& canvas, const Person& person) {
  if (person.orc && person.beard > 3) {
    PaintTuft(canvas, person);
  }
  if (person.woman || person.orc || person.beard == 0) {
    return;
  }
  if (person.beard == 1) {
    return PaintStubble(canvas, person);
  }
  if (person.beard == 3) {
    PaintGoatee(canvas, person);
  }
  if (person.beard >= 4) {
    PaintFullBeard(canvas, person);
  }
  PaintMoustache(canvas, person);
}

void PaintHeadgear(Canvas& canvas, const Person& person) {
  if (!person.covered && person.role.headgear != Headgear::Veil) {
    return;
  }
  switch (person.role.headgear) {
    case Headgear::None:
      return;
    case Headgear::Hood:
      return PaintHood(canvas, person);
    case Headgear::Helmet:
      return PaintHelmet(canvas, person);
    case Headgear::Turban:
      return PaintTurban(canvas, person);
    case Headgear::Hat:
      return PaintHat(canvas, person);
    case Headgear::Bandana:
      return PaintBandana(canvas, person);
    case Headgear::FurCap:
      return PaintFurCap(canvas, person);
    case Headgear::Veil:
      return PaintVeil(canvas, person);
    case Headgear::Circlet:
      return PaintCirclet(canvas, person);
    case Headgear::Feather:
      return PaintFeatheredHat(canvas, person);
  }
}

}  // namespace Pictures
