#include "controls/windows/PrintableWidget.h"

#include <QPainter>
#include <QPicture>
#include <QWidget>

namespace PrintableWidget {

void Paint(QWidget& widget, QPainter& painter, const QPoint& at) {
  QPicture drawing;
  QPainter recorder(&drawing);
  widget.render(&recorder, {}, {}, QWidget::DrawChildren);
  recorder.end();
  painter.drawPicture(at, drawing);
}

}  // namespace PrintableWidget
