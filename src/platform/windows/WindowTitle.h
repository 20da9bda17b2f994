#pragma once

#include "platform/Text.h"

class QWidget;

/// The texts of title bars.
namespace WindowTitle {

/// Shows the text as it stands: the toolkit takes "[*]" for the place of a sign of its own.
void Set(QWidget& window, TextView text);

}  // namespace WindowTitle
