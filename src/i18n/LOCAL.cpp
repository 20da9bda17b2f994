#include "i18n/LOCAL.h"

#include "mapdata/files/FileSystem.h"
#include "mapdata/world/Regions.h"

#include <string_view>
#include <utility>

using Texts::ReplaceAll;
using Texts::Trim;

namespace {

constexpr TextView Entities = u"entities";
constexpr std::string_view EntitiesHeader = "entities";

// Far above any real name. Words whose translations hold other words could fill the memory.
constexpr size_t LongestName = 4 * ProfileFile::LongestValue;

bool FitsReplaced(TextView text, TextView part, TextView by) {
  if (by.size() <= part.size())
    return true;
  size_t length = text.size();
  for (size_t at = text.find(part); at != TextView::npos && length <= LongestName;
       at = text.find(part, at + part.size()))
    length = length + by.size() - part.size();
  return length <= LongestName;
}

// Copies only names that hold the word: most hold none.
TextView Replaced(TextView text, TextView part, TextView by, Text& storage) {
  const bool found = !part.empty() && !by.empty() && text.find(part) != TextView::npos;
  if (!found || !FitsReplaced(text, part, by))
    return text;
  return storage = ReplaceAll(text, part, by);
}

// The name with every occurrence of the key replaced; unchanged where that would leave it empty or
// too long.
Text ReplacedKey(TextView name, TextView key, TextView by) {
  if (!key.empty() && !FitsReplaced(name, key, by))
    return Text(name);
  Text replaced = ReplaceAll(name, key, by);
  return Trim(replaced).empty() ? Text(name) : replaced;
}

}  // namespace

namespace LOCAL {

Text FileOfLanguage(TextView root, TextView folder, TextView suffix) {
  return Texts::Join(root, folder, FileSystem::Separator, folder, suffix);
}

Language::Language(const ProgramPaths& paths)
    : germanInfoPath_(paths.infoData), languageRoot_(paths.languageRoot) {
  for (const RegionRow& row : Regions)
    RegionWords_[static_cast<size_t>(row.region)].word = row.word;
}

Text Language::Lookup(IniOps::Snapshot& files, const TextRow& row) const {
  return IsGerman() ? Text(row.german) : Translated(files, row);
}

Text Language::Translated(IniOps::Snapshot& files, const TextRow& row) const {
  return files.IniRead(languageFile_, row.section, row.key, row.english);
}

void Language::Start(IniOps::Snapshot& files, const Text& folder) {
  languageFile_ = FileOfLanguage(languageRoot_, folder, u".lng");
  languageFolder_ = folder;
  currentLanguage_ = files.IniRead(languageFile_, u"general", u"language", German);
}

void Language::Choose(IniOps::Snapshot& files, const Text& file) {
  languageFile_ = file;
  if (file == BuiltIn) {
    currentLanguage_ = German;
    languageFolder_ = German;
    return;
  }
  currentLanguage_ = Trim(files.IniRead(file, u"general", u"language", u""));
  languageFolder_ = Trim(FileSystem::GetBaseName(file));
}

bool Language::IsToBeOffered(TextView systemLanguage) const {
  return IsGerman() && Texts::Lower(Trim(systemLanguage)) != u"deu";
}

void Language::CacheTranslationTable(IniOps::Snapshot& files) {
  if (currentLanguage_.empty())
    currentLanguage_ = German;
  if (IsGerman())
    return;
  tableFile_ = files.Shared(languageFile_);
  EntityKeys_ = PrefixIndex(tableFile_->KeyNames(EntitiesHeader));
  file_ = nullptr;
}

void Language::Refresh(const std::shared_ptr<const ProfileFile>& nameFile) const {
  if (file_ == nameFile)
    return;
  file_ = nameFile;
  for (RegionWord& region : RegionWords_) {
    region.translation = IniOps::IniRead(*file_, Entities, region.word, u"");
    if (region.translation == region.word)
      region.translation.clear();
  }
  values_.assign(EntityKeys_.size(), std::nullopt);
}

const Text& Language::ValueOf(size_t key) const {
  auto& value = values_[key];
  if (!value)
    value = IniOps::IniRead(*file_, Entities, EntityKeys_[key], u"");
  return *value;
}

Text Language::LocalizeEntityName(const std::shared_ptr<const ProfileFile>& nameFile,
                                  TextView name) const {
  Refresh(nameFile);
  Text replaced;
  TextView shown = Trim(name);
  for (const RegionWord& region : RegionWords_)
    shown = Replaced(shown, region.word, region.translation, replaced);
  const auto key = EntityKeys_.FirstPrefixOf(shown);
  return key ? ReplacedKey(shown, EntityKeys_[*key], ValueOf(*key)) : Text(shown);
}

void Language::IndexTranslations() const {
  std::vector<Text> translations;
  translations.reserve(EntityKeys_.size());
  for (size_t key = 0; key < EntityKeys_.size(); ++key) {
    Text translation = IniOps::IniRead(*tableFile_, Entities, EntityKeys_[key], u"");
    // A blank translation would match every name.
    translations.push_back(Trim(translation).empty() ? u";" : std::move(translation));
  }
  EntityTranslations_ = PrefixIndex(translations);
  tableFile_ = nullptr;
}

Text Language::UnlocalizeEntityName(TextView text) const {
  if (tableFile_)
    IndexTranslations();
  Text replaced;
  TextView name = Trim(text);
  for (const RegionWord& region : RegionWords_)
    name = Replaced(name, region.translation, region.word, replaced);
  const auto number = EntityTranslations_.FirstPrefixOf(name);
  return number ? ReplacedKey(name, EntityTranslations_[*number], EntityKeys_[*number])
                : Text(name);
}

std::shared_ptr<const ProfileFile> Language::NameFile(IniOps::Snapshot& files) const {
  return IsGerman() ? nullptr : files.Shared(languageFile_);
}

Text Language::Shown(const std::shared_ptr<const ProfileFile>& nameFile, TextView key) const {
  return IsGerman() ? Text(key) : LocalizeEntityName(nameFile, key);
}

Text Language::Key(TextView shown) const {
  return IsGerman() ? Text(shown) : UnlocalizeEntityName(shown);
}

Text Language::InfoPath() const {
  if (IsGerman())
    return germanInfoPath_;
  Text own = Texts::Join(languageRoot_, currentLanguage_, FileSystem::Separator, u"info.data");
  return FileSystem::FileExists(own) ? own : germanInfoPath_;
}

}  // namespace LOCAL
