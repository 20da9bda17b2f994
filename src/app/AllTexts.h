#pragma once

#include "i18n/TextRow.h"

#include <vector>

/// Every text of the interface: those of the windows, section by section, then the exported page,
/// the extras, the perks and the menus.
[[nodiscard]] std::vector<TextRow> AllTexts();
