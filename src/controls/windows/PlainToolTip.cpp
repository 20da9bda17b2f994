#include "controls/windows/PlainToolTip.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace PlainToolTip {

bool Show(QWidget& widget, QEvent& event) {
  if (event.type() != QEvent::ToolTip || widget.toolTip().isEmpty())
    return false;
  const QString text = widget.toolTip();
  const bool escaped = Qt::mightBeRichText(text);
  QToolTip::showText(static_cast<QHelpEvent&>(event).globalPos(),
                     escaped ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : text,
                     &widget);
  return true;
}

}  // namespace PlainToolTip
