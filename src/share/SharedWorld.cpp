#include "share/SharedWorld.h"

#include "app/MenuTable.h"
#include "mapdata/world/InfoFile.h"
#include "mapdata/world/Portraits.h"
#include "perks/PerkTree.h"
#include "platform/Windows1252.h"
#include "search/Folding.h"

#include <algorithm>
#include <array>
#include <unordered_set>

using EntityFile::Position;

namespace {

constexpr size_t MenuLevels = 4;

// How a category comes from an entity to the place where it is shown.
using PositionOf = std::optional<Position> (*)(const EntityFile::Entity&);

std::optional<Position> AsMarker(const EntityFile::Entity& entity) {
  return EntityFile::MarkerPosition(entity);
}

PositionOf PositionIn(DisplayMode mode) {
  return mode == DisplayMode::List ? &EntityFile::PickedPosition : &AsMarker;
}

Text WithoutAccessKeys(TextView caption) {
  Text text;
  for (size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == u'&' && ++at == caption.size())
      break;
    text += caption[at];
  }
  return Text(Texts::Trim(text));
}

class Reader {
 public:
  Reader(World& world, IniOps::Snapshot& files, const RegionRow& region)
      : world_(world),
        files_(files),
        region_(region),
        data_(files_.Shared(world.paths.Of(region.region).data)),
        nameFile_(world.language.NameFile(files)),
        info_(files_.Shared(world.language.InfoPath())),
        portraits_(files_.Shared(Portraits::ListPath(world.paths.picturesFolder))) {
    for (const ProfileFile::Section& section : data_->Sections())
      left_.emplace(section.name);
  }

  Share::RegionMap Read() {
    map_ = {region_.region, region_.stem, {}, world_.paths.Of(region_.region).picture, {}};
    AddMenu();
    if (region_.hasPerks)
      AddPerks();
    for (const Text& section : Sections())
      Add(section, section, section, &EntityFile::FoundPosition);
    return std::move(map_);
  }

 private:
  std::vector<Text> Sections() {
    return files_.IniSectionNames(world_.paths.Of(region_.region).data);
  }

  void AddMenu() {
    std::array<Text, MenuLevels> menus;
    for (const MenuRow& row : MenuTable::Rows()) {
      if (row.region != region_.region)
        continue;
      const auto level = static_cast<size_t>(row.level);
      const Text caption = WithoutAccessKeys(world_.language.Lookup(files_, row.caption));
      if (row.kind == MenuRow::Kind::Menu)
        menus.at(level) = caption;
      else if (row.kind == MenuRow::Kind::Category)
        Add(row.category, caption, menus.at(level - 1), PositionIn(row.mode));
    }
    map_.caption = menus.front();
  }

  void AddPerks() {
    const auto lookup = [this](const TextRow& row) { return world_.language.Lookup(files_, row); };
    const auto nodes = PerkTree::Build(Sections(), {}, lookup);
    for (const PerkTree::Node& node : nodes) {
      const auto parent = std::ranges::find(nodes, node.parent, &PerkTree::Node::key);
      if (PerkTree::IsPerk(node.key))
        Add(node.key, Texts::Trim(node.caption), parent->caption, &AsMarker);
    }
  }

  // A section is what the first who shows it makes of it.
  void Add(TextView section, TextView caption, TextView group, PositionOf positionOf) {
    const auto name = Windows1252::Encode(section);
    if (!name || left_.erase(*name) == 0)
      return;
    Share::Category& category = map_.categories.emplace_back(
        Share::Category{Text(section), Text(caption), Text(group), {}});
    for (const std::string_view key : data_->KeyNames(*name))
      if (!EntityFile::IsDisabled(key))
        category.entities.push_back(ReadEntity(*name, key, positionOf));
  }

  Share::Entity ReadEntity(std::string_view section, std::string_view key, PositionOf positionOf) {
    const EntityFile::Entity read = EntityFile::Read(*data_, section, key);
    Share::Entity entity;
    entity.key = Windows1252::Decode(key);
    entity.name = world_.language.Shown(nameFile_, entity.key);
    entity.position = positionOf(read);
    entity.link = Windows1252::Decode(read.link.value_or(std::string_view()));
    entity.highlighted = read.highlighted;
    entity.hiddenFromSearch = EntityFile::IsHiddenFromSearch(key);
    entity.description = InfoFile::WithLineBreaks(InfoFile::ReadRedirected(
        *info_, entity.key, [this](TextView shown) { return world_.language.Key(shown); }));
    const Text& folder = world_.paths.picturesFolder;
    entity.portrait = Portraits::PicturePath(*portraits_, folder, entity.key);
    if (entity.portrait == folder)
      entity.portrait.clear();
    return entity;
  }

  World& world_;
  IniOps::Snapshot& files_;
  const RegionRow& region_;
  std::shared_ptr<const ProfileFile> data_;
  std::shared_ptr<const ProfileFile> nameFile_;
  std::shared_ptr<const ProfileFile> info_;
  std::shared_ptr<const ProfileFile> portraits_;
  // The sections that nothing has shown yet.
  std::unordered_set<std::string> left_;
  Share::RegionMap map_{};
};

bool IsCalled(const Share::RegionMap& map, TextView name) {
  const Text folded = Search::Folded(name);
  return folded == map.key || folded == Search::Folded(RowOf(map.region).word) ||
         folded == Search::Folded(map.caption);
}

bool IsCalled(const Share::Category& category, TextView name) {
  return Texts::Lower(category.section) == Texts::Lower(name);
}

bool HasCategory(const Share::RegionMap& map, TextView name) {
  return std::ranges::any_of(map.categories,
                             [name](const auto& category) { return IsCalled(category, name); });
}

// Nothing that is asked for stands for everything.
template <typename Value>
bool IsWanted(const std::vector<Text>& wanted, const Value& value) {
  return wanted.empty() ||
         std::ranges::any_of(wanted, [&value](TextView name) { return IsCalled(value, name); });
}

}  // namespace

namespace Share {

std::vector<RegionMap> Read(World& world) {
  IniOps::Snapshot files(world.cache);
  std::vector<RegionMap> maps;
  maps.reserve(Regions.size());
  for (const RegionRow& region : Regions)
    maps.push_back(Reader(world, files, region).Read());
  return maps;
}

void Narrow(std::vector<RegionMap>& maps, const Selection& selection) {
  std::erase_if(maps,
                [&selection](const RegionMap& map) { return !IsWanted(selection.regions, map); });
  if (selection.sections.empty())
    return;
  for (RegionMap& map : maps)
    std::erase_if(map.categories, [&selection](const Category& category) {
      return !IsWanted(selection.sections, category);
    });
  std::erase_if(maps, [](const RegionMap& map) { return map.categories.empty(); });
}

std::optional<Text> Missing(std::span<const RegionMap> maps, const Selection& selection) {
  for (const Text& name : selection.regions)
    if (std::ranges::none_of(maps, [&name](const auto& map) { return IsCalled(map, name); }))
      return name;
  for (const Text& name : selection.sections)
    if (std::ranges::none_of(maps, [&](const auto& map) {
          return IsWanted(selection.regions, map) && HasCategory(map, name);
        }))
      return name;
  return std::nullopt;
}

}  // namespace Share
