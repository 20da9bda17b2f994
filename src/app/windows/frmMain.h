#pragma once

#include "platform/windows/ToolkitTexts.h"

#include <QMainWindow>

class Commands;
class MapView;
class MenuBar;
struct Context;
struct InterfaceTexts;
struct MenuRow;

/// The main window: the menu bar and the map below it.
class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  explicit frmMain(Context& context);

  /// Shows the texts of the current language in menus and map.
  void ShowTexts(const InterfaceTexts& texts);

  /// Opens the choice of the language.
  void ChooseLanguage();

 private:
  void RunCategory(const MenuRow& row);

  Context& context_;
  MenuBar* menus_;
  MapView* map_;
  Commands* commands_;
  ToolkitTexts toolkitTexts_;
};
