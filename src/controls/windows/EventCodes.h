#pragma once

#include <QMouseEvent>

/// Buttons and keys in the numbers that the controls' own events have.
namespace EventCodes {

/// The sum of 1 (Shift), 2 (Ctrl) and 4 (Alt).
[[nodiscard]] inline int Shift(const QInputEvent& event) {
  const auto held = event.modifiers();
  return (held & Qt::ShiftModifier ? 1 : 0) | (held & Qt::ControlModifier ? 2 : 0) |
         (held & Qt::AltModifier ? 4 : 0);
}

/// The sum of 1 (left), 2 (right) and 4 (middle): the button that changed, or, of a movement, all
/// that are held.
[[nodiscard]] inline int Button(const QMouseEvent& event) {
  return event.type() == QEvent::MouseMove ? static_cast<int>(event.buttons())
                                           : static_cast<int>(event.button());
}

}  // namespace EventCodes
