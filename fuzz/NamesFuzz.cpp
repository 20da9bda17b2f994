// Any bytes as a language file, and every one of its lines as an entity's name: translated and
// back, and compared with the rule as it is stated.

#include "Fuzz.h"
#include "i18n/LOCAL.h"
#include "platform/Windows1252.h"
#include "support/ScannedNames.h"

using Fuzz::Require;
using Fuzz::TakeField;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  static const Fuzz::InputFile file;
  std::string_view input(reinterpret_cast<const char*>(data), size);
  file.Hold(std::string("[general]\nlanguage=Other\n").append(input));
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  LOCAL::Language language(ProgramPaths{});
  language.Choose(files, file.Path());
  language.CacheTranslationTable(files);
  ScannedNames rule(file.Path());
  rule.CacheTranslationTable(files);
  const auto nameFile = language.NameFile(files);
  while (!input.empty()) {
    const Text name = Windows1252::Decode(TakeField(input));
    const Text shown = language.LocalizeEntityName(nameFile, name);
    Require(shown == rule.LocalizeEntityName(files, name), "the name shown is the rule's");
    Require(language.UnlocalizeEntityName(shown) == rule.UnlocalizeEntityName(shown),
            "the key behind it is the rule's");
  }
  return 0;
}
