#pragma once

#include "i18n/TextRow.h"
#include "mapdata/world/Regions.h"
#include "platform/Text.h"

#include <optional>
#include <span>
#include <vector>

/// How a category is shown.
enum class DisplayMode { List, Labels, LabelsOnHover };

/// What a command that shows no category does.
enum class Action {
  None,
  Print,
  Language,
  Quit,
  Find,
  FindAgain,
  Extras,
  Help,
  ReadMe,
  WebSite,
  About,
  Perks,
};

/// One menu or command of the menu bar.
struct MenuRow {
  enum class Kind { Menu, Category, Command, BarDivider };

  Kind kind = Kind::Menu;
  /// 0 in the menu bar itself, else in the last menu above that is one level lower.
  int level = 0;
  /// The control's name.
  TextView name = {};
  TextRow caption = {};
  /// Section of the region's data file, exactly as written there.
  TextView category = {};
  DisplayMode mode = DisplayMode::List;
  /// The list is filled as well before the markers are shown.
  bool listFirst = false;
  Action action = Action::None;
  /// As "Ctrl+P"; empty without one.
  TextView shortcut = {};
  /// A divider line stands above it.
  bool divided = false;
  /// False for what has nothing to act on when the program starts.
  bool enabled = true;
  /// None outside the regions' menus.
  std::optional<Region> region = std::nullopt;
};

/// The menu bar as data, from left to right and from top to bottom.
namespace MenuTable {

/// All rows; a menu stands before what is in it.
[[nodiscard]] std::span<const MenuRow> Rows();

/// The captions of the rows in their order, of all but the dividers in the bar.
[[nodiscard]] std::vector<TextRow> Captions();

}  // namespace MenuTable
