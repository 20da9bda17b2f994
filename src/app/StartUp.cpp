#include "app/StartUp.h"

#include "platform/NativePath.h"
#include "platform/ProgramInfo.h"

using Texts::Join;

namespace StartUp {

Text Caption(const Edition& edition) {
  return Join(ProgramInfo::Title, u" ", ProgramInfo::Version, u" ", edition.text);
}

Message FileNotFound(World& world, const Text& languageFolder, const Text& missing) {
  IniOps::Snapshot files(world.cache);
  world.language.Start(files, languageFolder);
  const Text shown = NativePath::ForDisplay(missing);
  if (world.language.IsGerman())
    return {Join(u"Die folgende Datei fehlt: ", shown,
                 u"\r\nDas Programm kann nicht fortgesetzt werden."),
            u"Fehler"};
  const auto read = [&](TextView key) {
    return files.IniRead(world.language.LanguageFile(), u"ui", key, u"");
  };
  const Text text = Texts::ReplaceAll(read(u"FileNotFound"), u"%s", shown);
  return {Texts::ReplaceAll(text, u"\\n", u"\r\n"), read(u"FileNotFoundCaption")};
}

}  // namespace StartUp
