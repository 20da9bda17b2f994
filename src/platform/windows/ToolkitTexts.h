#pragma once

#include "platform/Text.h"

#include <QTranslator>

/// The toolkit's own texts, such as those of the file dialog and the names of keys in menus.
class ToolkitTexts {
 public:
  /// Speaks the language of this name, in any letter case; English if the toolkit has none.
  void Speak(TextView languageName);

 private:
  QTranslator translator_;
};
