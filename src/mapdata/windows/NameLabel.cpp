#include "mapdata/windows/NameLabel.h"

#include "controls/windows/WidgetTwips.h"

#include <QMouseEvent>
#include <QToolTip>

NameLabel::NameLabel(QWidget* parent, double points, int textColor, int groundColor)
    : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setFont(WidgetTwips::Font(points, true));
  setMouseTracking(true);
  // By palette: a style sheet would colour the tooltip too.
  setAutoFillBackground(true);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, WidgetTwips::Color(groundColor));
  colors.setColor(QPalette::WindowText, WidgetTwips::Color(textColor));
  setPalette(colors);
}

void NameLabel::SetCaption(const QString& caption) {
  // A resize sets every name anew.
  if (text() == caption)
    return;
  setText(caption);
  adjustSize();
}

void NameLabel::SetTextColor(int color) {
  const QColor wanted = WidgetTwips::Color(color);
  if (palette().color(QPalette::WindowText) == wanted)
    return;
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, wanted);
  setPalette(colors);
}

void NameLabel::leaveEvent(QEvent* event) {
  QToolTip::hideText();
  QLabel::leaveEvent(event);
}

void NameLabel::mouseMoveEvent(QMouseEvent*) {
  Q_EMIT MouseMove();
}

void NameLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    Q_EMIT DblClick();
}
