#pragma once

#include "app/World.h"
#include "controls/windows/Dialog.h"
#include "controls/windows/GridListbox.h"
#include "i18n/InterfaceTexts.h"
#include "i18n/LOCAL.h"
#include "i18n/LanguageList.h"
#include "i18n/TextRow.h"

#include <span>

class Launching;
struct ProgramPaths;
class QLabel;
class QPixmap;
class QPushButton;

/// The choice of the interface language: every language beside the program with its flag, and
/// what the one clicked says of itself.
class frmLang : public Dialog {
  Q_OBJECT

 public:
  /// `menus` are the menus of the main window, whose texts go with `LanguageChanged`.
  frmLang(QWidget* parent, World& world, Launching& launching, std::span<const TextRow> menus);

 Q_SIGNALS:
  /// Another language is current and stored in the settings; these are its texts. The map still
  /// shows the former one.
  void LanguageChanged(const InterfaceTexts& texts);

 private:
  void glbLang_RowClick(const GridListbox::Row& Item);
  void btnSelect_Click();
  void FillList(IniOps::Snapshot& snapshot);
  void ShowDetails(const LanguageList::Details& details);
  void ShowFlag(const QPixmap& flag);
  [[nodiscard]] QPixmap Flag(TextView file) const;

  const ProgramPaths& paths_;
  LOCAL::Language& language_;
  IniOps::Cache& cache_;
  std::span<const TextRow> menus_;
  GridListbox* glbLang;
  QLabel* imgCurrentLang;
  QLabel* lblCurrentLang;
  QLabel* lblVersion;
  QLabel* lblAuthor;
  QLabel* lblEMail;
  QLabel* lblWebSite;
  QLabel* imgLangGerman;
  QLabel* imgNoFlag;
  QPushButton* btnSelect;
};
