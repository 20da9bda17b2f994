#include "app/ProgramTexts.h"

#include "i18n/LOCAL.h"
#include "i18n/TextRow.h"
#include "i18n/WindowTexts.h"
#include "mapdata/files/IniOps.h"
#include "platform/NativePath.h"
#include "platform/ProgramInfo.h"

using Texts::Join;
using WindowTexts::Row;

namespace ProgramTexts {

Text Caption(const Edition& edition) {
  return Join(ProgramInfo::Title, u" ", ProgramInfo::Version, u" ", edition.text);
}

Message FileNotFound(World& world, const Text& languageFolder, const Text& missing) {
  IniOps::Snapshot files(world.cache);
  LOCAL::Language& language = world.language;
  language.Start(files, languageFolder);
  const Text text = Texts::ReplaceAll(language.Lookup(files, Row(u"ui", u"FileNotFound")),
                                      TextRow::Placeholder, NativePath::ForDisplay(missing));
  return {Texts::ReplaceAll(text, u"\\n", u"\r\n"),
          language.Lookup(files, Row(u"ui", u"FileNotFoundCaption"))};
}

}  // namespace ProgramTexts
