#include "check/Observed.h"

#include "check/EntityLine.h"
#include "check/Words.h"
#include "mapdata/world/InfoFile.h"
#include "mapdata/world/Portraits.h"

using Texts::Join;
using Words::Decoded;

namespace {

void ObserveEntities(Index& index, Observed& seen) {
  for (const Index::Entity& entity : index.entities) {
    const EntityLine line(index, entity);
    const EntityFile::Entity read = line.Read();
    // What a link gets is told by the line that it leads to.
    const Text place = read.link ? Join(u"#,", Decoded(*read.link)) : line.Seen();
    Text& words = seen[{line.File().name, Decoded(line.Section().name), Decoded(entity.name)}];
    words.append(place).append(read.highlighted ? u"*\n" : u"\n");
  }
}

void ObserveNames(Index& index, Observed& seen) {
  for (const std::string_view bytes : index.Names()) {
    const Text name = Decoded(bytes);
    seen[{index.info->name, u"info", name, true}] =
        Decoded(InfoFile::ReadRedirected(index.info->File(), bytes));
    seen[{index.portraits->name, u"pics", name, true}] =
        Portraits::PicturePath(index.portraits->File(), index.paths.picturesFolder, name);
  }
}

void ObserveLanguage(Index& index, const Index::Language& language, Observed& seen) {
  const auto nameFile = language.spoken->NameFile(index.files);
  for (const std::string_view bytes : index.Names()) {
    const Text name = Decoded(bytes);
    const Text shown = language.spoken->Shown(nameFile, name);
    seen[{language.file->name, u"entities", name, true}] =
        Join(shown, u"\n", language.spoken->Key(shown));
    if (language.info)
      seen[{language.info->name, u"info", name, true}] =
          Decoded(InfoFile::ReadRedirected(language.info->File(), bytes));
  }
  for (const TextRow& text : index.texts)
    seen[{language.file->name, Text(text.section), Text(text.key)}] =
        Decoded(language.file->File().Read(Words::Encoded(text.section), Words::Encoded(text.key)));
}

}  // namespace

Observed Observe(Index& index) {
  Observed seen;
  ObserveEntities(index, seen);
  ObserveNames(index, seen);
  for (const Index::Language& language : index.languages)
    if (language.file && language.spoken)
      ObserveLanguage(index, language, seen);
  for (const Source::Line& line : index.settings->Lines())
    if (line.entry.kind == ProfileLines::LineKind::KeyWithValue && line.section != Source::None) {
      const Text section = Decoded(index.settings->Sections()[line.section].name);
      seen[{index.settings->name, section, Decoded(line.entry.key)}] = Decoded(line.entry.value);
    }
  return seen;
}
