#include "map/Ornament.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <cmath>

#include "map/Lettering.h"
#include "terrain/Grid.h"
#include "terrain/Noise.h"

namespace Map {

namespace {

constexpr double Pi = 3.14159265358979;

QPen InkPen(const RegionStyle& style, double width, int alpha = 255) {
  return QPen(style.ink.color(alpha), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void DrawCentred(QPainter& painter, const RegionStyle& style, const QString& text,
                 const QFont& font, QPointF baselineMiddle) {
  QPainterPath path;
  path.addText(QPointF(0, 0), font, text);
  const QRectF box = path.boundingRect();
  path.translate(baselineMiddle.x() - box.center().x(), baselineMiddle.y());
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color());
  painter.drawPath(path);
}

void DrawScrollEnd(QPainter& painter, const RegionStyle& style, QPointF corner, double side) {
  const QPolygonF fold{corner, corner + QPointF(side * 34, 18), corner + QPointF(side * 20, 62),
                       corner + QPointF(side * 34, 108), corner + QPointF(0, 92)};
  painter.setPen(InkPen(style, 2.4));
  painter.setBrush(style.paper.towards(style.ink, 0.22).color());
  painter.drawPolygon(fold);
}

void DrawFlourish(QPainter& painter, const RegionStyle& style, QPointF middle, double side) {
  QPainterPath path(middle + QPointF(side * 10, 0));
  path.cubicTo(middle + QPointF(side * 50, -14), middle + QPointF(side * 80, 14),
               middle + QPointF(side * 120, 0));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(InkPen(style, 2));
  painter.drawPath(path);
}

}  // namespace

void AgePaper(QImage& image, std::uint32_t seed) {
  const double width = image.width();
  const double height = image.height();
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const double grain = Terrain::HashFraction(seed + 6000, x / 2, y / 2) - 0.5;
      const double fibre = Terrain::GradientNoise(seed + 6100, x / 19.0, y / 3.0);
      const double stain = Terrain::FractalNoise(seed + 6200, x / 420.0, y / 420.0, 3);
      const double edge = std::min({x / width, y / height, 1 - x / width, 1 - y / height});
      const double burnt = 1 - Terrain::SmoothStep(0, 0.09, edge + 0.02 * stain);
      const double light = 1 + 0.028 * grain + 0.012 * fibre + 0.05 * stain - 0.22 * burnt;
      const Tone tone{qRed(line[x]) * 1.0, qGreen(line[x]) * 1.0, qBlue(line[x]) * 1.0};
      constexpr Tone Parchment{214, 184, 128};
      line[x] = tone.towards(Parchment, 0.06 + 0.10 * burnt).lit(light).rgb();
    }
  }
}

void DrawFrame(QPainter& painter, const RegionStyle& style, QSize picture) {
  constexpr double Band = 16;
  constexpr double Inset = 5;
  const QRectF outer = QRectF(QPointF(0, 0), picture).adjusted(Inset, Inset, -Inset, -Inset);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style.paper.color(), Band * 2.4, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.drawRect(outer.adjusted(2, 2, -2, -2));
  // Alternating bars, sixteen across and twelve down, as a scale of the frame.
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color(220));
  const double column = outer.width() / 32;
  const double row = outer.height() / 24;
  for (int i = 0; i < 32; i += 2) {
    painter.drawRect(QRectF(outer.left() + i * column, outer.top() + 4, column, 7));
    painter.drawRect(QRectF(outer.left() + (i + 1) * column, outer.bottom() - 11, column, 7));
  }
  for (int i = 0; i < 24; i += 2) {
    painter.drawRect(QRectF(outer.left() + 4, outer.top() + (i + 1) * row, 7, row));
    painter.drawRect(QRectF(outer.right() - 11, outer.top() + i * row, 7, row));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(InkPen(style, 1.6));
  painter.drawRect(outer.adjusted(3, 3, -3, -3));
  painter.drawRect(outer.adjusted(12, 12, -12, -12));
  painter.setPen(InkPen(style, 3));
  painter.drawRect(outer.adjusted(17, 17, -17, -17));
}

void DrawCartouche(QPainter& painter, const RegionStyle& style, QPointF corner) {
  const QRectF box = QRectF(corner, CartoucheSize).adjusted(36, 4, -36, -18);
  DrawScrollEnd(painter, style, box.topLeft() + QPointF(4, 30), -1);
  DrawScrollEnd(painter, style, box.topRight() + QPointF(-4, 30), 1);
  QLinearGradient sheet(box.topLeft(), box.bottomLeft());
  sheet.setColorAt(0, style.paper.lit(1.02).color());
  sheet.setColorAt(1, style.paper.towards(style.ink, 0.10).color());
  painter.setPen(InkPen(style, 3));
  painter.setBrush(sheet);
  painter.drawRoundedRect(box, 10, 10);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(InkPen(style, 1.3, 170));
  painter.drawRoundedRect(box.adjusted(7, 7, -7, -7), 6, 6);
  const QString title =
      QString::fromUtf16(style.title.data(), static_cast<qsizetype>(style.title.size()));
  QFont large = MapFont(74, true, false);
  large.setLetterSpacing(QFont::AbsoluteSpacing, 2);
  const double width = QFontMetricsF(large).horizontalAdvance(title);
  const double room = box.width() - 44;
  if (width > room) {
    large.setPixelSize(static_cast<int>(74 * room / width));
  }
  DrawCentred(painter, style, title, large, QPointF(box.center().x(), box.top() + 74));
  const QString below =
      QString::fromUtf16(style.subtitle.data(), static_cast<qsizetype>(style.subtitle.size()));
  DrawCentred(painter, style, below, MapFont(28, false, true),
              QPointF(box.center().x(), box.bottom() - 18));
  const QPointF rule(box.center().x(), box.top() + 88);
  DrawFlourish(painter, style, rule, -1);
  DrawFlourish(painter, style, rule, 1);
}

void DrawCompass(QPainter& painter, const RegionStyle& style, QPointF middle, double radius) {
  painter.setBrush(style.paper.color(95));
  painter.setPen(InkPen(style, 1.6));
  painter.drawEllipse(middle, radius * 0.72, radius * 0.72);
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(middle, radius * 0.64, radius * 0.64);
  for (int point = 7; point >= 0; --point) {
    // Odd points are the half winds; they lie under the four main ones.
    const int wind = (point < 4 ? point : point - 4);
    const bool main = point < 4;
    const double angle = wind * Pi / 2 - Pi / 2 + (main ? 0 : Pi / 4);
    const QPointF along(std::cos(angle), std::sin(angle));
    const QPointF aside(-along.y(), along.x());
    const QPointF tip = middle + along * radius * (main ? 0.96 : 0.6);
    const QPointF base = along * radius * 0.13;
    const QPointF hip = aside * radius * 0.13;
    painter.setPen(InkPen(style, 1.3));
    painter.setBrush(style.ink.color(225));
    painter.drawPolygon(QPolygonF{middle, middle + base + hip, tip});
    painter.setBrush(style.paper.color());
    painter.drawPolygon(QPolygonF{middle, middle + base - hip, tip});
  }
  const QFont font = MapFont(radius * 0.36, true, false);
  DrawHaloed(painter, style, QStringLiteral("N"), font,
             middle + QPointF(-QFontMetricsF(font).horizontalAdvance(u'N') / 2, -radius * 1.03));
}

}  // namespace Map
