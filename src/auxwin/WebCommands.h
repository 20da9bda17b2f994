#pragma once

#include "app/World.h"
#include "auxwin/Launching.h"
#include "platform/Text.h"

/// The commands that open help, the read-me and addresses of the web. They keep nothing: each
/// click reads the settings afresh. Nothing is reported if something can't be opened.
class WebCommands {
 public:
  WebCommands(const World& world, Launching& launching)
      : paths_(world.paths), language_(world.language), launching_(launching) {}

  /// Opens the help of the chosen language, the program's own if that can't be opened.
  void miHelp_Click();

  /// Shows the read-me of the chosen language, the program's own if there is none, and makes the
  /// program's folder the current directory.
  void miReadMe_Click();

  /// Opens the address of a command such as "miUpdateOrvalis": that of the settings' section "urls"
  /// if the command has a key there, else the built-in one. Other commands do nothing.
  void OpenWebSite(TextView command);

 private:
  const ProgramPaths& paths_;
  const LOCAL::Language& language_;
  Launching& launching_;
};
