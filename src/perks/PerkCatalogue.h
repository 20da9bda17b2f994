#pragma once

#include "platform/Text.h"

#include <array>

/// The perks that teachers of the game know, with their categories and captions. A region's entity
/// data file names the section of a perk's teachers by the perk's key.
namespace PerkCatalogue {

/// One of the seven groups.
struct Category {
  /// One letter.
  char16_t key;
  TextView german;
  TextView languageKey;
  TextView english;
  /// Number of its picture, 1 to 7.
  int picture;
};

/// One perk.
struct Perk {
  /// "perk " and its name, letter case as in the data files.
  TextView key;
  /// The key of its category.
  char16_t category;
  TextView german;
  /// Its name in `key` is its key in the language files, as it is of spells and basic values.
  bool keepsName = false;
};

/// A perk whose English caption is not made from its key.
struct EnglishCaption {
  TextView key;
  TextView caption;
};

/// In the order in which they are shown.
inline constexpr std::array<Category, 7> Categories = {{
    {u'f', u"Kampftalente", u"fightingskills", u"Fighting skills", 1},
    {u'h', u"Jagdtalente", u"huntingskills", u"Hunting skills", 2},
    {u'm', u"Magietalente", u"magicskills", u"Magic skills", 3},
    {u's', u"Schmiedetalente", u"smithskills", u"Smith skills", 4},
    {u't', u"Diebestalente", u"thiefskills", u"Thief skills", 5},
    {u'a', u"Alchemietalente", u"alchemyskills", u"Alchemy skills", 6},
    {u'o', u"Sonstige Talente", u"otherskills", u"Other skills", 7},
}};

/// All perks by category; captions exactly as they are shown, blanks at their ends included.
inline constexpr std::array<Perk, 102> Perks = {{
    {u"perk crossbowman", u'f', u"Armbrustschütze"},
    {u"perk fight with two blades", u'f', u"Kampf mit zwei Klingen"},
    {u"perk heavy crossbow", u'f', u"Schwere Armbrust"},
    {u"perk large weapons", u'f', u"Große Waffen"},
    {u"perk large weapons ii", u'f', u"Große Waffen II"},
    {u"perk large weapons iii", u'f', u"Große Waffen III"},
    {u"perk master archer crossbow", u'f', u"Meisterschütze"},
    {u"perk master of two blades", u'f', u"Meister der zwei Klingen"},
    {u"perk master swordsman", u'f', u"Schwertmeister"},
    {u"perk orc slayer", u'f', u"Orktöter"},
    {u"perk paladin", u'f', u"Paladin"},
    {u"perk regeneration", u'f', u"Regeneration"},
    {u"perk shield parry", u'f', u"Schildparade"},
    {u"perk strength", u'f', u"Stärke"},
    {u"perk strong shield parry", u'f', u"Starke Schildparade"},
    {u"perk strong swordfighter", u'f', u"Starker Schwertkämpfer"},
    {u"perk archer", u'h', u"Bogenschütze"},
    {u"perk big game hunter", u'h', u"Großwildjäger"},
    {u"perk game hunter", u'h', u"Wiljäger"},
    {u"perk hunting skill", u'h', u"Jagdgeschick"},
    {u"perk master archer Bow", u'h', u"Meisterschütze"},
    {u"perk orc hunter", u'h', u"Orkjäger"},
    {u"perk silent hunter", u'h', u"Lautloser Jäger"},
    {u"perk take animal skins", u'h', u"Tierfelle nehmen"},
    {u"perk take reptile hides", u'h', u"Reptilienhäute nehmen"},
    {u"perk teeth, claws, and horns", u'h', u"Zähne, Krallen und Hörner"},
    {u"perk ancient knowledge", u'm', u"Altes Wissen"},
    {u"perk animal form", u'm', u"Tiergestalt"},
    {u"perk dark mage", u'm', u"Schwarzmagier"},
    {u"perk druid", u'm', u"Druide"},
    {u"perk frostwave", u'm', u"Eiswelle"},
    {u"perk ice explosion", u'm', u"Eisexplosion"},
    {u"perk ice lance", u'm', u"Eislanze"},
    {u"perk learn quickly", u'm', u"Schnelles Lernen"},
    {u"perk magic staves", u'm', u"Magische Stäbe"},
    {u"perk mana regeneration", u'm', u"Mana Regeneration"},
    {u"perk sleep", u'm', u"Schlaf"},
    {u"perk staff fighting", u'm', u"Stabkampf"},
    {u"perk staff fighting ii", u'm', u"Stabkampf II"},
    {u"perk staff fighting iii", u'm', u"Stabkampf III"},
    {u"perk summon animals", u'm', u"Tiere rufen"},
    {u"perk summon goblin", u'm', u"Goblin beschwören"},
    {u"perk tame animal", u'm', u"Tier zähmen"},
    {u"perk telekinesis", u'm', u"Telikinese"},
    {u"perk water mage", u'm', u"Wassermagier"},
    {u"perk Amnesia", u'm', u"Vergessen", true},
    {u"perk Banish evil", u'm', u"Böses vernichten", true},
    {u"perk Bless weapon", u'm', u"Waffensegen", true},
    {u"perk Bloodlust", u'm', u"Blutrausch  ", true},
    {u"perk Cure poison", u'm', u"Vergiftung heilen", true},
    {u"perk Fire rain", u'm', u"Feuerregen", true},
    {u"perk Fireball", u'm', u"Feuerball", true},
    {u"perk Flame wave", u'm', u"Flammenwelle", true},
    {u"perk Fog", u'm', u"Nebel", true},
    {u"perk Heal other", u'm', u"Fernheilung", true},
    {u"perk Healing", u'm', u"Heilung", true},
    {u"perk Light", u'm', u"Licht", true},
    {u"perk Lightning bolt", u'm', u"Blitzschlag", true},
    {u"perk Mana", u'm', u"Mana", true},
    {u"perk Meteor", u'm', u"Meteor", true},
    {u"perk Night into day", u'm', u"Nacht zu Tag", true},
    {u"perk Poison", u'm', u"Vergiften", true},
    {u"perk Soul travel", u'm', u"Seelenwanderung", true},
    {u"perk Summon demon", u'm', u"Dämon beschwören", true},
    {u"perk Summon flaming sword", u'm', u"Flammenschwert", true},
    {u"perk Summon lightning", u'm', u"Blitz beschwören", true},
    {u"perk Summon skeleton", u'm', u"Skelett beschwören", true},
    {u"perk Terror", u'm', u"Schrecken", true},
    {u"perk Weaken", u'm', u"Schwächen ", true},
    {u"perk Word of dominance", u'm', u"Wort der Herrschaft", true},
    {u"perk forge ore weapons", u's', u"Erzwaffen schmieden"},
    {u"perk Forge weapons from pure ore", u's', u"Waffen aus reinem Erz schmieden"},
    {u"perk hone blade", u's', u"Klinge schärfen"},
    {u"perk improve armor", u's', u"Rüstungen verbessern"},
    {u"perk prospector", u's', u"Schürfer"},
    {u"perk smithing", u's', u"Schmiedekunst"},
    {u"perk bargain", u't', u"Feilschen"},
    {u"perk Difficult pickpocketing", u't', u"Schwerer Taschendiebstahl"},
    {u"perk knock down", u't', u"Niederschlagen"},
    {u"perk make excuses", u't', u"Rausreden"},
    {u"perk murder", u't', u"Meucheln"},
    {u"perk pick difficult locks", u't', u"Schwere Schlösser knacken"},
    {u"perk pick impossible locks", u't', u"Unmögliche Schlösser knacken"},
    {u"perk simple pickpocketing", u't', u"Einfacher Taschendiebstahl"},
    {u"perk thieving", u't', u"Diebeskunst"},
    {u"perk impossible pickpocketing", u't', u"Unmöglicher Taschendiebstahl"},
    {u"perk alchemy", u'a', u"Alchemy"},
    {u"perk brew mana potions", u'a', u"Manatränke brauen"},
    {u"perk brew Potions with permanent effects", u'a', u"Tränke mit permanenter Wirkung brauen"},
    {u"perk brew transformation potions", u'a', u"Verwandlungstränke brauen"},
    {u"perk make fire arrows", u'a', u"Brandpfeile herstellen"},
    {u"perk make poison", u'a', u"Gift herstellen"},
    {u"perk Make poison arrows", u'a', u"Giftpfeile herstellen"},
    {u"perk poison blade", u'a', u"Klinge vergiften"},
    {u"perk acrobatics", u'o', u"Akrobatik"},
    {u"perk endurance of the wolf", u'o', u"Ausdauer des Wolfes"},
    {u"perk poison resistance", u'o', u"Giftresistenz"},
    {u"perk resistance to cold", u'o', u"Resistenz gegen Kälte"},
    {u"perk resistance to heat", u'o', u"Resistenz gegen Hitze"},
    {u"perk weakness resistance", u'o', u"Schwächeresistenz"},
    {u"perk Endurance", u'o', u"Ausdauer ", true},
    {u"perk Health", u'o', u"Lebenskraft", true},
}};

/// The captions that don't follow from their keys. Their slips stay: translators know them as the
/// defaults of the language files.
inline constexpr std::array<EnglishCaption, 22> EnglishExceptions = {{
    {u"perk brew Potions with permanent effects", u"Brew potions with permament effects"},
    {u"perk brew transformation potions", u"Brew transformations potions"},
    {u"perk large weapons ii", u"Large weapons II"},
    {u"perk large weapons iii", u"Large weapons III"},
    {u"perk Make poison arrows", u"Make poison arrorws"},
    {u"perk master archer crossbow", u"master archer crossbow"},
    {u"perk orc hunter", u"Orchhunter"},
    {u"perk orc slayer", u"Orcslayer"},
    {u"perk poison resistance", u"Poison resistence"},
    {u"perk resistance to cold", u"Resistence to cold"},
    {u"perk resistance to heat", u"Resistence to heat"},
    {u"perk shield parry", u"Sheild parry"},
    {u"perk staff fighting ii", u"Staff fighting II"},
    {u"perk staff fighting iii", u"Staff fighting III"},
    {u"perk strong swordfighter", u"Strong sword figher"},
    {u"perk tame animal", u"Tame animam"},
    {u"perk teeth, claws, and horns", u"Teeth, claws and horns"},
    {u"perk water mage", u"Watermage"},
    {u"perk weakness resistance", u"Weakness resistence"},
    {u"perk Bless weapon", u"bless weapon"},
    {u"perk Lightning bolt", u"Lightning bold"},
    {u"perk Weaken", u"wWaken"},
}};

/// The perk with exactly this key; null if there is none.
[[nodiscard]] const Perk* Find(TextView key);

/// The key of the perk's caption in a language file.
[[nodiscard]] Text LanguageKey(const Perk& perk);

/// The caption where a language file has none.
[[nodiscard]] Text English(const Perk& perk);

}  // namespace PerkCatalogue
