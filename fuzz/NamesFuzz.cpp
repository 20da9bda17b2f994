// Any bytes as a language file, and every one of its lines as an entity's name: translated and
// back, compared with the rule as it is written, one key after the other.

#include "Fuzz.h"
#include "i18n/LOCAL.h"
#include "platform/Windows1252.h"

#include <array>

using Fuzz::Require;
using Fuzz::TakeField;
using Texts::ReplaceAll;
using Texts::Trim;

namespace {

constexpr TextView Section = u"entities";
constexpr std::array<TextView, 5> Words = {u"Arvenna", u"Skaldor", u"Sarrakh", u"Ostrakh",
                                           u"Tempel von"};

Text Translated(IniOps::Snapshot& files, TextView file, TextView name) {
  Text shown(Trim(name));
  for (const TextView word : Words)
    shown = ReplaceAll(shown, word, files.IniRead(file, Section, word, word));
  for (const Text& key : files.IniReadFile(file, Section)) {
    if (!shown.starts_with(key))
      continue;
    Text result = ReplaceAll(shown, key, files.IniRead(file, Section, key, u""));
    return Trim(result).empty() ? shown : result;
  }
  return shown;
}

Text Back(IniOps::Snapshot& files, TextView file, TextView shown) {
  Text name(Trim(shown));
  for (const TextView word : Words)
    name = ReplaceAll(name, files.IniRead(file, Section, word, word), word);
  for (const Text& key : files.IniReadFile(file, Section)) {
    Text translation = files.IniRead(file, Section, key, u"");
    if (Trim(translation).empty())
      translation = u";";
    if (!name.starts_with(translation))
      continue;
    Text result = ReplaceAll(name, translation, key);
    return Trim(result).empty() ? name : result;
  }
  return name;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  static const Fuzz::InputFile file;
  std::string_view input(reinterpret_cast<const char*>(data), size);
  file.Hold(input);
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  LOCAL::Language language(u"");
  language.LanguageFile = file.Path();
  language.CurrentLanguage = u"Other";
  language.CacheTranslationTable(files);
  while (!input.empty()) {
    const Text name = Windows1252::Decode(TakeField(input));
    const Text shown = language.LocalizeEntityName(files, name);
    Require(shown == Translated(files, file.Path(), name), "the name shown is the rule's");
    Require(language.UnlocalizeEntityName(shown) == Back(files, file.Path(), shown),
            "the key behind it is the rule's");
  }
  return 0;
}
