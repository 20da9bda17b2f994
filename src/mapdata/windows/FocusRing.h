#pragma once

#include <QWidget>

/// The mark around the marker that has the keyboard's focus: a bright ring inside a dark one, so
/// that it stands out from every picture. Takes no pointer and no place in the tree that a screen
/// reader sees.
class FocusRing : public QWidget {
  Q_OBJECT

 public:
  explicit FocusRing(QWidget* map);

  /// Shows the ring around this widget of the map, in front of everything.
  void Surround(const QWidget& marker);

 protected:
  void paintEvent(QPaintEvent* event) override;
};
