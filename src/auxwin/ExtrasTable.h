#pragma once

#include "platform/Text.h"

#include <array>

/// A document of the extras list: the key of its name in section "frmExtras" of a language file,
/// its names, and its file.
struct Extra {
  TextView key;
  TextView english;
  TextView german;
  TextView file;
};

/// The documents in the order in which they are added to the list.
inline constexpr std::array<Extra, 7> ExtrasTable = {{
    {u"PerksViewer", u"Perklist", u"Perk-Übersicht", u"perklist.chm"},
    {u"Spellbook", u"Spellbook", u"Zauberbuch", u"spellbook.chm"},
    {u"Cheats", u"Cheat list", u"Cheatliste", u"cheatlist.html"},
    {u"ReputationList", u"Reputation list", u"Rufliste", u"reputationlist.html"},
    {u"ArmorList", u"Armor list", u"Rüstungsliste", u"armorlist.chm"},
    {u"PlantList", u"Plant list", u"Pflanzen und Kräuter", u"plantlist.chm"},
    {u"TeleporterStones", u"Teleporter stones", u"Teleportsteine", u"teleporterstones.chm"},
}};
