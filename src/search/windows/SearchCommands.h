#pragma once

#include "app/World.h"
#include "search/Search.h"

#include <QObject>

class MapView;

/// The two commands of the search.
class SearchCommands : public QObject {
  Q_OBJECT

 public:
  /// Results are shown on `map`; messages and the dialog stand over its window.
  SearchCommands(MapView& map, World& world, Search::State& state);

  /// Asks for a term and shows the first entity that matches.
  void miFind_Click();

  /// Shows the next one.
  void miFindAgain_Click();

 Q_SIGNALS:
  /// There is something to find again from now on.
  void SearchStarted();
  /// A data file is invalid and the user was told: the program must end.
  void EndRequested();

 private:
  void Report(const Search::Outcome& outcome);

  MapView& map_;
  World& world_;
  Search::State& state_;
};
