#include "map/WorldData.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/Regions.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

// The painter reads the world by code of its own: what it paints must stand where the program
// shows it.

namespace {

const std::string World = ORVALIS_SOURCES "/world/";

// A name as the painter gives it, and where it is.
using Spot = std::tuple<std::string, int, int>;

std::vector<Spot> Painted(const WorldData::DataFile& file, std::string_view section) {
  std::vector<Spot> places;
  for (const WorldData::Place& place : file.places(section))
    places.emplace_back(place.name.toLatin1().toStdString(), static_cast<int>(place.at.x),
                        static_cast<int>(place.at.y));
  return places;
}

std::vector<Spot> Shown(const ProfileFile& file, std::string_view section) {
  std::vector<Spot> places;
  for (const std::string_view key : file.KeyNames(section)) {
    if (EntityFile::IsDisabled(key))
      continue;
    const auto position = EntityFile::PickedPosition(EntityFile::Read(file, section, key));
    if (position)
      places.emplace_back(key.substr(EntityFile::IsHiddenFromSearch(key) ? 1 : 0), position->x,
                          position->y);
  }
  return places;
}

}  // namespace

TEST(PainterWorld, PutsEveryEntityWhereTheProgramShowsIt) {
  IniOps::Cache cache;
  for (const RegionRow& region : Regions) {
    const std::string path = World + NativePath::ToBytes(region.stem) + ".data";
    const auto read = cache.Get(NativePath::FromBytes(path));
    const WorldData::DataFile painted(path);
    std::vector<Spot> all;
    for (const ProfileFile::Section& section : read->Sections()) {
      const auto places = Shown(*read, section.name);
      EXPECT_EQ(Painted(painted, section.name), places) << path << ": " << section.name;
      all.insert(all.end(), places.begin(), places.end());
    }
    EXPECT_GT(all.size(), 20U) << path;
    EXPECT_EQ(painted.allPlaces().size(), all.size()) << path;
  }
}

TEST(PainterWorld, PaintsThePicturesThatTheProgramAsksFor) {
  const std::string path = World + "PICS/pic.ini";
  IniOps::Cache cache;
  const auto read = cache.Get(NativePath::FromBytes(path));
  std::vector<std::string> pictures;
  for (const std::string_view key : read->KeyNames("pics"))
    pictures.emplace_back(read->Read("pics", key));
  EXPECT_GT(pictures.size(), 100U);
  EXPECT_EQ(WorldData::DataFile(path).values(), pictures);
}
