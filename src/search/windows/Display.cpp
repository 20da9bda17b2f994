#include "search/windows/Display.h"

#include "mapdata/windows/MapView.h"
#include "mapdata/windows/NameLabel.h"
#include "platform/windows/QtText.h"

#include <QComboBox>

using QtText::FromQt;
using QtText::ToQt;

namespace {

// Selects the name in the list, which still holds the category that was last shown as one, as a
// user would. The list's handler reads the record's own section, where another region may have
// the same name elsewhere. A name that is in no row leaves no selection, so that a resize goes by
// the entity displayed.
void SelectInList(MapView& map, const CachedEntity& entity) {
  map.SetCategory(entity.Database, entity.Section);
  QComboBox& list = map.Items();
  list.setCurrentIndex(list.findText(ToQt(entity.Name), Qt::MatchExactly | Qt::MatchCaseSensitive));
  if (list.currentIndex() >= 0)
    map.cboItems_Click();
}

}  // namespace

namespace SearchResult {

void Display(size_t index, const Search::State& state, MapView& map, World& world) {
  const CachedEntity entity = state.Cache.At(index);
  IniOps::Snapshot snapshot(world.cache);
  const Text name = world.language.Shown(snapshot, entity.Name);
  Q_EMIT map.Displayed();
  map.ClearUI();
  map.View = {};
  if (!map.LoadPicture(entity.Map))
    return;
  map.PlaceItem(map.PointAt(entity.X, entity.Y), name);
  map.PlaceCaption(name);
  map.Caption().setToolTip(ToQt(entity.Description));
  SelectInList(map, entity);
  // What the list's handler left is what stands on the map: its marker, and its name with blanks.
  map.PlaceCaption(Texts::Padded(FromQt(map.Caption().text())));
  map.ShowHeading(Search::ResultHeading(state, snapshot, world.language));
  map.InfoEntityName = entity.Name;
  map.View = {{}, entity.Database, entity.Section, {}, false, name};
}

}  // namespace SearchResult
