#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <functional>
#include <initializer_list>
#include <span>

#include "map/Tone.h"

namespace Pictures {

using Map::Tone;

/// Colours that all pictures share; outlines and shadows lean towards ink.
inline constexpr Tone Ink{38, 28, 24};
inline constexpr Tone Gold{206, 164, 72};
inline constexpr Tone Bone{232, 222, 196};
inline constexpr Tone Steel{158, 166, 178};
inline constexpr Tone Wood{126, 86, 52};

/// A closed line without corners through the points, of which there is at least one.
[[nodiscard]] QPainterPath Rounded(std::span<const QPointF> points);
[[nodiscard]] QPainterPath Rounded(std::initializer_list<QPointF> points);

/// A closed line of straight pieces.
[[nodiscard]] QPainterPath Angular(std::span<const QPointF> points);
[[nodiscard]] QPainterPath Angular(std::initializer_list<QPointF> points);

/// An ellipse; `across` and `down` are its half axes.
[[nodiscard]] QPainterPath Oval(QPointF middle, double across, double down);

/// The same on the other side of the picture's middle line.
[[nodiscard]] QPainterPath Mirrored(const QPainterPath& path);

/// A picture of 100 x 100 units with light from the north-west.
class Canvas {
 public:
  /// The painter must outlive the canvas and be scaled to its units.
  explicit Canvas(QPainter& painter) : painter_(painter) {}

  /// For what the canvas cannot do itself; in canvas units.
  [[nodiscard]] QPainter& painter() { return painter_; }

  /// Fills a shape as a lit body with a dark outline, that many units wide; 0 is none.
  void body(const QPainterPath& path, const Tone& tone, double outline = 0.8);
  /// Fills a shape evenly, without an outline.
  void flat(const QPainterPath& path, const QColor& color);
  /// Draws along a path with round ends, `width` units wide.
  void line(const QPainterPath& path, const QColor& color, double width);
  void line(QPointF from, QPointF to, const QColor& color, double width);
  /// Light that fades to nothing at `radius` units.
  void glow(QPointF middle, double radius, const QColor& color);
  /// A body and its mirror image, which lies farther from the light.
  void pair(const QPainterPath& path, const Tone& tone, double outline = 0.8);
  /// Covers everything: brighter behind the subject than at the edges.
  void backdrop(const Tone& middle, const Tone& edge);

 private:
  QPainter& painter_;
};

/// Paints at four times the size, scales down and puts a frame around: 105 x 105 pixels.
[[nodiscard]] QImage Framed(const std::function<void(Canvas&)>& paint);

}  // namespace Pictures
