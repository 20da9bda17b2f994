#pragma once

#include "app/World.h"
#include "controls/windows/Dialog.h"
#include "i18n/InterfaceTexts.h"
#include "i18n/LOCAL.h"
#include "i18n/LanguageList.h"

#include <span>

class GridListbox;
class Launching;
class QGroupBox;
class QLabel;
class QPixmap;
class QPushButton;

/// The choice of the interface language: every language beside the program with its flag, and
/// what the one clicked says of itself.
class frmLang : public Dialog {
  Q_OBJECT

 public:
  /// `menus` are the menus of the main window, whose texts go with `LanguageChanged`.
  frmLang(QWidget* parent, World& world, Launching& launching, std::span<const MenuCaption> menus);

 Q_SIGNALS:
  /// Another language is current and stored in the settings; these are its texts. What the map
  /// shows is of the former one.
  void LanguageChanged(const InterfaceTexts& texts);

 private:
  void glbLang_RowClick(int Item);
  void btnSelect_Click();
  void FillList(IniOps::Snapshot& snapshot);
  void ShowDetails(const LanguageList::Details& details);
  [[nodiscard]] QPixmap Flag(TextView file) const;
  void applyTexts(IniOps::Snapshot& snapshot);

  const ProgramPaths& paths_;
  LOCAL::Language& language_;
  IniOps::Cache& cache_;
  std::span<const MenuCaption> menus_;
  GridListbox* glbLang;
  QGroupBox* fraMetaData;
  QLabel* imgCurrentLang;
  QLabel* lblCurrentLang;
  QLabel* lblVersion;
  QLabel* lblAuthorCaption;
  QLabel* lblAuthor;
  QLabel* lblEMailLabel;
  QLabel* lblEMail;
  QLabel* lblWebSiteLabel;
  QLabel* lblWebSite;
  QLabel* imgLangGerman;
  QLabel* imgNoFlag;
  QPushButton* btnSelect;
  QPushButton* btnAbort;
};
