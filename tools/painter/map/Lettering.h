#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <vector>

#include "map/RegionStyle.h"

namespace Map {

/// The typeface of all names and titles on the maps; an em of it has that many `pixels`.
[[nodiscard]] QFont MapFont(double pixels, bool bold, bool italic);

/// Writes names beside their places so that none covers another, in picture pixels.
class Lettering {
 public:
  /// The style must outlive the lettering. Names keep off the picture's edges where they can.
  Lettering(const RegionStyle& style, QSize picture) : style_(style), picture_(picture) {}

  /// Keeps names off a rectangle.
  void reserve(const QRectF& area) { taken_.push_back(area); }

  /// Whether a name there covers nothing and keeps off the edges.
  [[nodiscard]] bool isFree(const QRectF& area) const;

  /// Writes the name on the first free side of its place, `gap` pixels from it. False where none
  /// is free: then a name that must stand goes where it covers least, another is left out.
  bool write(QPainter& painter, const QString& name, const QFont& font, QPointF at, double gap,
             bool mustStand);

 private:
  [[nodiscard]] double covered(const QRectF& area) const;

  const RegionStyle& style_;
  QSize picture_;
  std::vector<QRectF> taken_;
};

/// Draws text with a halo of paper behind it, its baseline starting at `at`.
void DrawHaloed(QPainter& painter, const RegionStyle& style, const QString& text, const QFont& font,
                QPointF at);

}  // namespace Map
