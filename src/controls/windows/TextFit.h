#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QLabel;
class QRadioButton;
class QWidget;

/// How much room the text of a control takes. All lengths are pixels.
namespace TextFit {

/// Where a label's text may be broken into lines.
enum class Breaks { BetweenWords, Anywhere };

/// The text that a label, button or frame shows; empty for other controls.
[[nodiscard]] QString TextOf(const QWidget& control);

/// The size that the control needs in this font to show its whole text at most `width` wide; only
/// labels and option buttons wrap. Wider than `width` if that can't be done.
[[nodiscard]] QSize Needed(const QWidget& control, const QFont& font, int width, Breaks breaks);

/// The same for a text that is broken within words only where one alone is wider than `width`, as
/// labels are painted.
[[nodiscard]] QSize Needed(const QWidget& control, const QFont& font, int width);

/// The option button's text, broken between words into lines that a button `width` wide has room
/// for, as far as its words allow.
[[nodiscard]] QString Lines(const QRadioButton& option, const QFont& font, int width);

/// How the painter is told to break and underline the label's text.
[[nodiscard]] int PaintFlags(const QLabel& label, Breaks breaks);

}  // namespace TextFit
