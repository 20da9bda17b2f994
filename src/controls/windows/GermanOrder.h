#pragma once

#include <QCollator>

/// The order of lists, whatever the language: that of the German alphabet without regard to letter
/// case.
[[nodiscard]] inline QCollator GermanOrder() {
  QCollator german(QLocale::German);
  german.setCaseSensitivity(Qt::CaseInsensitive);
  return german;
}
