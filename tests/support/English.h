#pragma once

#include "i18n/LOCAL.h"
#include "platform/Windows1252.h"
#include "support/TemporaryFolder.h"

/// Makes English, with these texts, the language of the moment. Its file lies below `LANG` in the
/// folder; the table of names is left as it is.
inline void SpeakEnglish(const TemporaryFolder& folder, LOCAL::Language& language, TextView texts) {
  const Text file = Texts::Join(u"[general]\r\nlanguage=English\r\n", texts);
  folder.Write("LANG/English/English.lng", Windows1252::Encode(file).value());
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  language.Choose(files, folder.Path(u"LANG/English/English.lng"));
}
