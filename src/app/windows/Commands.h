#pragma once

#include "app/MenuTable.h"
#include "i18n/InterfaceTexts.h"
#include "i18n/TextRow.h"
#include "mapdata/world/Regions.h"
#include "search/windows/SearchCommands.h"

#include <QWidget>

#include <vector>

class MapView;
struct Context;

/// The commands that show no category: each opens a window or hands something to the desktop.
class Commands : public QObject {
  Q_OBJECT

 public:
  Commands(Context& context, MapView& map, QWidget& mainWindow);

  /// Runs one command of the menu bar.
  void Run(const MenuRow& row);

  /// Opens the information window for the map's `InfoEntityName`.
  void ShowInfo();

  /// Opens the choice of the language.
  void ChooseLanguage();

 Q_SIGNALS:
  /// Another language is current; these are the main window's texts in it.
  void LanguageChanged(const InterfaceTexts& texts);
  /// There is something to find again from now on.
  void SearchStarted();

 private:
  void Print();
  void ShowExtras();
  void ShowAbout();
  void ShowPerks(Region region);

  Context& context_;
  MapView& map_;
  QWidget& mainWindow_;
  SearchCommands search_;
  std::vector<TextRow> captions_ = MenuTable::Captions();
};
