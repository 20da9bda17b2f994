#pragma once

#include <QFont>
#include <QRect>

#include <span>
#include <vector>

class QWidget;

/// Where the controls of a dialog stand once their texts are known. All lengths are pixels.
namespace DialogLayout {

/// A control as it was designed. A width of 0 is as wide as the text.
struct Designed {
  const QWidget* control = nullptr;
  QRect rectangle;
  QFont font;
};

/// Where a control stands, and in which font.
struct Place {
  QRect rectangle;
  QFont font;
};

/// The places that show every text whole, one for each control. What fits stays as designed. Else a
/// control grows to the right, then down, over free space; then a column of labels moves what is to
/// its right, and a row of buttons spreads to the left. Smaller type, for the whole column or all
/// buttons, is the last resort.
[[nodiscard]] std::vector<Place> Arrange(std::span<const Designed> controls);

}  // namespace DialogLayout
