#include "controls/windows/EventCodes.h"

#include "controls/windows/WidgetTwips.h"

#include <algorithm>
#include <array>

namespace {

struct Key {
  int16_t code;
  int qtKey;
};

constexpr auto Keys = std::to_array<Key>({
    {8, Qt::Key_Backspace}, {9, Qt::Key_Tab},      {13, Qt::Key_Return},   {13, Qt::Key_Enter},
    {16, Qt::Key_Shift},    {17, Qt::Key_Control}, {18, Qt::Key_Alt},      {27, Qt::Key_Escape},
    {32, Qt::Key_Space},    {33, Qt::Key_PageUp},  {34, Qt::Key_PageDown}, {35, Qt::Key_End},
    {36, Qt::Key_Home},     {37, Qt::Key_Left},    {38, Qt::Key_Up},       {39, Qt::Key_Right},
    {40, Qt::Key_Down},     {45, Qt::Key_Insert},  {46, Qt::Key_Delete},
});

// Their codes are those of their letters in both systems.
bool IsLetterOrDigit(int key) {
  return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

}  // namespace

namespace EventCodes {

int16_t Shift(const QInputEvent& event) {
  const auto held = event.modifiers();
  return static_cast<int16_t>((held & Qt::ShiftModifier ? 1 : 0) |
                              (held & Qt::ControlModifier ? 2 : 0) |
                              (held & Qt::AltModifier ? 4 : 0));
}

int16_t Button(const QMouseEvent& event) {
  return event.type() == QEvent::MouseMove ? static_cast<int16_t>(event.buttons())
                                           : static_cast<int16_t>(event.button());
}

Position PositionOf(const QWidget& widget, const QMouseEvent& event) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  return {static_cast<float>(event.position().x() * screen.twipsPerPixelX),
          static_cast<float>(event.position().y() * screen.twipsPerPixelY)};
}

int16_t KeyCode(int qtKey) {
  if (IsLetterOrDigit(qtKey))
    return static_cast<int16_t>(qtKey);
  const auto* const found = std::find_if(Keys.begin(), Keys.end(),
                                         [qtKey](const Key& key) { return key.qtKey == qtKey; });
  return found == Keys.end() ? int16_t{0} : found->code;
}

int QtKey(int16_t keyCode) {
  if (IsLetterOrDigit(keyCode))
    return keyCode;
  const auto* const found = std::find_if(Keys.begin(), Keys.end(),
                                         [keyCode](const Key& key) { return key.code == keyCode; });
  return found == Keys.end() ? 0 : found->qtKey;
}

}  // namespace EventCodes
