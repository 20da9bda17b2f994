#pragma once

#include "app/World.h"
#include "controls/windows/Dialog.h"
#include "platform/Desktop.h"

#include <QLabel>

class Launching;
struct ProgramPaths;

/// The about window: what the program is, who made it, and its music while it is open.
class frmAbout : public Dialog {
  Q_OBJECT

 public:
  frmAbout(QWidget* parent, World& world, Desktop& desktop, Launching& launching);
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
