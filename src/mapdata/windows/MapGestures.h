#pragma once

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QPinchGesture;
class QWidget;
class QWheelEvent;

/// Turns wheel, pinch, drag, double click and keys into wishes. Points are pixels of the map.
class MapGestures : public QObject {
  Q_OBJECT

 public:
  /// Listens on the map. The keys count in all of its window.
  explicit MapGestures(QWidget* map);

  /// Takes in a widget of the map on which a drag may begin.
  void Add(QWidget* widget);

  /// The same for the bare picture, on which a double click zooms.
  void AddPicture(QWidget* picture);

 Q_SIGNALS:
  /// Closer by the factor, with this point where it is.
  void ZoomWanted(const QPoint& at, double factor);
  /// The same without a point, by a key; factor 0 is all of the picture.
  void KeyZoomWanted(double factor);
  /// The picture is to move by so much.
  void PanWanted(const QPoint& by);
  /// The picture is to move by a part of the map's size.
  void KeyPanWanted(int right, int down);
  /// The display is wanted anew.
  void RepeatWanted();
  /// The position at this point is wanted.
  void PositionWanted(const QPoint& at);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool MapEvent(QEvent& event);
  [[nodiscard]] bool Press(const QMouseEvent& event);
  [[nodiscard]] bool Drag(const QMouseEvent& event);
  [[nodiscard]] bool Release();
  void Wheel(const QWheelEvent& event);
  void Pinch(const QPinchGesture& pinch);

  QWidget* map_;
  const QObject* picture_ = nullptr;
  // Where the button went down, or the drag's last point; global.
  QPoint from_;
  bool pressed_ = false;
  bool dragging_ = false;
};
