#pragma once

#include "platform/Text.h"

#include <QString>

/// The one place where the core's texts become the toolkit's and back.
namespace QtText {

/// The same units, lone halves of pairs included.
[[nodiscard]] inline QString ToQt(TextView text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// The same units, lone halves of pairs included.
[[nodiscard]] inline Text FromQt(const QString& text) {
  return text.toStdU16String();
}

}  // namespace QtText
