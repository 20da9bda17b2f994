#pragma once

#include "platform/Text.h"

#include <QString>

/// The one place where the core's texts become the toolkit's and back.
namespace QtText {

[[nodiscard]] inline QString ToQt(TextView text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline Text FromQt(const QString& text) {
  return text.toStdU16String();
}

}  // namespace QtText
