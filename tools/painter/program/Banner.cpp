#include "program/Banner.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "map/Lettering.h"
#include "program/Icons.h"

namespace Program {

namespace {

const Map::RegionStyle& Style() {
  return Map::StyleOf("arvenna");
}

// A piece of the map under warm light, framed.
QImage Ground(const QImage& sheet, const QRect& part, QSize size, int scale) {
  QImage image = sheet.copy(part).scaled(size * scale, Qt::KeepAspectRatioByExpanding,
                                         Qt::SmoothTransformation);
  image = image.copy(QRect(QPoint(0, 0), size * scale));
  QPainter painter(&image);
  QRadialGradient warmth(image.rect().center(), image.width() * 0.7);
  warmth.setColorAt(0, QColor(255, 240, 200, 70));
  warmth.setColorAt(1, QColor(60, 34, 14, 150));
  painter.fillRect(image.rect(), warmth);
  painter.scale(scale, scale);
  painter.setPen(QPen(Style().ink.color(), 2));
  painter.drawRect(QRectF(1, 1, size.width() - 2, size.height() - 2));
  painter.setPen(QPen(QColor(222, 180, 90), 1.4));
  painter.drawRect(QRectF(3, 3, size.width() - 6, size.height() - 6));
  return image;
}

void DrawTitle(QPainter& painter, const QString& text, double pixels, QPointF middle) {
  QFont font = Map::MapFont(pixels, true, false);
  font.setLetterSpacing(QFont::AbsoluteSpacing, pixels * 0.04);
  const double half = QFontMetricsF(font).horizontalAdvance(text) / 2;
  Map::DrawHaloed(painter, Style(), text, font, middle - QPointF(half, 0));
}

}  // namespace

QImage PaintAboutBanner(const QImage& sheet, int scale) {
  QImage image = Ground(sheet, QRect(420, 470, 1060, 400), QSize(400, 151), scale);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawImage(QPoint(18 * scale, 28 * scale), PaintProgramIcon(96 * scale));
  painter.scale(scale, scale);
  DrawTitle(painter, QStringLiteral("Orvalis"), 70, QPointF(254, 86));
  DrawTitle(painter, QStringLiteral("Duskhold"), 24, QPointF(254, 124));
  return image;
}

QImage PaintPrintBanner(const QImage& sheet, int scale) {
  QImage image = Ground(sheet, QRect(640, 480, 500, 527), QSize(150, 158), scale);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  const QPen ink(Style().ink.color(), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.setPen(ink);
  painter.setBrush(QColor(252, 246, 228));
  painter.drawRect(QRectF(50, 26, 50, 46));
  painter.setBrush(QColor(122, 84, 52));
  painter.drawRoundedRect(QRectF(30, 66, 90, 42), 6, 6);
  painter.setBrush(QColor(222, 180, 90));
  painter.drawEllipse(QPointF(108, 78), 3, 3);
  painter.setBrush(QColor(66, 44, 28));
  painter.drawRoundedRect(QRectF(42, 90, 66, 8), 3, 3);
  painter.setBrush(QColor(252, 246, 228));
  painter.drawPolygon(QPolygonF{{46, 94}, {104, 94}, {110, 134}, {40, 134}});
  painter.drawImage(QRectF(58, 97, 34, 34), PaintProgramIcon(34 * scale));
  return image;
}

}  // namespace Program
