#pragma once

#include "controls/windows/Dialog.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/ProgramPaths.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

/// The information window: one entity's name, portrait and description.
class frmInfo : public Dialog {
  Q_OBJECT

 public:
  /// Shows the entity of this name as the map shows it; blanks around it don't count.
  frmInfo(QWidget* parent, const ProgramPaths& paths, const LOCAL::Language& language,
          IniOps::Cache& files, const Text& infoEntityName);

 private:
  void ShowPortrait(IniOps::Snapshot& files, const ProgramPaths& paths, const Text& key);

  QLabel* lblName;
  QLabel* picPortrait;
  QPlainTextEdit* txtInfo;
  QPushButton* btnClose;
  QLabel* imgBackup;
};
