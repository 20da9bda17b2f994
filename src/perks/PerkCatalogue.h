#pragma once

#include "i18n/TextRow.h"
#include "platform/Text.h"

#include <array>

/// The perks that teachers of the game know, with their categories and captions. A region's entity
/// data file names the section of a perk's teachers by the perk's key.
namespace PerkCatalogue {

/// One of the seven groups.
struct Category {
  /// One letter.
  char16_t key;
  TextRow caption;
  /// Number of its picture, 1 to 7.
  int picture;
};

/// One perk.
struct Perk {
  /// "perk " and its name, letter case as in the data files.
  TextView key;
  /// The key of its category.
  char16_t category;
  TextRow caption;
};

/// A caption of this window's section in the language files.
constexpr TextRow Named(TextView key, TextView english, TextView german) {
  return {u"frmPerks", key, english, german};
}

/// In the order in which they are shown.
inline constexpr std::array<Category, 7> Categories = {{
    {u'f', Named(u"fightingskills", u"Fighting skills", u"Kampftalente"), 1},
    {u'h', Named(u"huntingskills", u"Hunting skills", u"Jagdtalente"), 2},
    {u'm', Named(u"magicskills", u"Magic skills", u"Magietalente"), 3},
    {u's', Named(u"smithskills", u"Smith skills", u"Schmiedetalente"), 4},
    {u't', Named(u"thiefskills", u"Thief skills", u"Diebestalente"), 5},
    {u'a', Named(u"alchemyskills", u"Alchemy skills", u"Alchemietalente"), 6},
    {u'o', Named(u"otherskills", u"Other skills", u"Sonstige Talente"), 7},
}};

/// All perks by category; captions exactly as they are shown, blanks at their ends included. The
/// slips of English ones stay: translators know them as the defaults of the language files.
inline constexpr std::array<Perk, 102> Perks = {{
    {u"perk crossbowman", u'f', Named(u"Crossbowman", u"Crossbowman", u"Armbrustschütze")},
    {u"perk fight with two blades", u'f',
     Named(u"FightWithTwoBlades", u"Fight with two blades", u"Kampf mit zwei Klingen")},
    {u"perk heavy crossbow", u'f', Named(u"HeavyCrossbow", u"Heavy crossbow", u"Schwere Armbrust")},
    {u"perk large weapons", u'f', Named(u"LargeWeapons", u"Large weapons", u"Große Waffen")},
    {u"perk large weapons ii", u'f',
     Named(u"LargeWeaponsII", u"Large weapons II", u"Große Waffen II")},
    {u"perk large weapons iii", u'f',
     Named(u"LargeWeaponsIII", u"Large weapons III", u"Große Waffen III")},
    {u"perk master archer crossbow", u'f',
     Named(u"MasterArcherCrossbow", u"master archer crossbow", u"Meisterschütze")},
    {u"perk master of two blades", u'f',
     Named(u"MasterOfTwoBlades", u"Master of two blades", u"Meister der zwei Klingen")},
    {u"perk master swordsman", u'f',
     Named(u"MasterSwordsman", u"Master swordsman", u"Schwertmeister")},
    {u"perk orc slayer", u'f', Named(u"OrcSlayer", u"Orcslayer", u"Orktöter")},
    {u"perk paladin", u'f', Named(u"Paladin", u"Paladin", u"Paladin")},
    {u"perk regeneration", u'f', Named(u"Regeneration", u"Regeneration", u"Regeneration")},
    {u"perk shield parry", u'f', Named(u"ShieldParry", u"Sheild parry", u"Schildparade")},
    {u"perk strength", u'f', Named(u"Strength", u"Strength", u"Stärke")},
    {u"perk strong shield parry", u'f',
     Named(u"StrongShieldParry", u"Strong shield parry", u"Starke Schildparade")},
    {u"perk strong swordfighter", u'f',
     Named(u"StrongSwordfighter", u"Strong sword figher", u"Starker Schwertkämpfer")},
    {u"perk archer", u'h', Named(u"Archer", u"Archer", u"Bogenschütze")},
    {u"perk big game hunter", u'h', Named(u"BigGameHunter", u"Big game hunter", u"Großwildjäger")},
    {u"perk game hunter", u'h', Named(u"GameHunter", u"Game hunter", u"Wiljäger")},
    {u"perk hunting skill", u'h', Named(u"HuntingSkill", u"Hunting skill", u"Jagdgeschick")},
    {u"perk master archer Bow", u'h',
     Named(u"MasterArcherBow", u"Master archer bow", u"Meisterschütze")},
    {u"perk orc hunter", u'h', Named(u"OrcHunter", u"Orchhunter", u"Orkjäger")},
    {u"perk silent hunter", u'h', Named(u"SilentHunter", u"Silent hunter", u"Lautloser Jäger")},
    {u"perk take animal skins", u'h',
     Named(u"TakeAnimalSkins", u"Take animal skins", u"Tierfelle nehmen")},
    {u"perk take reptile hides", u'h',
     Named(u"TakeReptileHides", u"Take reptile hides", u"Reptilienhäute nehmen")},
    {u"perk teeth, claws, and horns", u'h',
     Named(u"TeethClawsAndHorns", u"Teeth, claws and horns", u"Zähne, Krallen und Hörner")},
    {u"perk ancient knowledge", u'm',
     Named(u"AncientKnowledge", u"Ancient knowledge", u"Altes Wissen")},
    {u"perk animal form", u'm', Named(u"AnimalForm", u"Animal form", u"Tiergestalt")},
    {u"perk dark mage", u'm', Named(u"DarkMage", u"Dark mage", u"Schwarzmagier")},
    {u"perk druid", u'm', Named(u"Druid", u"Druid", u"Druide")},
    {u"perk frostwave", u'm', Named(u"Frostwave", u"Frostwave", u"Eiswelle")},
    {u"perk ice explosion", u'm', Named(u"IceExplosion", u"Ice explosion", u"Eisexplosion")},
    {u"perk ice lance", u'm', Named(u"IceLance", u"Ice lance", u"Eislanze")},
    {u"perk learn quickly", u'm', Named(u"LearnQuickly", u"Learn quickly", u"Schnelles Lernen")},
    {u"perk magic staves", u'm', Named(u"MagicStaves", u"Magic staves", u"Magische Stäbe")},
    {u"perk mana regeneration", u'm',
     Named(u"ManaRegeneration", u"Mana regeneration", u"Mana Regeneration")},
    {u"perk sleep", u'm', Named(u"Sleep", u"Sleep", u"Schlaf")},
    {u"perk staff fighting", u'm', Named(u"StaffFighting", u"Staff fighting", u"Stabkampf")},
    {u"perk staff fighting ii", u'm',
     Named(u"StaffFightingII", u"Staff fighting II", u"Stabkampf II")},
    {u"perk staff fighting iii", u'm',
     Named(u"StaffFightingIII", u"Staff fighting III", u"Stabkampf III")},
    {u"perk summon animals", u'm', Named(u"SummonAnimals", u"Summon animals", u"Tiere rufen")},
    {u"perk summon goblin", u'm', Named(u"SummonGoblin", u"Summon goblin", u"Goblin beschwören")},
    {u"perk tame animal", u'm', Named(u"TameAnimal", u"Tame animam", u"Tier zähmen")},
    {u"perk telekinesis", u'm', Named(u"Telekinesis", u"Telekinesis", u"Telikinese")},
    {u"perk water mage", u'm', Named(u"WaterMage", u"Watermage", u"Wassermagier")},
    {u"perk Amnesia", u'm', Named(u"Amnesia", u"Amnesia", u"Vergessen")},
    {u"perk Banish evil", u'm', Named(u"Banish evil", u"Banish evil", u"Böses vernichten")},
    {u"perk Bless weapon", u'm', Named(u"Bless weapon", u"bless weapon", u"Waffensegen")},
    {u"perk Bloodlust", u'm', Named(u"Bloodlust", u"Bloodlust", u"Blutrausch  ")},
    {u"perk Cure poison", u'm', Named(u"Cure poison", u"Cure poison", u"Vergiftung heilen")},
    {u"perk Fire rain", u'm', Named(u"Fire rain", u"Fire rain", u"Feuerregen")},
    {u"perk Fireball", u'm', Named(u"Fireball", u"Fireball", u"Feuerball")},
    {u"perk Flame wave", u'm', Named(u"Flame wave", u"Flame wave", u"Flammenwelle")},
    {u"perk Fog", u'm', Named(u"Fog", u"Fog", u"Nebel")},
    {u"perk Heal other", u'm', Named(u"Heal other", u"Heal other", u"Fernheilung")},
    {u"perk Healing", u'm', Named(u"Healing", u"Healing", u"Heilung")},
    {u"perk Light", u'm', Named(u"Light", u"Light", u"Licht")},
    {u"perk Lightning bolt", u'm', Named(u"Lightning bolt", u"Lightning bold", u"Blitzschlag")},
    {u"perk Mana", u'm', Named(u"Mana", u"Mana", u"Mana")},
    {u"perk Meteor", u'm', Named(u"Meteor", u"Meteor", u"Meteor")},
    {u"perk Night into day", u'm', Named(u"Night into day", u"Night into day", u"Nacht zu Tag")},
    {u"perk Poison", u'm', Named(u"Poison", u"Poison", u"Vergiften")},
    {u"perk Soul travel", u'm', Named(u"Soul travel", u"Soul travel", u"Seelenwanderung")},
    {u"perk Summon demon", u'm', Named(u"Summon demon", u"Summon demon", u"Dämon beschwören")},
    {u"perk Summon flaming sword", u'm',
     Named(u"Summon flaming sword", u"Summon flaming sword", u"Flammenschwert")},
    {u"perk Summon lightning", u'm',
     Named(u"Summon lightning", u"Summon lightning", u"Blitz beschwören")},
    {u"perk Summon skeleton", u'm',
     Named(u"Summon skeleton", u"Summon skeleton", u"Skelett beschwören")},
    {u"perk Terror", u'm', Named(u"Terror", u"Terror", u"Schrecken")},
    {u"perk Weaken", u'm', Named(u"Weaken", u"wWaken", u"Schwächen ")},
    {u"perk Word of dominance", u'm',
     Named(u"Word of dominance", u"Word of dominance", u"Wort der Herrschaft")},
    {u"perk forge ore weapons", u's',
     Named(u"ForgeOreWeapons", u"Forge ore weapons", u"Erzwaffen schmieden")},
    {u"perk Forge weapons from pure ore", u's',
     Named(u"ForgeWeaponsFromPureOre", u"Forge weapons from pure ore",
           u"Waffen aus reinem Erz schmieden")},
    {u"perk hone blade", u's', Named(u"HoneBlade", u"Hone blade", u"Klinge schärfen")},
    {u"perk improve armor", u's',
     Named(u"ImproveArmor", u"Improve armor", u"Rüstungen verbessern")},
    {u"perk prospector", u's', Named(u"Prospector", u"Prospector", u"Schürfer")},
    {u"perk smithing", u's', Named(u"Smithing", u"Smithing", u"Schmiedekunst")},
    {u"perk bargain", u't', Named(u"Bargain", u"Bargain", u"Feilschen")},
    {u"perk Difficult pickpocketing", u't',
     Named(u"DifficultPickpocketing", u"Difficult pickpocketing", u"Schwerer Taschendiebstahl")},
    {u"perk knock down", u't', Named(u"KnockDown", u"Knock down", u"Niederschlagen")},
    {u"perk make excuses", u't', Named(u"MakeExcuses", u"Make excuses", u"Rausreden")},
    {u"perk murder", u't', Named(u"Murder", u"Murder", u"Meucheln")},
    {u"perk pick difficult locks", u't',
     Named(u"PickDifficultLocks", u"Pick difficult locks", u"Schwere Schlösser knacken")},
    {u"perk pick impossible locks", u't',
     Named(u"PickImpossibleLocks", u"Pick impossible locks", u"Unmögliche Schlösser knacken")},
    {u"perk simple pickpocketing", u't',
     Named(u"SimplePickpocketing", u"Simple pickpocketing", u"Einfacher Taschendiebstahl")},
    {u"perk thieving", u't', Named(u"Thieving", u"Thieving", u"Diebeskunst")},
    {u"perk impossible pickpocketing", u't',
     Named(u"ImpossiblePickpocketing", u"Impossible pickpocketing",
           u"Unmöglicher Taschendiebstahl")},
    {u"perk alchemy", u'a', Named(u"Alchemy", u"Alchemy", u"Alchemy")},
    {u"perk brew mana potions", u'a',
     Named(u"BrewManaPotions", u"Brew mana potions", u"Manatränke brauen")},
    {u"perk brew Potions with permanent effects", u'a',
     Named(u"BrewPotionsWithPermanentEffects", u"Brew potions with permament effects",
           u"Tränke mit permanenter Wirkung brauen")},
    {u"perk brew transformation potions", u'a',
     Named(u"BrewTransformationPotions", u"Brew transformations potions",
           u"Verwandlungstränke brauen")},
    {u"perk make fire arrows", u'a',
     Named(u"MakeFireArrows", u"Make fire arrows", u"Brandpfeile herstellen")},
    {u"perk make poison", u'a', Named(u"MakePoison", u"Make poison", u"Gift herstellen")},
    {u"perk Make poison arrows", u'a',
     Named(u"MakePoisonArrows", u"Make poison arrorws", u"Giftpfeile herstellen")},
    {u"perk poison blade", u'a', Named(u"PoisonBlade", u"Poison blade", u"Klinge vergiften")},
    {u"perk acrobatics", u'o', Named(u"Acrobatics", u"Acrobatics", u"Akrobatik")},
    {u"perk endurance of the wolf", u'o',
     Named(u"EnduranceOfTheWolf", u"Endurance of the wolf", u"Ausdauer des Wolfes")},
    {u"perk poison resistance", u'o',
     Named(u"PoisonResistance", u"Poison resistence", u"Giftresistenz")},
    {u"perk resistance to cold", u'o',
     Named(u"ResistanceToCold", u"Resistence to cold", u"Resistenz gegen Kälte")},
    {u"perk resistance to heat", u'o',
     Named(u"ResistanceToHeat", u"Resistence to heat", u"Resistenz gegen Hitze")},
    {u"perk weakness resistance", u'o',
     Named(u"WeaknessResistance", u"Weakness resistence", u"Schwächeresistenz")},
    {u"perk Endurance", u'o', Named(u"Endurance", u"Endurance", u"Ausdauer ")},
    {u"perk Health", u'o', Named(u"Health", u"Health", u"Lebenskraft")},
}};

/// The perk with exactly this key; null if there is none.
[[nodiscard]] const Perk* Find(TextView key);

}  // namespace PerkCatalogue
