#include "search/windows/Display.h"

#include "mapdata/files/IniOps.h"
#include "mapdata/windows/MapView.h"

namespace SearchResult {

void Display(size_t index, const Search::State& state, MapView& map, World& world) {
  const CachedEntity entity = state.Cache.At(index);
  IniOps::Snapshot snapshot(world.cache);
  map.ShowHit({.Map = entity.Map,
               .DataFile = entity.Database,
               .CategoryKey = entity.Section,
               .at = {entity.X, entity.Y},
               .Name = entity.Name,
               .ShownName = world.language.Shown(world.language.NameFile(snapshot), entity.Name),
               .Description = entity.Description,
               .Heading = Search::ResultHeading(state, snapshot, world.language)});
}

}  // namespace SearchResult
