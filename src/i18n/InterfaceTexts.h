#pragma once

#include "i18n/LOCAL.h"
#include "i18n/TextRow.h"
#include "mapdata/files/IniOps.h"
#include "platform/Text.h"

#include <span>
#include <vector>

/// Every text of the main window that follows the language.
struct InterfaceTexts {
  /// One for each menu asked for; empty if the menus keep the captions they have.
  std::vector<Text> menus;
  /// The first row of the entity list; begins with a blank in every language.
  Text prompt;
  /// What a screen reader says of that list: the words of its prompt.
  Text spokenPrompt;
  Text infoToolTip;
  /// What a screen reader says of a highlighted marker.
  Text highlighted;
};

/// The texts of the active language file.
[[nodiscard]] InterfaceTexts Translate_UI(IniOps::Snapshot& files, const LOCAL::Language& language,
                                          std::span<const TextRow> menus);

/// The German texts beside the menus, which have theirs when the window is made.
[[nodiscard]] InterfaceTexts Translate_UI_DE();

/// All German texts, menus included: what a switch back to German needs.
[[nodiscard]] InterfaceTexts RestoreGerman(std::span<const TextRow> menus);
