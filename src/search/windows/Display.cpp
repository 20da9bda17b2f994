#include "search/windows/Display.h"

#include "mapdata/windows/MapView.h"

namespace SearchResult {

void Display(size_t index, const Search::State& state, MapView& map, LOCAL::Language& language,
             IniOps::Cache& files) {
  const CachedEntity entity = state.Cache.At(index);
  IniOps::Snapshot snapshot(files);
  map.ShowHit({.Map = entity.Map,
               .DataFile = entity.Database,
               .CategoryKey = entity.Section,
               .at = {entity.X, entity.Y},
               .Name = entity.Name,
               .ShownName = language.Shown(snapshot, entity.Name),
               .Description = entity.Description,
               .Heading = Search::ResultHeading(state, snapshot, language)});
}

}  // namespace SearchResult
