#pragma once

#include <QWidget>

/// The ring around the marker with the keyboard's focus: a bright circle inside a dark one, visible
/// on every picture. The pointer and screen readers don't see it.
class FocusRing : public QWidget {
  Q_OBJECT

 public:
  explicit FocusRing(QWidget* map);

  /// Shows the ring around this widget of the map, in front of everything.
  void Surround(const QWidget& marker);

 protected:
  void paintEvent(QPaintEvent* event) override;
};
