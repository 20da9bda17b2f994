#include "i18n/LOCAL.h"

#include "mapdata/FileSystem.h"

using Texts::ReplaceAll;
using Texts::Trim;

namespace {

constexpr TextView Entities = u"entities";

}  // namespace

namespace LOCAL {

Text Language::Lookup(IniOps::Snapshot& files, TextView section, TextView key, TextView english,
                      TextView german) const {
  return IsGerman() ? Text(german) : files.IniRead(LanguageFile, section, key, english);
}

void Language::StartUp(IniOps::Snapshot& files, const Text& root, const Text& folder) {
  LanguageRoot = root;
  LanguageFile = Texts::Join(root, folder, FileSystem::Separator, folder, u".lng");
  LanguageFolder = folder;
  CurrentLanguage = files.IniRead(LanguageFile, u"general", u"language", German);
}

void Language::CacheTranslationTable(IniOps::Snapshot& files) {
  if (CurrentLanguage.empty())
    CurrentLanguage = German;
  if (IsGerman())
    return;
  EntityKeys_ = files.IniReadFile(LanguageFile, Entities);
  EntityTranslations_.clear();
  for (const Text& key : EntityKeys_)
    EntityTranslations_.push_back(files.IniRead(LanguageFile, Entities, key, u""));
}

Text Language::LocalizeEntityName(IniOps::Snapshot& files, TextView name) {
  Text shown(Trim(name));
  for (RegionWord& region : RegionWords_) {
    region.translation = files.IniRead(LanguageFile, Entities, region.word, region.word);
    shown = ReplaceAll(shown, region.word, region.translation);
  }
  for (const Text& key : EntityKeys_) {
    if (!shown.starts_with(key))
      continue;
    Text translated = ReplaceAll(shown, key, files.IniRead(LanguageFile, Entities, key, u""));
    return Trim(translated).empty() ? shown : translated;
  }
  return shown;
}

Text Language::UnlocalizeEntityName(TextView text) {
  Text name(Trim(text));
  for (const RegionWord& region : RegionWords_)
    name = ReplaceAll(name, region.translation, region.word);
  for (size_t i = 0; i < EntityTranslations_.size(); ++i) {
    if (Trim(EntityTranslations_[i]).empty())
      EntityTranslations_[i] = u";";
    if (!name.starts_with(EntityTranslations_[i]))
      continue;
    Text key = ReplaceAll(name, EntityTranslations_[i], EntityKeys_[i]);
    return Trim(key).empty() ? name : key;
  }
  return name;
}

Text Language::Shown(IniOps::Snapshot& files, TextView key) {
  return IsGerman() ? Text(key) : LocalizeEntityName(files, key);
}

Text Language::Key(TextView shown) {
  return IsGerman() ? Text(shown) : UnlocalizeEntityName(shown);
}

Text Language::InfoFile() {
  if (IsGerman())
    return programInfoFile_;
  Text own = Texts::Join(LanguageRoot, CurrentLanguage, FileSystem::Separator, u"info.data");
  return FileSystem::FileExists(own) ? own : programInfoFile_;
}

}  // namespace LOCAL
