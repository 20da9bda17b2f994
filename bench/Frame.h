#pragma once

#include "ProcessTime.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

/// Waits for what is on the screen: windows are measured up to the frame that the user sees.
class Frame : public QObject {
 public:
  /// Watches for the next frame that this widget is painted in.
  explicit Frame(QWidget& widget) : widget_(widget) { widget_.installEventFilter(this); }

  /// Runs the event loop until the frame is out.
  void Wait() const {
    while (!painted_)
      QApplication::processEvents();
  }

  /// The processor time from the step's begin until the widget is painted anew, in seconds.
  template <typename Step>
  [[nodiscard]] static double Seconds(QWidget& widget, Step step) {
    const Frame frame(widget);
    const double start = ProcessSeconds();
    step();
    frame.Wait();
    return ProcessSeconds() - start;
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &widget_ && event->type() == QEvent::Paint)
      painted_ = true;
    return false;
  }

 private:
  QWidget& widget_;
  bool painted_ = false;
};
