#include "check/Index.h"

#include "app/MenuTable.h"
#include "check/Words.h"
#include "mapdata/files/FileSystem.h"
#include "perks/PerkCatalogue.h"

#include <algorithm>

using Texts::Join;

Index::Index(const Text& folder, PictureOf ofPicture, const std::function<bool(TextView)>& wanted,
             std::span<const Assumed> assumed)
    : world(folder),
      files(world.cache),
      paths(world.paths),
      base(paths.programFolder),
      pictureOf(std::move(ofPicture)) {
  for (const Assumed& file : assumed)
    files.Assume(file.path, std::make_shared<const ProfileFile>(file.bytes));
  settings = &Open(Source::Kind::Settings, paths.settings);
  for (size_t region = 0; region < Regions.size(); ++region)
    data[region] = &Open(Source::Kind::Data, paths.regions[region].data);
  info = &Open(Source::Kind::Info, paths.infoData);
  portraits = &Open(Source::Kind::Pictures, Join(paths.picturesFolder, u"pic.ini"));
  AddCategories();
  for (size_t region = 0; region < Regions.size(); ++region)
    AddEntities(region);
  AddNames();
  AddLanguages(wanted);
}

const Source& Index::Open(Source::Kind kind, const Text& path) {
  const auto known = std::ranges::find(sources, path, &Source::path);
  if (known != sources.end())
    return *known;
  const size_t inside = path.starts_with(base) ? base.size() : 0;
  return sources.emplace_back(kind, path, path.substr(inside), files.Shared(path));
}

void Index::AddCategories() {
  for (const MenuRow& row : MenuTable::Rows())
    if (row.kind == MenuRow::Kind::Category && row.region)
      categories[static_cast<size_t>(*row.region)].push_back(
          {row.category, row.mode == DisplayMode::List, false});
  for (const RegionRow& row : Regions)
    if (row.hasPerks)
      for (const PerkCatalogue::Perk& perk : PerkCatalogue::Perks)
        categories[static_cast<size_t>(row.region)].push_back({perk.key, false, true});
}

void Index::AddEntities(size_t region) {
  const Source& source = *data[region];
  for (size_t section = 0; section < source.Sections().size(); ++section) {
    const Source::Section& header = source.Sections()[section];
    shown_[region].push_back(CategoryOf(region, header.name));
    if (!header.plain || !header.listed)
      continue;
    for (size_t line = header.line + 1; line < header.listEnd; ++line)
      if (source.Lines()[line].isListed)
        entities.push_back({region, section, line, source.Lines()[line].listed});
  }
  for (const Entity& entity : entities) {
    if (entity.region != region || entity.IsDisabled())
      continue;
    const auto read =
        EntityFile::Read(source.File(), source.Sections()[entity.section].name, entity.name);
    if (read.link)
      linkTargets[region].insert(Words::Folded(*read.link));
  }
}

void Index::AddNames() {
  for (const Entity& entity : entities) {
    if (entity.IsDisabled()) {
      isOn_.emplace(Words::Folded(ProfileLines::Strip(entity.name.substr(1), " ")), false);
    } else if (!entity.name.empty()) {
      names_.push_back(entity.name);
      isOn_[Words::Folded(entity.name)] = true;
    }
  }
  std::ranges::sort(names_);
  names_.erase(std::unique(names_.begin(), names_.end()), names_.end());
}

void Index::AddLanguages(const std::function<bool(TextView)>& wanted) {
  for (const Text& folder : FileSystem::Names(paths.languageRoot)) {
    const Text path = LOCAL::FileOfLanguage(paths.languageRoot, folder, u".lng");
    const Text name(Texts::Trim(files.IniRead(path, u"general", u"language", u"")));
    if (!wanted(folder) && !wanted(name))
      continue;
    Language& language = languages.emplace_back();
    language.folder = folder;
    language.name = name;
    if (!FileSystem::FileExists(path))
      continue;
    language.file = &Open(Source::Kind::Language, path);
    language.spoken = std::make_unique<LOCAL::Language>(paths);
    language.spoken->Start(files, folder);
    language.spoken->CacheTranslationTable(files);
    const Text descriptions = language.spoken->InfoPath();
    if (descriptions != paths.infoData)
      language.info = &Open(Source::Kind::Info, descriptions);
  }
}

bool Index::IsName(std::string_view name) const {
  const auto found = isOn_.find(Words::Folded(name));
  return found != isOn_.end() && found->second;
}

bool Index::IsSwitchedOff(std::string_view name) const {
  const auto found = isOn_.find(Words::Folded(name));
  return found != isOn_.end() && !found->second;
}

const Index::Category* Index::CategoryOf(size_t region, std::string_view section) const {
  const Text name = Words::Decoded(section);
  const auto found = std::ranges::find(categories[region], TextView(name), &Category::section);
  return found == categories[region].end() ? nullptr : &*found;
}
