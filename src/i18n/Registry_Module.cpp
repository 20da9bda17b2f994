#include "i18n/Registry_Module.h"

namespace Registry_Module {

Text ReadRegistryValue(TextView keyPath, TextView valueName, TextView userLanguage) {
  const Text asked = Texts::Lower(Texts::Join(keyPath, valueName));
  const Text known = Texts::Lower(Texts::Join(InternationalKey, LanguageValue));
  return asked == known ? Text(userLanguage) : Text();
}

}  // namespace Registry_Module
