#include "mapdata/windows/ShiftCursor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

ShiftCursor::ShiftCursor(QWidget* widget) : QObject(widget), widget_(widget) {
  widget->installEventFilter(this);
}

// Keys go to whatever has the focus, so all of the program is watched while the pointer is here.
bool ShiftCursor::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (watched == widget_ && type == QEvent::Enter) {
    qApp->installEventFilter(this);
    Show(QApplication::keyboardModifiers() == Qt::ShiftModifier);
  } else if (watched == widget_ && type == QEvent::Leave) {
    qApp->removeEventFilter(this);
    Show(false);
  } else if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
    if (widget_->underMouse() && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Shift)
      Show(type == QEvent::KeyPress);
  }
  return false;
}

void ShiftCursor::Show(bool crossHair) {
  if (crossHair)
    widget_->setCursor(Qt::CrossCursor);
  else
    widget_->unsetCursor();
}
