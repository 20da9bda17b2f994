#pragma once

#include "app/World.h"
#include "controls/windows/Dialog.h"

struct ProgramPaths;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// The information window: one entity's name, portrait and description.
class frmInfo : public Dialog {
  Q_OBJECT

 public:
  /// Shows the entity of this name as the map shows it; blanks around it don't count.
  frmInfo(QWidget* parent, World& world, const Text& infoEntityName);

 private:
  void ShowPortrait(IniOps::Snapshot& files, const ProgramPaths& paths, const Text& key);

  QLabel* lblName;
  QLabel* picPortrait;
  QPlainTextEdit* txtInfo;
  QPushButton* btnClose;
  QLabel* imgBackup;
};
