#pragma once

#include "app/World.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/Regions.h"
#include "platform/Text.h"

#include <optional>
#include <span>
#include <vector>

/// A world as plain values, as the viewer shows it in the language of the moment: for whoever wants
/// to take it elsewhere.
namespace Share {

/// An entity of one category. Switched-off ones are left out.
struct Entity {
  /// As it stands in the data file; the same in every language.
  Text key;
  /// As it is shown.
  Text name;
  /// Where the category shows it, in the 1024 x 768 frame of the picture, a link followed; none
  /// where the list shows nothing.
  std::optional<EntityFile::Position> position;
  /// The section that the position is taken from by a link; else "".
  Text link;
  bool highlighted = false;
  /// The search of the viewer never finds it.
  bool hiddenFromSearch = false;
  /// With its line breaks, a redirect followed; "" if there is none.
  Text description;
  /// The path of its picture; "" if it has none.
  Text portrait;
};

/// What one command shows, the teachers of a perk, or a section that no command shows.
struct Category {
  Text section;
  /// Without access keys.
  Text caption;
  /// The caption of the menu, or of the group of perks, in which it stands.
  Text group;
  std::vector<Entity> entities;
};

/// A region with the categories that its data file has, in the order of the menu, then of the
/// perks, then of the file.
struct RegionMap {
  Region region;
  /// Names the region in files and addresses.
  TextView key;
  Text caption;
  /// The path of its picture, whether or not there is one.
  Text picture;
  std::vector<Category> categories;
};

/// What is asked for; empty lists stand for everything.
struct Selection {
  /// Keys, region words or captions, whatever their case and accents.
  std::vector<Text> regions;
  /// Names of sections, whatever their case.
  std::vector<Text> sections;
};

/// All regions, each file as it stands now.
[[nodiscard]] std::vector<RegionMap> Read(World& world);

/// Leaves the regions and sections that are asked for, and no region without any of the sections.
void Narrow(std::vector<RegionMap>& maps, const Selection& selection);

/// The first region or section of the selection that the world, of which these are all regions,
/// lacks.
[[nodiscard]] std::optional<Text> Missing(std::span<const RegionMap> maps,
                                          const Selection& selection);

}  // namespace Share
