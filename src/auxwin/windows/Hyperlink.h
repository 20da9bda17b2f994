#pragma once

#include "platform/Text.h"

#include <QObject>

#include <functional>

class Launching;
class QLabel;
class QMouseEvent;

/// Makes a label a link: underlined, in another colour while the pointer is over it, opened by a
/// click, or by Enter or Space while it has the focus; without text it has none. The pixels just
/// beyond its right and bottom edges count as the label's. Colours are red + 256 x green + 65536 x
/// blue.
class Hyperlink : public QObject {
  Q_OBJECT

 public:
  /// The colours of all links of the program: blue, and red under the pointer.
  static constexpr int LinkColor = 0xFF0000;
  static constexpr int LinkColorMouseOver = 0x0000FF;

  /// Makes the label a link; `open` is called for each click. The link belongs to the label.
  static void CreateHyperlink(QLabel& Label, int LabelColor, int LabelColorMouseOver,
                              std::function<void()> open);

  /// Makes the label a link in the program's colours that opens `scheme` and the text that the
  /// label shows when it is clicked.
  static void CreateAddressLink(QLabel& Label, Launching& launching, TextView scheme);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Hyperlink(QLabel& label, int color, int colorMouseOver, std::function<void()> open);
  bool LabelEvent(QEvent& event);
  bool PaintWithFocus(QEvent& event);
  void Release(const QMouseEvent& event);
  void FollowText();
  void FollowPointer(const QPoint& globalPoint);
  void ApplyColor(int color);

  QLabel& label_;
  int color_;
  int colorMouseOver_;
  int currentColor_ = -1;
  bool painting_ = false;
  bool pressed_ = false;
  std::function<void()> open_;
};
