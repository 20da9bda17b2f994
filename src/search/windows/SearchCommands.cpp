#include "search/windows/SearchCommands.h"

#include "mapdata/files/IniOps.h"
#include "mapdata/windows/MapView.h"
#include "platform/windows/ShowMessage.h"
#include "search/EntityCache.h"
#include "search/windows/Display.h"
#include "search/windows/frmFind.h"

#include <variant>

SearchCommands::SearchCommands(MapView& map, World& world, Search::State& state)
    : map_(map), world_(world), state_(state) {}

void SearchCommands::miFind_Click() {
  frmFind dialog(map_.window(), world_, state_);
  connect(&dialog, &frmFind::SearchStarted, this, &SearchCommands::SearchStarted);
  dialog.exec();
  if (dialog.Result())
    Report(*dialog.Result());
}

void SearchCommands::miFindAgain_Click() {
  Report(Search::FindNext(state_));
}

void SearchCommands::Report(const Search::Outcome& outcome) {
  if (const auto* hit = std::get_if<Search::Hit>(&outcome)) {
    SearchResult::Display(hit->index, state_, map_, world_);
  } else if (const auto* link = std::get_if<InvalidLink>(&outcome)) {
    ShowMessage(map_.window(), MessageIcon::Critical, Search::InvalidLinkMessage(*link));
    Q_EMIT EndRequested();
  } else {
    IniOps::Snapshot files(world_.cache);
    ShowMessage(map_.window(), MessageIcon::Information,
                Search::NotFoundMessage(state_, files, world_.language));
  }
}
