#pragma once

class QPainter;
class QPoint;
class QWidget;

/// Widgets on paper.
namespace PrintableWidget {

/// Paints the widget and its children with its left upper corner at this point, as texts and
/// outlines: painted on a printer as widgets are, they would be pictures of the screen's pixels.
void Paint(QWidget& widget, QPainter& painter, const QPoint& at);

}  // namespace PrintableWidget
