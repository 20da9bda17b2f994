#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QWidget;

/// Whether a control's text fits its rectangle, and how it grows where it doesn't. All lengths
/// are pixels.
namespace TextFit {

/// The text that a label, button or frame shows; empty for other controls.
[[nodiscard]] QString TextOf(const QWidget& control);

/// The size that the control needs in this font to show its whole text at most `width` wide; only
/// labels get higher where they are narrower.
[[nodiscard]] QSize Needed(const QWidget& control, const QFont& font, int width);

/// Where a control stands, and in which font.
struct Place {
  QRect rectangle;
  QFont font;
};

/// The place that shows the whole text: `designed` if the text fits there, else it grows right,
/// then down, as far as no visible neighbour and no edge of the parent is met; where even that is
/// too little, in smaller type.
[[nodiscard]] Place Fit(const QWidget& control, const QRect& designed, const QFont& font);

}  // namespace TextFit
