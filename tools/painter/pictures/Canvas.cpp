#include "pictures/Canvas.h"

namespace Pictures {

namespace {

constexpr int Side = 105;
constexpr int Supersampling = 4;

void DrawFrame(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Ink.color(), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(QRectF(1, 1, 98, 98));
  QLinearGradient gilt(0, 0, 100, 100);
  gilt.setColorAt(0, Gold.lit(1.25).color());
  gilt.setColorAt(0.5, Gold.lit(0.8).color());
  gilt.setColorAt(1, Gold.lit(0.55).color());
  painter.setPen(QPen(gilt, 2.2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(QRectF(2.4, 2.4, 95.2, 95.2));
  painter.setPen(QPen(Ink.color(200), 0.8, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(QRectF(3.9, 3.9, 92.2, 92.2));
}

}  // namespace

QPainterPath Rounded(std::span<const QPointF> points) {
  const std::size_t count = points.size();
  QPainterPath path(points[0]);
  for (std::size_t i = 0; i < count; ++i) {
    const QPointF before = points[(i + count - 1) % count];
    const QPointF from = points[i];
    const QPointF to = points[(i + 1) % count];
    const QPointF after = points[(i + 2) % count];
    path.cubicTo(from + (to - before) / 6, to - (after - from) / 6, to);
  }
  path.closeSubpath();
  return path;
}

QPainterPath Rounded(std::initializer_list<QPointF> points) {
  return Rounded(std::span(points.begin(), points.size()));
}

QPainterPath Angular(std::span<const QPointF> points) {
  QPainterPath path;
  path.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
  path.closeSubpath();
  return path;
}

QPainterPath Angular(std::initializer_list<QPointF> points) {
  return Angular(std::span(points.begin(), points.size()));
}

QPainterPath Oval(QPointF middle, double across, double down) {
  QPainterPath path;
  path.addEllipse(middle, across, down);
  return path;
}

QPainterPath Mirrored(const QPainterPath& path) {
  return QTransform(-1, 0, 0, 1, 100, 0).map(path);
}

void Canvas::body(const QPainterPath& path, const Tone& tone, double outline) {
  const QRectF box = path.boundingRect();
  QLinearGradient light(box.topLeft(), box.bottomRight());
  light.setColorAt(0, tone.lit(1.22).color());
  light.setColorAt(0.45, tone.color());
  light.setColorAt(1, tone.lit(0.58).color());
  painter_.setBrush(light);
  painter_.setPen(outline > 0 ? QPen(tone.towards(Ink, 0.75).color(), outline, Qt::SolidLine,
                                     Qt::RoundCap, Qt::RoundJoin)
                              : QPen(Qt::NoPen));
  painter_.drawPath(path);
}

void Canvas::flat(const QPainterPath& path, const QColor& color) {
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(color);
  painter_.drawPath(path);
}

void Canvas::line(const QPainterPath& path, const QColor& color, double width) {
  painter_.setBrush(Qt::NoBrush);
  painter_.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.drawPath(path);
}

void Canvas::line(QPointF from, QPointF to, const QColor& color, double width) {
  painter_.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
  painter_.drawLine(from, to);
}

void Canvas::glow(QPointF middle, double radius, const QColor& color) {
  QRadialGradient light(middle, radius);
  QColor faded = color;
  faded.setAlpha(0);
  light.setColorAt(0, color);
  light.setColorAt(1, faded);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(light);
  painter_.drawEllipse(middle, radius, radius);
}

void Canvas::pair(const QPainterPath& path, const Tone& tone, double outline) {
  body(path, tone, outline);
  body(Mirrored(path), tone.lit(0.85), outline);
}

void Canvas::backdrop(const Tone& middle, const Tone& edge) {
  QRadialGradient light(QPointF(42, 38), 74);
  light.setColorAt(0, middle.color());
  light.setColorAt(1, edge.color());
  painter_.fillRect(QRectF(0, 0, 100, 100), light);
}

QImage Framed(const std::function<void(Canvas&)>& paint) {
  QImage large(Side * Supersampling, Side * Supersampling, QImage::Format_RGB32);
  large.fill(Qt::black);
  QPainter painter(&large);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(large.width() / 100.0, large.height() / 100.0);
  Canvas canvas(painter);
  paint(canvas);
  DrawFrame(painter);
  painter.end();
  return large.scaled(Side, Side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace Pictures
