#include "map/Sheet.h"

#include <QFontMetricsF>
#include <QPainter>
#include <array>

#include "map/Lettering.h"
#include "map/Ornament.h"
#include "map/Relief.h"
#include "map/Signs.h"
#include "terrain/Noise.h"

namespace Map {

namespace {

using Terrain::Climate;
using Terrain::Point;

constexpr Point Continent[] = {
    {250, 300}, {190, 250}, {240, 215}, {330, 235}, {255, 185}, {265, 130}, {330, 150},
    {385, 230}, {375, 130}, {420, 75},  {490, 80},  {515, 200}, {550, 85},  {640, 60},
    {690, 110}, {700, 190}, {735, 110}, {800, 95},  {840, 150}, {820, 230}, {760, 290},
    {780, 350}, {840, 390}, {800, 450}, {720, 480}, {700, 530}, {770, 560}, {780, 630},
    {720, 690}, {620, 700}, {560, 660}, {500, 715}, {400, 700}, {330, 640}, {250, 650},
    {200, 590}, {260, 530}, {330, 500}, {250, 460}, {190, 410}, {230, 350}};
constexpr Point Ruins[] = {{850, 570}, {890, 535}, {945, 545}, {965, 600}, {930, 645}, {870, 635}};
constexpr Point IsleWest[] = {{110, 330}, {150, 315}, {165, 350}, {125, 370}};
constexpr Point IsleNorth[] = {{150, 150}, {180, 130}, {205, 160}, {170, 185}};
constexpr Point IsleSouth[] = {{90, 560}, {130, 545}, {145, 580}, {105, 592}};
constexpr Terrain::Outline Land[] = {Continent, Ruins, IsleWest, IsleNorth, IsleSouth};
constexpr Point NorthCrest[] = {{300, 290}, {420, 270}, {560, 255}, {700, 270}};
constexpr Point MiddleCrest[] = {{560, 350}, {640, 390}, {690, 440}};
constexpr Point SouthCrest[] = {{330, 540}, {450, 520}, {600, 530}};
constexpr Point RuinCrest[] = {{880, 580}, {930, 575}};
constexpr Terrain::Range Ranges[] = {
    {NorthCrest, 38, 0.95}, {MiddleCrest, 30, 0.7}, {SouthCrest, 34, 0.8}, {RuinCrest, 26, 0.7}};
constexpr Terrain::Disc Lakes[] = {{{480, 400}, 22}, {{350, 410}, 14}};
constexpr Terrain::Disc Oases[] = {{{420, 600}, 24}, {{610, 610}, 28}, {{320, 590}, 18}};

constexpr Terrain::Shape World(Climate climate) {
  return {"world", 2718,  climate, Land, Lakes,
          Ranges,  Oases, {},      {},   climate == Climate::Desert ? 0.0 : 0.4,
          2200};
}

QImage PaintZone(Climate climate, std::string_view region) {
  RegionStyle style = StyleOf(region);
  // One sea surrounds all zones.
  style.shallows = StyleOf("arvenna").shallows;
  style.deep = StyleOf("arvenna").deep;
  const Terrain::Shape shape = World(climate);
  const Terrain::Field field = Terrain::MakeField(shape);
  QImage image = PaintRelief(field, style);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawRivers(painter, field, style);
  DrawSigns(painter, field, style, Reserved(Terrain::FrameWidth, Terrain::FrameHeight));
  return image;
}

Tone ToneOf(QRgb color) {
  return {qRed(color) * 1.0, qGreen(color) * 1.0, qBlue(color) * 1.0};
}

// Lays the southern picture over the northern one below a wavering line.
void Join(QImage& north, const QImage& south, double border) {
  constexpr double Width = 22;
  for (int row = 0; row < north.height(); ++row) {
    auto* line = reinterpret_cast<QRgb*>(north.scanLine(row));
    const auto* other = reinterpret_cast<const QRgb*>(south.constScanLine(row));
    for (int column = 0; column < north.width(); ++column) {
      const double x = column / static_cast<double>(Scale);
      const double y = row / static_cast<double>(Scale);
      const double bend = 26 * Terrain::FractalNoise(2719, x / 90, y / 90, 4);
      const double share = Terrain::SmoothStep(border - Width, border + Width, y + bend);
      line[column] = ToneOf(line[column]).towards(ToneOf(other[column]), share).rgb();
    }
  }
}

struct Caption {
  std::u16string_view text;
  Point middle;
  double size;
};

constexpr Caption Captions[] = {{u"Skaldor", {545, 190}, 64},
                                {u"Arvenna", {480, 345}, 68},
                                {u"Sarrakh", {500, 585}, 64},
                                {u"Ostrakh", {905, 668}, 42},
                                {u"Ahnentempel", {740, 232}, 34}};

void DrawCaption(QPainter& painter, const RegionStyle& style, const Caption& caption) {
  const QString text =
      QString::fromUtf16(caption.text.data(), static_cast<qsizetype>(caption.text.size()));
  QFont font = MapFont(caption.size, true, false);
  font.setLetterSpacing(QFont::AbsoluteSpacing, caption.size * 0.14);
  const double half = QFontMetricsF(font).horizontalAdvance(text) / 2;
  DrawHaloed(painter, style, text, font,
             QPointF(caption.middle.x * Scale - half, caption.middle.y * Scale));
}

}  // namespace

void DrawRivers(QPainter& painter, const Terrain::Field& field, const RegionStyle& style) {
  const auto draw = [&](double extra, const QColor& color) {
    for (const Terrain::River& river : field.rivers) {
      for (std::size_t i = 1; i < river.bends.size(); ++i) {
        const Point from = river.bends[i - 1].at;
        const Point to = river.bends[i].at;
        painter.setPen(
            QPen(color, river.bends[i].width * Scale * 0.8 + extra, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(from.x, from.y) * Scale, QPointF(to.x, to.y) * Scale);
      }
    }
  };
  draw(2.2, style.deep.towards(style.ink, 0.45).color());
  draw(0, style.shallows.towards(style.deep, 0.35).color());
}

QImage PaintWorldSheet() {
  QImage sheet = PaintZone(Climate::Arctic, "skaldor");
  Join(sheet, PaintZone(Climate::Temperate, "arvenna"), 285);
  Join(sheet, PaintZone(Climate::Desert, "sarrakh"), 505);
  AgePaper(sheet, 2720);
  return sheet;
}

QImage PaintOverview(const QImage& sheet) {
  const RegionStyle& style = StyleOf("arvenna");
  RegionStyle titled = style;
  titled.title = u"Duskhold";
  titled.subtitle = u"Die Welt und ihre Länder";
  QImage image = sheet.copy();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Caption& caption : Captions) {
    DrawCaption(painter, style, caption);
  }
  DrawCartouche(painter, titled, QPointF(56, 1300));
  DrawCompass(painter, style, QPointF(1850, 420), 110);
  DrawFrame(painter, style, image.size());
  painter.end();
  return image.scaledToWidth(1366, Qt::SmoothTransformation);
}

}  // namespace Map
