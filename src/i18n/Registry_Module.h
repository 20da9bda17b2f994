#pragma once

#include "platform/Text.h"

/// The user's registry, as far as this system has one: the user's interface language.
namespace Registry_Module {

/// Where start-up asks for the user's interface language.
inline constexpr TextView InternationalKey = u"HKEY_CURRENT_USER\\Control Panel\\International\\";
inline constexpr TextView LanguageValue = u"sLanguage";

/// The value of that name under the key path, which ends with "\"; letter case does not count.
/// The only one there is holds `userLanguage`, a three-letter abbreviation; "" for every other.
[[nodiscard]] Text ReadRegistryValue(TextView keyPath, TextView valueName, TextView userLanguage);

}  // namespace Registry_Module
