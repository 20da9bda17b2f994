#include "mapdata/windows/MapGestures.h"

#include <QApplication>
#include <QGestureEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QShortcut>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>

namespace {

// What a notch of the wheel or a key makes of the scale.
constexpr double Step = 1.25;
constexpr double NotchOfWheel = 120;
constexpr double PixelsOfNotch = 50;
constexpr double Closer = 2;

double NotchesOf(const QWheelEvent& event) {
  return event.pixelDelta().isNull() ? event.angleDelta().y() / NotchOfWheel
                                     : event.pixelDelta().y() / PixelsOfNotch;
}

}  // namespace

MapGestures::MapGestures(QWidget* map) : QObject(map), map_(map) {
  map->installEventFilter(this);
  map->grabGesture(Qt::PinchGesture);
  const auto add = [this](const QKeySequence& keys, auto wish) {
    connect(new QShortcut(keys, map_), &QShortcut::activated, this, wish);
  };
  add(Qt::Key_Plus, [this] { Q_EMIT KeyZoomWanted(Step); });
  add(Qt::Key_Minus, [this] { Q_EMIT KeyZoomWanted(1 / Step); });
  add(Qt::Key_0, [this] { Q_EMIT KeyZoomWanted(0); });
  add(Qt::SHIFT | Qt::Key_Left, [this] { Q_EMIT KeyPanWanted(1, 0); });
  add(Qt::SHIFT | Qt::Key_Right, [this] { Q_EMIT KeyPanWanted(-1, 0); });
  add(Qt::SHIFT | Qt::Key_Up, [this] { Q_EMIT KeyPanWanted(0, 1); });
  add(Qt::SHIFT | Qt::Key_Down, [this] { Q_EMIT KeyPanWanted(0, -1); });
  add(Qt::Key_F5, [this] { Q_EMIT RepeatWanted(); });
}

void MapGestures::Add(QWidget* widget) {
  widget->installEventFilter(this);
}

void MapGestures::AddPicture(QWidget* picture) {
  picture_ = picture;
  Add(picture);
}

bool MapGestures::eventFilter(QObject* watched, QEvent* event) {
  if (watched == map_)
    return MapEvent(*event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return Press(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseMove:
      return Drag(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Release();
    case QEvent::MouseButtonDblClick: {
      const auto& click = static_cast<const QMouseEvent&>(*event);
      if (watched == picture_ && click.button() == Qt::LeftButton &&
          click.modifiers() != Qt::ShiftModifier)
        Q_EMIT ZoomWanted(map_->mapFromGlobal(click.globalPosition().toPoint()), Closer);
      return false;
    }
    default:
      return false;
  }
}

bool MapGestures::MapEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::Wheel:
      event.accept();
      Wheel(static_cast<const QWheelEvent&>(event));
      return true;
    case QEvent::NativeGesture: {
      const auto& gesture = static_cast<const QNativeGestureEvent&>(event);
      if (gesture.gestureType() == Qt::ZoomNativeGesture)
        Q_EMIT ZoomWanted(gesture.position().toPoint(), 1 + gesture.value());
      return gesture.gestureType() == Qt::ZoomNativeGesture;
    }
    case QEvent::Gesture: {
      const auto* pinch = static_cast<QGestureEvent&>(event).gesture(Qt::PinchGesture);
      if (pinch)
        Pinch(static_cast<const QPinchGesture&>(*pinch));
      return pinch != nullptr;
    }
    default:
      return false;
  }
}

void MapGestures::Wheel(const QWheelEvent& event) {
  const double notches = NotchesOf(event);
  if (notches != 0)
    Q_EMIT ZoomWanted(event.position().toPoint(), std::pow(Step, notches));
}

// Two fingers that move together pan.
void MapGestures::Pinch(const QPinchGesture& pinch) {
  if (pinch.state() != Qt::GestureUpdated)
    return;
  Q_EMIT PanWanted((pinch.centerPoint() - pinch.lastCenterPoint()).toPoint());
  Q_EMIT ZoomWanted(map_->mapFromGlobal(pinch.centerPoint().toPoint()), pinch.scaleFactor());
}

bool MapGestures::Press(const QMouseEvent& event) {
  dragging_ = false;
  pressed_ = event.button() == Qt::LeftButton && event.modifiers() != Qt::ShiftModifier;
  from_ = event.globalPosition().toPoint();
  const bool asks = event.button() == Qt::LeftButton && event.modifiers() == Qt::ShiftModifier;
  if (asks)
    Q_EMIT PositionWanted(map_->mapFromGlobal(from_));
  return asks;
}

bool MapGestures::Drag(const QMouseEvent& event) {
  pressed_ = pressed_ && (event.buttons() & Qt::LeftButton);
  if (!pressed_)
    return false;
  const QPoint by = event.globalPosition().toPoint() - from_;
  if (!dragging_ && by.manhattanLength() < QApplication::startDragDistance())
    return false;
  dragging_ = true;
  from_ += by;
  Q_EMIT PanWanted(by);
  return true;
}

bool MapGestures::Release() {
  const bool dragged = dragging_;
  pressed_ = false;
  dragging_ = false;
  return dragged;
}
