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

// What the style adds to the contents of a button.
QSize AroundContents(const QAbstractButton& button, QStyle::SubElement contents) {
  QStyleOptionButton option;
  option.initFrom(&button);
  // Large enough for every style to leave room for a text.
  option.rect = QRect(0, 0, 1000, 1000);
  return option.rect.size() - button.style()->subElementRect(contents, &option, &button).size();
}

QSize ButtonFrame(const QPushButton& button) {
  return AroundContents(button, QStyle::SE_PushButtonContents) + QSize(2 * ButtonMargin, 0);
}

// Left and right of an option button's text.
int BesideText(const QRadioButton& option) {
  return AroundContents(option, QStyle::SE_RadioButtonContents).width() + ButtonMargin;
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

QString Lines(const QRadioButton& option, const QFont& font, int width) {
  const QFontMetrics metrics(font, &option);
  const int room = width - BesideText(option);
  QString lines;
  QString line;
  for (const QString& word : option.text().split(u' ')) {
    const QString longer = line.isEmpty() ? word : line + u' ' + word;
    const bool fits = metrics.size(Qt::TextShowMnemonic, longer).width() <= room;
    if (!fits && !line.isEmpty())
      lines += line + u'\n';
    line = fits ? longer : word;
  }
  return lines + line;
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
    return metrics.size(Qt::TextShowMnemonic, Lines(*option, font, width)) +
           QSize(BesideText(*option), 0);
  const auto* button = qobject_cast<const QPushButton*>(&control);
  return button ? line + ButtonFrame(*button) : line;
}

QSize Needed(const QWidget& control, const QFont& font, int width) {
  const QSize needed = Needed(control, font, width, Breaks::BetweenWords);
  return needed.width() <= width ? needed : Needed(control, font, width, Breaks::Anywhere);
}

}  // namespace TextFit
