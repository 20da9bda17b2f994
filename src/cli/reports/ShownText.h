#pragma once

#include "platform/NativePath.h"
#include "platform/windows/QtText.h"

/// The text for a report made of the toolkit's values; paths in it as a person reads them.
[[nodiscard]] inline QString ShownText(TextView text) {
  return QtText::ToQt(NativePath::ForDisplay(text));
}
