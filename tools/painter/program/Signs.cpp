#include <QPainter>
#include <QPainterPath>
#include <span>

#include "program/Icons.h"

namespace Program {

namespace {

constexpr QColor Outline(54, 38, 28);
constexpr QColor Steel(176, 188, 204);
constexpr QColor Gold(226, 174, 56);
constexpr QColor Wood(150, 98, 52);
constexpr QColor Red(190, 44, 36);
constexpr QColor Blue(64, 104, 190);
constexpr QColor Green(92, 158, 74);
constexpr QColor Violet(134, 82, 178);
constexpr QColor Paper(250, 240, 214);

// Shapes keep to half units, so that their edges are sharp at 16 pixels and at 32.
void Fill(QPainter& painter, const QPolygonF& shape, const QColor& color) {
  painter.setPen(QPen(Outline, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(color);
  painter.drawPolygon(shape);
}

void Bar(QPainter& painter, QPointF from, QPointF to, const QColor& color, double width) {
  painter.setPen(QPen(Outline, width + 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, to);
  painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, to);
}

void Disc(QPainter& painter, QPointF middle, double radius, const QColor& color) {
  painter.setPen(QPen(Outline, 1));
  painter.setBrush(color);
  painter.drawEllipse(middle, radius, radius);
}

void Info(QPainter& painter) {
  Disc(painter, {8, 8}, 6.5, Blue);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawRect(QRectF(7, 7, 2, 5));
  painter.drawRect(QRectF(7, 4, 2, 2));
}

void Sheet(QPainter& painter) {
  Fill(painter, {{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}, Qt::white);
  Fill(painter, {{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}, QColor(214, 222, 232));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Blue);
  for (const double y : {6.0, 8.0, 10.0, 12.0}) {
    painter.drawRect(QRectF(5, y, y > 11 ? 4 : 6, 1));
  }
}

void Swords(QPainter& painter) {
  Bar(painter, {3, 2.5}, {11, 10.5}, Steel, 1.4);
  Bar(painter, {13, 2.5}, {5, 10.5}, Steel, 1.4);
  Bar(painter, {8.6, 12.4}, {12.6, 8.4}, Gold, 1.0);
  Bar(painter, {7.4, 12.4}, {3.4, 8.4}, Gold, 1.0);
  Bar(painter, {12, 11.8}, {13.6, 13.4}, Wood, 1.4);
  Bar(painter, {4, 11.8}, {2.4, 13.4}, Wood, 1.4);
}

void Bow(QPainter& painter) {
  QPainterPath bow(QPointF(3, 2.5));
  bow.cubicTo(QPointF(9, 2), QPointF(14, 7), QPointF(13.5, 13));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Outline, 3, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(bow);
  painter.setPen(QPen(Wood.lighter(120), 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(bow);
  painter.setPen(QPen(Outline, 0.8));
  painter.drawLine(QPointF(3, 2.5), QPointF(13.5, 13));
  Bar(painter, {3, 13}, {11, 5}, Steel, 0.9);
  Fill(painter, {{13.5, 2.5}, {12.5, 6.5}, {9.5, 3.5}}, Steel);
}

void Flame(QPainter& painter) {
  QPainterPath flame(QPointF(8, 1));
  flame.cubicTo(QPointF(9, 5), QPointF(13.5, 6), QPointF(13, 10.5));
  flame.cubicTo(QPointF(12.6, 16), QPointF(3.4, 16), QPointF(3, 10.5));
  flame.cubicTo(QPointF(2.8, 7.5), QPointF(5, 7), QPointF(5.4, 4.5));
  flame.cubicTo(QPointF(7, 5.5), QPointF(7.6, 3.5), QPointF(8, 1));
  painter.setPen(QPen(Outline, 1));
  painter.setBrush(Violet);
  painter.drawPath(flame);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(226, 196, 250));
  painter.drawEllipse(QPointF(8, 11), 2.2, 2.8);
}

void Anvil(QPainter& painter) {
  Fill(painter,
       {{1.5, 6.5},
        {13.5, 6.5},
        {13.5, 8.5},
        {10.5, 9.5},
        {10.5, 11.5},
        {12.5, 13.5},
        {3.5, 13.5},
        {5.5, 11.5},
        {5.5, 9.5},
        {1.5, 7.5}},
       QColor(116, 124, 138));
  Bar(painter, {8, 4}, {13.5, 1.5}, Wood, 1.0);
  Fill(painter, {{5.5, 2.5}, {8.5, 1.5}, {9.5, 4.5}, {6.5, 5.5}}, Steel);
}

void Mask(QPainter& painter) {
  painter.setPen(QPen(Outline, 1));
  painter.setBrush(QColor(72, 74, 92));
  QPainterPath mask(QPointF(1, 5.5));
  mask.cubicTo(QPointF(5, 3.5), QPointF(11, 3.5), QPointF(15, 5.5));
  mask.cubicTo(QPointF(15, 13), QPointF(10, 13.5), QPointF(8, 9.5));
  mask.cubicTo(QPointF(6, 13.5), QPointF(1, 13), QPointF(1, 5.5));
  painter.drawPath(mask);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Paper);
  painter.drawEllipse(QPointF(4.7, 8), 1.8, 1.3);
  painter.drawEllipse(QPointF(11.3, 8), 1.8, 1.3);
}

void Flask(QPainter& painter) {
  Fill(painter,
       {{6.5, 1.5},
        {9.5, 1.5},
        {9.5, 6.5},
        {13.5, 13.5},
        {12.5, 14.5},
        {3.5, 14.5},
        {2.5, 13.5},
        {6.5, 6.5}},
       QColor(226, 240, 244));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Green);
  painter.drawPolygon(
      QPolygonF{{5.2, 10}, {10.8, 10}, {12.8, 13.4}, {12.2, 14}, {3.8, 14}, {3.2, 13.4}});
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(7, 12), 0.9, 0.9);
  painter.drawEllipse(QPointF(9.5, 11.3), 0.6, 0.6);
}

void Scroll(QPainter& painter) {
  Fill(painter, {{3.5, 3.5}, {12.5, 3.5}, {12.5, 12.5}, {3.5, 12.5}}, Paper);
  Fill(painter, {{2.5, 1.5}, {13.5, 1.5}, {13.5, 4.5}, {2.5, 4.5}}, QColor(222, 196, 144));
  Fill(painter, {{2.5, 11.5}, {13.5, 11.5}, {13.5, 14.5}, {2.5, 14.5}}, QColor(222, 196, 144));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Outline);
  painter.drawRect(QRectF(5, 6, 6, 1));
  painter.drawRect(QRectF(5, 8, 6, 1));
}

void Star(QPainter& painter) {
  Fill(painter,
       {{8, 1.5},
        {9.9, 6},
        {14.5, 6.3},
        {11, 9.4},
        {12.2, 14},
        {8, 11.5},
        {3.8, 14},
        {5, 9.4},
        {1.5, 6.3},
        {6.1, 6}},
       Gold);
}

void Book(QPainter& painter) {
  Fill(painter, {{2.5, 2.5}, {12.5, 2.5}, {13.5, 3.5}, {13.5, 14.5}, {3.5, 14.5}, {2.5, 13.5}},
       Red);
  Fill(painter, {{4.5, 12.5}, {13.5, 12.5}, {13.5, 14.5}, {4.5, 14.5}}, Paper);
  painter.setPen(QPen(Gold, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(5.5, 4.5, 6, 5));
  painter.drawLine(QPointF(8.5, 5), QPointF(8.5, 9));
}

void Draw(QPainter& painter, Sign sign) {
  switch (sign) {
    case Sign::Info:
      return Info(painter);
    case Sign::Document:
      return Sheet(painter);
    case Sign::Fight:
      return Swords(painter);
    case Sign::Hunting:
      return Bow(painter);
    case Sign::Magic:
      return Flame(painter);
    case Sign::Smith:
      return Anvil(painter);
    case Sign::Thief:
      return Mask(painter);
    case Sign::Alchemy:
      return Flask(painter);
    case Sign::Other:
      return Scroll(painter);
    case Sign::Perk:
      return Star(painter);
    case Sign::Root:
      return Book(painter);
  }
}

struct Stripe {
  QRectF area;
  QColor color;
};

constexpr QColor NightBlue(16, 44, 120);
constexpr QColor Scarlet(204, 24, 44);

constexpr Stripe GermanStripes[] = {{{0, 0, 16, 5}, QColor(24, 24, 24)},
                                    {{0, 5, 16, 6}, QColor(214, 20, 24)},
                                    {{0, 11, 16, 5}, QColor(250, 204, 20)}};
constexpr Stripe FrenchStripes[] = {{{0, 0, 5, 16}, QColor(20, 56, 150)},
                                    {{11, 0, 5, 16}, QColor(222, 36, 52)}};
constexpr Stripe EnglishCross[] = {{{5, 0, 6, 16}, QColor(255, 255, 255)},
                                   {{0, 5, 16, 6}, QColor(255, 255, 255)},
                                   {{6, 0, 4, 16}, Scarlet},
                                   {{0, 6, 16, 4}, Scarlet}};

void Fill(QPainter& painter, std::span<const Stripe> stripes) {
  for (const Stripe& stripe : stripes) {
    painter.fillRect(stripe.area, stripe.color);
  }
}

void Diagonals(QPainter& painter, const QColor& color, double width) {
  painter.setPen(QPen(color, width));
  painter.drawLine(QPointF(0, 0), QPointF(16, 16));
  painter.drawLine(QPointF(16, 0), QPointF(0, 16));
}

void EnglishFlag(QPainter& painter) {
  painter.fillRect(QRectF(0, 0, 16, 16), NightBlue);
  Diagonals(painter, Qt::white, 3.2);
  Diagonals(painter, Scarlet, 1.2);
  Fill(painter, EnglishCross);
}

void NoFlag(QPainter& painter) {
  painter.fillRect(QRectF(0, 0, 16, 16), QColor(226, 226, 226));
  Disc(painter, {8, 8}, 4.5, QColor(170, 184, 200));
  painter.setPen(QPen(Outline, 0.8));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QPointF(8, 8), 1.8, 4.5);
  painter.drawLine(QPointF(3.5, 8), QPointF(12.5, 8));
}

void Draw(QPainter& painter, Flag flag) {
  switch (flag) {
    case Flag::German:
      return Fill(painter, GermanStripes);
    case Flag::French:
      return Fill(painter, FrenchStripes);
    case Flag::English:
      return EnglishFlag(painter);
    case Flag::None:
      return NoFlag(painter);
  }
}

void Border(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(QColor(0, 0, 0, 110), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(0.5, 0.5, 15, 15));
}

}  // namespace

QImage PaintSign(Sign sign, int scale) {
  QImage image(16 * scale, 16 * scale, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  Draw(painter, sign);
  return image;
}

QImage PaintFlag(Flag flag, int scale) {
  QImage image(16 * scale, 16 * scale, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  Draw(painter, flag);
  Border(painter);
  return image;
}

}  // namespace Program
