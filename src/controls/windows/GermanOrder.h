#pragma once

#include <QCollator>

/// The order of lists in every language: the German alphabet, ignoring letter case.
[[nodiscard]] inline QCollator GermanOrder() {
  QCollator german(QLocale::German);
  german.setCaseSensitivity(Qt::CaseInsensitive);
  return german;
}
