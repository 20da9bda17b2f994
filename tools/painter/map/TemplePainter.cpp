#include "map/TemplePainter.h"

#include <QPainter>

#include "map/Relief.h"
#include "terrain/Noise.h"

namespace Map {

namespace {

using Terrain::Hall;
using Terrain::SmoothStep;

class Plan {
 public:
  Plan(const Terrain::Field& field, const RegionStyle& style)
      : field_(field), style_(style), heights_(FineHeights(field)) {}

  [[nodiscard]] QImage paint() const;

 private:
  [[nodiscard]] double floorAt(double x, double y) const {
    return field_.floor.sample(x - 0.5, y - 0.5);
  }

  [[nodiscard]] Tone rock(int column, int row, double depth) const;
  [[nodiscard]] Tone tiles(double x, double y, double depth) const;
  [[nodiscard]] Tone pixel(int column, int row) const;
  void drawHall(QPainter& painter, const Hall& hall) const;
  void drawPillar(QPainter& painter, QPointF at, double radius) const;
  void drawBrazier(QPainter& painter, QPointF at) const;
  void drawStar(QPainter& painter, QPointF middle, double radius) const;

  const Terrain::Field& field_;
  const RegionStyle& style_;
  Terrain::Grid<float> heights_;
};

Tone Plan::rock(int column, int row, double depth) const {
  const double x = (column + 0.5) / Scale;
  const double y = (row + 0.5) / Scale;
  const double dx = (heights_.clamped(column + 1, row) - heights_.clamped(column - 1, row)) / 2;
  const double dy = (heights_.clamped(column, row + 1) - heights_.clamped(column, row - 1)) / 2;
  const double vein = Terrain::FractalNoise(field_.shape->seed + 7000, x / 50, y / 50, 5);
  const Tone stone = style_.rock.towards(style_.high, 0.5 + 0.5 * vein);
  const Tone lit = stone.lit(1 + 0.9 * (Shade(dx * 0.8, dy * 0.8) - 1));
  // Dressed stone around the halls, with an engraved line where it ends.
  const Tone dressed = style_.high.lit(1.05 + 0.08 * vein);
  const Tone walled = dressed.towards(lit, SmoothStep(4.2, 5.0, -depth));
  const double rim = 1 - SmoothStep(0.3, 0.9, std::abs(-depth - 4.6));
  const double lip = 1 - SmoothStep(0.0, 0.9, -depth);
  return walled.towards(style_.ink, 0.6 * rim + 0.55 * lip);
}

Tone Plan::tiles(double x, double y, double depth) const {
  constexpr double Tile = 9;
  const double u = x / Tile;
  const double v = y / Tile;
  const double tint =
      Terrain::HashFraction(field_.shape->seed + 7100, static_cast<int>(u), static_cast<int>(v));
  const double joint = std::min(std::abs(u - std::round(u)), std::abs(v - std::round(v)));
  const double worn = Terrain::FractalNoise(field_.shape->seed + 7200, x / 30, y / 30, 4);
  Tone tone = style_.road.lit(0.93 + 0.07 * tint + 0.08 * worn);
  tone = tone.towards(style_.ink, 0.30 * (1 - SmoothStep(0.02, 0.07, joint)));
  // The walls in the north-west throw their shadow on the floor.
  const double shadow = std::max(1 - SmoothStep(-1, 5, floorAt(x - 4.5, y - 4.5)),
                                 0.75 * (1 - SmoothStep(0, 5, depth)));
  return tone.towards(style_.ink, 0.5 * shadow);
}

Tone Plan::pixel(int column, int row) const {
  const double x = (column + 0.5) / Scale;
  const double y = (row + 0.5) / Scale;
  const double height = heights_.at(column, row);
  if (height < 0) {
    const double depth = Terrain::Clamp01(-height * 5);
    const double glint = Terrain::FractalNoise(field_.shape->seed + 7300, x / 14, y / 6, 3);
    const Tone water = style_.shallows.towards(style_.deep, depth).lit(1 + 0.12 * glint);
    return water.towards(style_.ink, 0.6 * (1 - SmoothStep(0.03, 0.075, -height)));
  }
  const double depth = floorAt(x, y);
  return depth > 0 || depth < -500 ? tiles(x, y, std::max(depth, 6.0)) : rock(column, row, depth);
}

void Plan::drawPillar(QPainter& painter, QPointF at, double radius) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(style_.ink.color(90));
  painter.drawEllipse(at + QPointF(4, 4), radius, radius);
  QRadialGradient stone(at - QPointF(radius, radius) * 0.4, radius * 1.6);
  stone.setColorAt(0, style_.snow.color());
  stone.setColorAt(1, style_.high.color());
  painter.setPen(QPen(style_.ink.color(), 1.6));
  painter.setBrush(stone);
  painter.drawEllipse(at, radius, radius);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style_.ink.color(120), 1));
  painter.drawEllipse(at, radius * 0.55, radius * 0.55);
}

void Plan::drawBrazier(QPainter& painter, QPointF at) const {
  QRadialGradient glow(at, 46);
  glow.setColorAt(0, QColor(255, 196, 96, 150));
  glow.setColorAt(1, QColor(255, 170, 60, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(glow);
  painter.drawEllipse(at, 46, 46);
  painter.setPen(QPen(style_.ink.color(), 1.6));
  painter.setBrush(QColor(226, 120, 40));
  painter.drawEllipse(at, 6, 6);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 226, 140));
  painter.drawEllipse(at, 3, 3);
}

void Plan::drawStar(QPainter& painter, QPointF middle, double radius) const {
  painter.setPen(QPen(style_.ink.color(150), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(middle, radius, radius);
  painter.drawEllipse(middle, radius * 0.9, radius * 0.9);
  QPolygonF star;
  for (int corner = 0; corner < 16; ++corner) {
    const double angle = corner * 3.14159265 / 8 - 3.14159265 / 2;
    const double reach = radius * (corner % 2 == 1 ? 0.38 : corner % 4 == 0 ? 0.86 : 0.62);
    star << middle + QPointF(std::cos(angle), std::sin(angle)) * reach;
  }
  painter.setBrush(style_.high.color(110));
  painter.drawPolygon(star);
}

void Plan::drawHall(QPainter& painter, const Hall& hall) const {
  const QRectF room(hall.left * Scale, hall.top * Scale, hall.width * Scale, hall.height * Scale);
  if (hall.form != Hall::Form::Square) {
    if (field_.height.clamped(static_cast<int>(room.center().x() / Scale),
                              static_cast<int>(room.center().y() / Scale)) >= 0) {
      drawStar(painter, room.center(), room.width() * 0.24);
    }
    for (int pillar = 0; pillar < 8; ++pillar) {
      const double angle = (pillar + 0.5) * 3.14159265 / 4;
      drawPillar(
          painter,
          room.center() +
              QPointF(std::cos(angle) * room.width(), std::sin(angle) * room.height()) * 0.36,
          room.width() > 300 ? 12 : 8);
    }
    return;
  }
  const QRectF inner = room.adjusted(30, 30, -30, -30);
  const int count = room.width() > 260 ? 5 : 3;
  for (int pillar = 0; pillar < count; ++pillar) {
    const double x = inner.left() + inner.width() * pillar / (count - 1);
    drawPillar(painter, QPointF(x, inner.top()), 8);
    drawPillar(painter, QPointF(x, inner.bottom()), 8);
  }
  drawBrazier(painter, QPointF(inner.left(), inner.center().y()));
  drawBrazier(painter, QPointF(inner.right(), inner.center().y()));
}

QImage Plan::paint() const {
  QImage image(heights_.width(), heights_.height(), QImage::Format_RGB32);
  for (int row = 0; row < image.height(); ++row) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
    for (int column = 0; column < image.width(); ++column) {
      line[column] = pixel(column, row).rgb();
    }
  }
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Hall& hall : field_.shape->halls) {
    drawHall(painter, hall);
  }
  return image;
}

}  // namespace

QImage PaintTemple(const Terrain::Field& field, const RegionStyle& style) {
  return Plan(field, style).paint();
}

}  // namespace Map
