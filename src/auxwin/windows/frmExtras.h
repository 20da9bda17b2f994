#pragma once

#include "app/World.h"
#include "auxwin/Launching.h"
#include "controls/windows/Dialog.h"

class GridListbox;
struct ProgramPaths;
class QLabel;
class QPushButton;

/// The extras window: documents about the game, opened in the viewer that each needs.
class frmExtras : public Dialog {
  Q_OBJECT

 public:
  frmExtras(QWidget* parent, World& world, Launching& launching);

 private:
  void FillList(IniOps::Snapshot& files);
  void Add(TextView name, TextView File);
  void btnSelect_Click();
  [[nodiscard]] Text Copy(TextView File) const;
  void Show_EXE(TextView File);
  void Show_HTML(TextView File);
  void Show_CHM(TextView File);

  const ProgramPaths& paths_;
  const LOCAL::Language& language_;
  Launching& launching_;

  GridListbox* glbExtras;
  QPushButton* btnSelect;
  QPushButton* btnAbort;
  QLabel* imgList;
};
