#pragma once

#include "i18n/TextRow.h"
#include "platform/Text.h"

#include <array>

/// A document of the extras list: its name and its file.
struct Extra {
  TextRow name;
  TextView file;
};

/// The documents in the order in which they are added to the list.
inline constexpr std::array<Extra, 7> ExtrasTable = {{
    {{u"frmExtras", u"PerksViewer", u"Perklist", u"Perk-Übersicht"}, u"perklist.chm"},
    {{u"frmExtras", u"Spellbook", u"Spellbook", u"Zauberbuch"}, u"spellbook.chm"},
    {{u"frmExtras", u"Cheats", u"Cheat list", u"Cheatliste"}, u"cheatlist.html"},
    {{u"frmExtras", u"ReputationList", u"Reputation list", u"Rufliste"}, u"reputationlist.html"},
    {{u"frmExtras", u"ArmorList", u"Armor list", u"Rüstungsliste"}, u"armorlist.chm"},
    {{u"frmExtras", u"PlantList", u"Plant list", u"Pflanzen und Kräuter"}, u"plantlist.chm"},
    {{u"frmExtras", u"TeleporterStones", u"Teleporter stones", u"Teleportsteine"},
     u"teleporterstones.chm"},
}};
