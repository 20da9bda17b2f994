#pragma once

#include "i18n/LOCAL.h"
#include "platform/Windows1252.h"
#include "support/TemporaryFolder.h"

/// Makes English, with these texts, the language of the moment. Its file lies below `LANG` in the
/// folder; the table of names is left as it is.
inline void SpeakEnglish(const TemporaryFolder& folder, LOCAL::Language& language, TextView texts) {
  folder.Write("LANG/English/English.lng", Windows1252::Encode(texts).value());
  language.CurrentLanguage = u"English";
  language.LanguageFolder = u"English";
  language.LanguageFile = folder.Path(u"LANG/English/English.lng");
}
