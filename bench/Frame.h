#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>

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

  /// The seconds that the step takes from its begin until the widget is painted anew.
  template <typename Step>
  [[nodiscard]] static double Seconds(QWidget& widget, Step step) {
    const Frame frame(widget);
    const auto start = std::chrono::steady_clock::now();
    step();
    frame.Wait();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
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
