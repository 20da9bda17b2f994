#include "platform/windows/WindowTitle.h"

#include "platform/windows/QtText.h"

#include <QWidget>

namespace WindowTitle {

void Set(QWidget& window, TextView text) {
  const QString sign = QStringLiteral("[*]");
  window.setWindowTitle(QtText::ToQt(text).replace(sign, sign + sign));
}

}  // namespace WindowTitle
