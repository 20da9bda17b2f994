#pragma once

#include "controls/windows/GridListbox.h"
#include "support/TemporaryFolder.h"

#include <QPushButton>
#include <QTest>

#include <functional>
#include <stdexcept>

using namespace Qt::StringLiterals;

/// The part of a window with this type and, where one is given, this name; throws without one.
template <typename Type = QWidget>
Type& Part(const QObject& window, const char* name = nullptr) {
  auto* part = window.findChild<Type*>(QString::fromLatin1(name));
  if (!part)
    throw std::invalid_argument(std::string("no such part: ") + (name ? name : "of that type"));
  return *part;
}

/// What stands on a label, button or text field.
inline std::string TextOf(const QObject& window, const char* name) {
  return Part(window, name).property("text").toString().toStdString();
}

inline std::string TitleOf(const QWidget& window) {
  return window.windowTitle().toStdString();
}

inline void Press(const QObject& window, const char* button) {
  Part<QPushButton>(window, button).click();
}

/// The texts of all its rows, from the first.
std::vector<Text> RowsOf(const GridListbox& list);

/// Shows the window, and waits until it has the keyboard.
void ShowActive(QWidget& window);

/// Runs `action` and gives each window that opens meanwhile over the others to `answer`, which
/// closes it; messages have one answer. Their names in order, of messages "caption|text".
std::vector<std::string> Opened(
    const std::function<void()>& action,
    const std::function<void(QWidget&)>& answer = [](QWidget& window) { window.close(); });

/// Writes a picture of this colour.
void Paint(const TemporaryFolder& folder, const std::string& name, const QColor& color,
           const QSize& size = {64, 48}, const char* format = "PNG");
