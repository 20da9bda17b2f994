#pragma once

#include <QObject>

class QWidget;

/// A cross-hair for the pointer over a widget while Shift is held down.
class ShiftCursor : public QObject {
  Q_OBJECT

 public:
  explicit ShiftCursor(QWidget* widget);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Show(bool crossHair);

  QWidget* widget_;
};
