#pragma once

#include "platform/Text.h"

#include <QTranslator>

/// The toolkit's own texts, such as those of the file dialog and the names of keys in menus.
class ToolkitTexts {
 public:
  /// Speaks the language that calls itself by this name, in any letter case; English if the
  /// toolkit knows none.
  void Speak(TextView languageName);

 private:
  QTranslator translator_;
};
