#include "i18n/LanguageList.h"

#include "mapdata/files/FileSystem.h"
#include "mapdata/world/Settings.h"
#include "platform/ProgramInfo.h"

#include <utility>

using Texts::Trim;

namespace {

constexpr TextView General = u"general";
constexpr TextView LanguageFileSuffix = u".lng";
constexpr TextView FlagSuffix = u".bmp";
constexpr TextView Unnamed = u"?";

bool IsFolder(TextView path) {
  return FileSystem::Resolve(Texts::Join(path, u".")).has_value();
}

}  // namespace

namespace LanguageList {

std::vector<Text> EnumFoldersEx(TextView strPath, bool blnWithPath) {
  if (!IsFolder(strPath))
    return {};
  std::vector<Text> entries = {u".", u".."};
  for (Text& name : FileSystem::Names(strPath))
    entries.push_back(std::move(name));
  if (blnWithPath)
    for (Text& entry : entries)
      entry.insert(0, strPath);
  entries.emplace_back();
  return entries;
}

std::vector<Entry> Read(IniOps::Snapshot& files, TextView languageRoot) {
  const auto names = EnumFoldersEx(languageRoot, false);
  std::vector<Entry> entries;
  for (size_t i = 2; i + 1 < names.size(); ++i) {
    const Text file = LOCAL::FileOfLanguage(languageRoot, names[i], LanguageFileSuffix);
    Text name(Trim(files.IniRead(file, General, u"language", Unnamed)));
    entries.push_back({name.empty() ? Text(Unnamed) : name, file,
                       LOCAL::FileOfLanguage(languageRoot, names[i], FlagSuffix)});
  }
  return entries;
}

Details ReadDetails(IniOps::Snapshot& files, const Text& file) {
  if (file == LOCAL::BuiltIn)
    return {Text(LOCAL::German), Text(ProgramInfo::Version), Text(ProgramInfo::Author),
            Text(ProgramInfo::WebSite), Text(ProgramInfo::EMail)};
  const auto read = [&](TextView key) { return files.IniRead(file, General, key, u""); };
  return {read(u"language"), read(u"version"), read(u"author"), read(u"website"), read(u"email")};
}

Text FlagOf(TextView languageFile) {
  return Texts::ReplaceAll(languageFile, LanguageFileSuffix, FlagSuffix);
}

InterfaceTexts Select(IniOps::Snapshot& files, LOCAL::Language& language, TextView settings,
                      const Text& file, std::span<const TextRow> menus) {
  language.Choose(files, file);
  IniOps::IniWrite(settings, Settings::Language.section, Settings::Language.key,
                   language.LanguageFolder());
  if (language.IsGerman())
    return RestoreGerman(menus);
  InterfaceTexts texts = Translate_UI(files, language, menus);
  language.CacheTranslationTable(files);
  return texts;
}

}  // namespace LanguageList
