#include "controls/windows/PlainToolTips.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

bool PlainToolTips::eventFilter(QObject* watched, QEvent* event) {
  auto* const widget = event->type() == QEvent::ToolTip ? qobject_cast<QWidget*>(watched) : nullptr;
  const QString text = widget ? widget->toolTip() : QString();
  if (!Qt::mightBeRichText(text))
    return false;
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                     QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()), widget);
  return true;
}
