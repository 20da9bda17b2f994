#include "controls/windows/TextFit.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

namespace {

// A push button's text stays this far from the frame that the style draws.
constexpr int ButtonMargin = 3;
// A frame's title stands indented in its upper edge.
constexpr int TitleIndent = 24;

QSize ButtonFrame(const QPushButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  // Large enough for every style to leave room for a text.
  option.rect = QRect(0, 0, 1000, 1000);
  const QSize contents =
      button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).size();
  return option.rect.size() - contents + QSize(2 * ButtonMargin, 0);
}

QSize IndicatorSize(const QRadioButton& button, const QString& text) {
  const QSize shown = button.fontMetrics().size(Qt::TextShowMnemonic, text);
  return {button.sizeHint().width() - shown.width(), 0};
}

}  // namespace

namespace TextFit {

QString TextOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return button->text();
  if (const auto* frame = qobject_cast<const QGroupBox*>(&control))
    return frame->title();
  return {};
}

int PaintFlags(const QLabel& label, Breaks breaks) {
  const int wrapping = breaks == Breaks::Anywhere ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
  return wrapping | (label.buddy() ? Qt::TextShowMnemonic : 0);
}

QSize Needed(const QWidget& control, const QFont& font, int width, Breaks breaks) {
  const QString text = TextOf(control);
  const QFontMetrics metrics(font, &control);
  if (text.isEmpty())
    return {};
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return metrics.boundingRect(0, 0, width, QWIDGETSIZE_MAX, PaintFlags(*label, breaks), text)
        .size();
  const QSize line = metrics.size(Qt::TextShowMnemonic, text);
  if (qobject_cast<const QGroupBox*>(&control))
    return line + QSize(TitleIndent, 0);
  if (const auto* option = qobject_cast<const QRadioButton*>(&control))
    return line + IndicatorSize(*option, text);
  const auto* button = qobject_cast<const QPushButton*>(&control);
  return button ? line + ButtonFrame(*button) : line;
}

QSize Needed(const QWidget& control, const QFont& font, int width) {
  const QSize needed = Needed(control, font, width, Breaks::BetweenWords);
  return needed.width() <= width ? needed : Needed(control, font, width, Breaks::Anywhere);
}

}  // namespace TextFit
