#include "search/windows/SearchCommands.h"

#include "mapdata/windows/MapView.h"
#include "platform/windows/ShowMessage.h"
#include "search/windows/Display.h"
#include "search/windows/frmFind.h"

SearchCommands::SearchCommands(MapView& map, const ProgramPaths& paths, LOCAL::Language& language,
                               IniOps::Cache& files, Search::State& state)
    : map_(map), paths_(paths), language_(language), files_(files), state_(state) {}

void SearchCommands::miFind_Click() {
  frmFind dialog(map_.window(), paths_, language_, files_, state_);
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
    SearchResult::Display(hit->index, state_, map_, language_, files_);
  } else if (const auto* link = std::get_if<InvalidLink>(&outcome)) {
    ShowMessage(map_.window(), MessageIcon::Critical, Search::InvalidLinkMessage(*link));
    Q_EMIT EndRequested();
  } else {
    IniOps::Snapshot files(files_);
    ShowMessage(map_.window(), MessageIcon::Information,
                Search::NotFoundMessage(state_, files, language_));
  }
}
