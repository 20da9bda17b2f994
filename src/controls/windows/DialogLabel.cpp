#include "controls/windows/DialogLabel.h"

#include "controls/windows/TextFit.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

DialogLabel::DialogLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

// The toolkit's own would cut a word that is wider than the label.
void DialogLabel::paintEvent(QPaintEvent* event) {
  using TextFit::Breaks;
  if (TextFit::Needed(*this, font(), width(), Breaks::BetweenWords).width() <= width())
    return QLabel::paintEvent(event);
  QPainter painter(this);
  style()->drawItemText(
      &painter, contentsRect(),
      static_cast<int>(alignment()) | TextFit::PaintFlags(*this, Breaks::Anywhere), palette(),
      isEnabled(), text(), foregroundRole());
}
