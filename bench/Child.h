#pragma once

#include "Frame.h"

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>
#include <fstream>
#include <functional>
#include <string>

/// A program that is measured in a process of its own: writes a line "SECONDS" of processor time
/// when the main window's first frame is out, and at its end a line "KIBIBYTES" of the most memory
/// that it had in use.
class Child : public QObject {
 public:
  /// `then` runs after the first frame; the program ends after it.
  explicit Child(std::function<void(QMainWindow&)> then) : then_(std::move(then)) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* window = qobject_cast<QMainWindow*>(watched);
    if (!window || event->type() != QEvent::Paint)
      return false;
    qApp->removeEventFilter(this);
    // The frame is out when the event loop comes back.
    QTimer::singleShot(0, this, [this, window] { FirstFrame(*window); });
    return false;
  }

 private:
  static std::string PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
      if (word == "VmHWM:" && status >> word)
        return word;
    return "0";
  }

  void FirstFrame(QMainWindow& window) {
    std::printf("%.6f\n", ProcessSeconds());
    then_(window);
    std::printf("%s\n", PeakMemory().c_str());
    QApplication::exit(0);
  }

  std::function<void(QMainWindow&)> then_;
};
