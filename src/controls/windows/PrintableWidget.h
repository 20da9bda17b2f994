#pragma once

class QPainter;
class QPoint;
class QWidget;

/// Widgets on paper.
namespace PrintableWidget {

/// Paints the widget and its children from this point on as texts and outlines; a widget's own way
/// of painting would print the screen's pixels.
void Paint(QWidget& widget, QPainter& painter, const QPoint& at);

}  // namespace PrintableWidget
