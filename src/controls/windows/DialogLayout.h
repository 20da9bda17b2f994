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

/// The places that show every text whole, one for each control. What fits stays as designed. Else
/// a control grows to the right, then down, over free space; a column of labels then moves what
/// stands to its right, and a row of buttons spreads to the left. Smaller type is the last resort,
/// for the whole column or all buttons.
[[nodiscard]] std::vector<Place> Arrange(std::span<const Designed> controls);

}  // namespace DialogLayout
