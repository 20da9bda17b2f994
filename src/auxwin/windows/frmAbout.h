#pragma once

#include "controls/windows/Dialog.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Desktop.h"

#include <QLabel>

class Launching;

/// The about window: what the program is, who made it, and its music while it is open.
class frmAbout : public Dialog {
  Q_OBJECT

 public:
  /// `edition` is how the main window's caption names a reduced edition; empty for the full one.
  frmAbout(QWidget* parent, const ProgramPaths& paths, const LOCAL::Language& language,
           IniOps::Cache& files, Desktop& desktop, Launching& launching, const Text& edition);
  ~frmAbout() override;

  void done(int result) override;

 private:
  void StartMusic(IniOps::Snapshot& files, const ProgramPaths& paths);
  void StopMusic();
  void ShowBanner();
  void ShowTexts(IniOps::Snapshot& files, const LOCAL::Language& language, const Text& edition);

  [[nodiscard]] QLabel& Label(TextView name) const { return *Control<QLabel>(name); }

  Desktop& desktop_;
  bool playMusic_ = false;
};
