#pragma once

#include <QMouseEvent>

#include <cstdint>

/// Buttons, keys and positions in the numbers that the controls' own events have.
namespace EventCodes {

/// The sum of 1 (Shift), 2 (Ctrl) and 4 (Alt).
[[nodiscard]] int16_t Shift(const QInputEvent& event);

/// The sum of 1 (left), 2 (right) and 4 (middle): the button that changed, or, of a movement, all
/// that are held.
[[nodiscard]] int16_t Button(const QMouseEvent& event);

/// The pointer's place in twips from the left upper corner of the widget that the event is for.
struct Position {
  float x = 0;
  float y = 0;
};

[[nodiscard]] Position PositionOf(const QWidget& widget, const QMouseEvent& event);

/// The classic code of a key: 13 for Enter, 27 for Escape, 33 to 40 for those that move, 46 for
/// Delete, and letters and digits as such; 0 for keys that have none.
[[nodiscard]] int16_t KeyCode(int qtKey);

/// The key with that classic code, as Qt::Key; 0 if there is none.
[[nodiscard]] int QtKey(int16_t keyCode);

}  // namespace EventCodes
