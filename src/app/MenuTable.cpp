#include "app/MenuTable.h"

#include <algorithm>
#include <array>

namespace {

using Kind = MenuRow::Kind;

// Of the language files.
constexpr TextView Section = u"menus";

constexpr MenuRow Menu(int level, TextView name, TextView german, TextView english) {
  return {.level = level, .name = name, .caption = {Section, name, english, german}};
}

constexpr MenuRow Command(int level, TextView name, Action action, TextView german,
                          TextView english, TextView shortcut = {}) {
  MenuRow row = Menu(level, name, german, english);
  row.kind = Kind::Command;
  row.action = action;
  row.shortcut = shortcut;
  return row;
}

constexpr MenuRow Category(int level, TextView name, TextView category, TextView german,
                           TextView english, DisplayMode mode) {
  MenuRow row = Menu(level, name, german, english);
  row.kind = Kind::Category;
  row.category = category;
  row.mode = mode;
  return row;
}

constexpr MenuRow List(int level, TextView name, TextView category, TextView german,
                       TextView english) {
  return Category(level, name, category, german, english, DisplayMode::List);
}

constexpr MenuRow Labels(int level, TextView name, TextView category, TextView german,
                         TextView english) {
  return Category(level, name, category, german, english, DisplayMode::Labels);
}

constexpr MenuRow Hover(int level, TextView name, TextView category, TextView german,
                        TextView english) {
  return Category(level, name, category, german, english, DisplayMode::LabelsOnHover);
}

constexpr MenuRow Divided(MenuRow row) {
  row.divided = true;
  return row;
}

constexpr MenuRow Disabled(MenuRow row) {
  row.enabled = false;
  return row;
}

constexpr MenuRow ListFirst(MenuRow row) {
  row.listFirst = true;
  return row;
}

// For the few captions whose key in the language files is not the control's name.
constexpr MenuRow Keyed(TextView key, MenuRow row) {
  row.caption.key = key;
  return row;
}

constexpr std::array<MenuRow, 1> BarDivider(TextView name) {
  return {{{.kind = Kind::BarDivider,
            .name = name,
            .caption = {{}, {}, u"|", u"|"},
            .enabled = false}}};
}

constexpr auto File = std::to_array<MenuRow>({
    Menu(0, u"mnuFile", u"&Datei", u"File"),
    Disabled(Command(1, u"miPrint", Action::Print, u"&Drucken...", u"Print", u"Ctrl+P")),
    Divided(Command(1, u"mnuLanguage", Action::Language, u"&Sprache wählen...", u"Choose language",
                    u"Ctrl+L")),
    Divided(Command(1, u"miUpdateOrvalis", Action::WebSite, u"&Orvalis aktualisieren",
                    u"Update &Orvalis  ", u"Ctrl+U")),
    Command(1, u"miDownloadTranslatorSDK", Action::WebSite, u"&Übersetzer-SDK herunterladen",
            u"Download Translator SDK", u"Ctrl+T"),
    Command(1, u"miUpdate", Action::WebSite, u"Duskhold &Patch runterladen",
            u"&Download Duskhold patch", u"Ctrl+G"),
    Divided(Command(1, u"miQuit", Action::Quit, u"&Beenden", u"&Quit", u"Ctrl+W")),
});

constexpr auto Arvenna = std::to_array<MenuRow>({
    Menu(0, u"mnuArvenna", u"&Arvenna", u"Arvenna"),
    Menu(1, u"mnuArvennaPersons", u"&Personen", u"Persons"),
    List(2, u"miArvennaNPCs", u"NPC", u"&NPCs", u"NPCs"),
    List(2, u"miArvennaQuestNPCs", u"quest npcs", u"&Questgeber", u"Quest NPCs"),
    Hover(2, u"miArvennaTeachers", u"teachers", u"&Lehrer", u"Teachers"),
    Hover(2, u"miArvennaMerchants", u"merchants", u"&Händler", u"Merchants"),
    Labels(2, u"miArvennaFriendsX", u"friendsX", u"&Freunde und alte Bekannte",
           u"Friends and aquaintance"),
    Labels(2, u"miArvennaBandits", u"bandits", u"&Banditen", u"Bandits"),
    Labels(2, u"miArvennaDruids", u"druids", u"&Druiden", u"Druids"),
    Labels(2, u"miArvennaSmiths", u"smiths", u"&Schmiede", u"Smiths"),
    Labels(2, u"miArvennaHunters", u"hunters", u"&Jäger", u"Hunters"),
    Labels(2, u"miArvennaAlchemists", u"alchemists", u"Al&chemisten", u"Alchemists"),
    Labels(2, u"miArvennaFireMages", u"fire mages", u"Fe&uermagier", u"Fire mages"),
    Menu(2, u"mnuArvennaOrks", u"&Orks", u"Orcs"),
    Labels(3, u"miArvennaOrcChieftains", u"orc chieftains", u"Orks&häuptlinge", u"Orc chieftains"),
    Labels(3, u"miArvennaCommander", u"commander", u"&Feldherrn", u"Commander"),
    Hover(3, u"miArvennaHostileOrcs", u"hostile orcs", u"Feindliche Or&ks", u"Hostile Orcs"),
    Labels(3, u"miArvennaOrcShamans", u"orc shamans", u"Ork&schamanen", u"Orc shamans"),
    Labels(2, u"miArvennaRanger", u"ranger", u"&Waldläufer", u"Ranger"),
    Labels(2, u"miArvennaZerhanis", u"zerhanis", u"A&ssasinen", u"Zerhanis"),
    Labels(2, u"miArvennaTwelvePaladins", u"twelve paladins", u"Die &zwölf Paladine",
           u"Twelve Paladins"),
    Labels(2, u"miArvennaBundlesOfWeaponsQuests", u"bundles of weapons quests",
           u"Waffenbündel &Quests", u"Bundles of weapons quest"),
    Labels(2, u"miArvennaMenForBravik", u"men for bravik", u"Männer für &Bravik",
           u"Men for Bravik"),
    Labels(2, u"miArvennaSlavesFromOrlen", u"slave from orlen", u"S&klaven aus Orlen",
           u"Orlen slaves"),
    Divided(Menu(1, u"mnuArvennaAnimalsAndCreatures", u"&Tiere und Kreaturen",
                 u"Animals and creatures")),
    Hover(2, u"miArvennaCreatures", u"creatures", u"&Kreaturen", u"Creatures"),
    Divided(Menu(1, u"mnuArvennaObjects", u"&Objekte", u"Objects")),
    Hover(2, u"miArvennaItems", u"items", u"&Gegenstände", u"Items"),
    Hover(2, u"miArvennaTeleporterStones", u"teleporter stones", u"&Teleportsteine",
          u"Teleporter stones"),
    Labels(2, u"miArvennaVelosArtefacts", u"velos artefacts", u"&Velos Artefakte",
           u"Velos artifacts"),
    Labels(2, u"miArvennaFireChalices", u"fire chalices", u"&Feuerkelche", u"Fire chalices"),
    Hover(2, u"miArvennaMageChests", u"mage chests", u"&Magiertruhen", u"Mage chests"),
    Hover(2, u"miArvennaWeaponChests", u"weapon chests", u"&Waffentruhen", u"Weapon chests"),
    Hover(2, u"miArvennaSpecialChests", u"special chests", u"E&xtratruhen (Goldtruhen)",
          u"Special chests"),
    Hover(2, u"miArvennaBundlesOfWeapons", u"bundles of weapons", u"Waffen&bündel",
          u"Bundles of weapons"),
    Labels(2, u"miArvennaTools", u"tools", u"Werk&zeuge", u"Tools"),
    Hover(2, u"miArvennaBaskets", u"baskets", u"&Körbe", u"Baskets"),
    Labels(2, u"miArvennaMillstones", u"millstones", u"M&ühlsteine", u"Millstones"),
    Divided(Menu(1, u"mnuArvennaPlantsAndHerbs", u"Pflanzen und &Kräuter", u"Plants and herbs")),
    Hover(2, u"miArvennaDragonroots", u"dragonroots", u"&Drachenwurzeln", u"Dragonroots"),
    Hover(2, u"miArvennaGoblinberries", u"goblinberries", u"&Goblinbeeren", u"Goblinberries"),
    Hover(2, u"miArvennaKingsSorrels", u"kings sorrels", u"&Kronstöckel", u"King's sorrels"),
    Divided(Menu(1, u"mnuArvennaPlacesAndLocations", u"O&rte und Plätze", u"Places and locations")),
    Hover(2, u"miArvennaPlaces", u"places", u"&Orte", u"Places"),
    Labels(2, u"miArvennaCities", u"cities", u"&Städte und Siedlungen", u"Cities"),
    Labels(2, u"miArvennaShrines", u"shrines", u"S&chreine", u"Shrines"),
    Hover(2, u"miArvennaCaves", u"caves", u"&Höhlen", u"Caves"),
    Labels(2, u"miArvennaRebelCamps", u"rebel camps", u"&Rebellenlager", u"Rebel camps"),
    Divided(Command(1, u"miArvennaPerks", Action::Perks, u"&Perks", u"Perks")),
});

constexpr auto Skaldor = std::to_array<MenuRow>({
    Menu(0, u"mnuSkaldor", u"&Skaldor", u"Skaldor"),
    Menu(1, u"mnuSkaldorPersons", u"&Personen", u"Persons"),
    List(2, u"miSkaldorNPCs", u"NPC", u"&NPCs", u"NPCs"),
    Hover(2, u"miSkaldorQuestNPCs", u"quest npcs", u"&Questgeber", u"Quest NPCs"),
    ListFirst(Hover(2, u"miSkaldorTeachers", u"teachers", u"&Lehrer", u"Teachers")),
    Labels(2, u"miSkaldorMerchants", u"merchants", u"&Händler", u"Merchants"),
    Labels(2, u"miSkaldorFriendsX", u"friendsX", u"&Freunde und alte Bekannte",
           u"Friends and aquaintance"),
    Labels(2, u"miSkaldorDruids", u"druids", u"&Druiden", u"Druids"),
    Labels(2, u"miSkaldorSmiths", u"smiths", u"&Schmiede", u"Smiths"),
    Labels(2, u"miSkaldorHunters", u"hunters", u"&Jäger", u"Hunters"),
    Labels(2, u"miSkaldorAlchemists", u"alchemists", u"Al&chemisten", u"Alchemists"),
    Hover(2, u"miSkaldorFireMages", u"fire mages", u"Fe&uermagier", u"Fire mages"),
    Labels(2, u"miSkaldorOrcs", u"orcs", u"O&rks", u"Orcs"),
    Labels(2, u"miSkaldorTwelvePaladins", u"twelve paladins", u"Die &zwölf Paladine",
           u"Twelve paladins"),
    Divided(Menu(1, u"mnuSkaldorAnimalsAndCreatures", u"&Tiere und Kreaturen", u"Animals...")),
    Hover(2, u"miSkaldorCreatures", u"creatures", u"&Kreaturen", u"Creatures"),
    Divided(Menu(1, u"mnuSkaldorObjects", u"&Objekte", u"Objects")),
    Labels(2, u"miSkaldorItems", u"items", u"&Gegenstände", u"Items"),
    Hover(2, u"miSkaldorTeleporterStones", u"teleporter stones", u"&Teleportsteine",
          u"Teleporter stones"),
    Labels(2, u"miSkaldorVelosArtefacts", u"velos artefacts", u"&Velos Artefakte",
           u"Velos artifacts"),
    Labels(2, u"miSkaldorFireChalices", u"fire chalices", u"&Feuerkelche", u"Fire chalices"),
    Hover(2, u"miSkaldorMageChests", u"mage chests", u"&Magiertruhen", u"Mage chests"),
    Hover(2, u"miSkaldorWeaponChests", u"weapon chests", u"&Waffentruhen", u"Weapon chests"),
    Labels(2, u"miSkaldorTools", u"tools", u"Werk&zeuge", u"Tools"),
    Labels(2, u"miSkaldorMillstones", u"millstones", u"M&ühlsteine", u"Millstones"),
    Divided(Menu(1, u"mnuSkaldorPlantsAndHerbs", u"Pflanzen und &Kräuter", u"Plants and herbs")),
    Keyed(u"miSkaldorDragonroots",
          Hover(2, u"miSkaldorDragonRoots", u"dragonroots", u"&Drachenwurzeln", u"Dragonroots")),
    Hover(2, u"miSkaldorGoblinberries", u"goblinberries", u"&Goblinbeeren", u"Goblinberries"),
    Hover(2, u"miSkaldorKingsSorrels", u"kings sorrels", u"&Kronstöckel", u"King's sorrels"),
    Divided(Menu(1, u"mnuSkaldorPlacesAndLocations", u"O&rte und Plätze", u"Places and locations")),
    Labels(2, u"miSkaldorPlaces", u"places", u"&Orte", u"Places"),
    Labels(2, u"miSkaldorCities", u"cities", u"&Städte und Siedlungen", u"Cities"),
    Labels(2, u"miSkaldorShrines", u"shrines", u"S&chreine", u"Shrines"),
    Hover(2, u"miSkaldorCaves", u"caves", u"&Höhlen", u"Caves"),
    Labels(2, u"miSkaldorTombOfancestors", u"tomb_of_ancestors", u"&Ahnengräber",
           u"Tomb of ancestors"),
    Divided(Command(1, u"miSkaldorPerks", Action::Perks, u"&Perks", u"Perks")),
});

constexpr auto Sarrakh = std::to_array<MenuRow>({
    Menu(0, u"mnuSarrakh", u"&Sarrakh", u"Sarrakh"),
    Menu(1, u"mnuSarrakhPersons", u"&Personen", u"Persons"),
    List(2, u"miSarrakhNPCs", u"NPC", u"&NPCs", u"NPCs"),
    Hover(2, u"miSarrakhQuestNPCs", u"quest npcs", u"&Questgeber", u"Quest NPCs"),
    Hover(2, u"miSarrakhTeachers", u"teachers", u"&Lehrer", u"Teachers"),
    Labels(2, u"miSarrakhMerchants", u"merchants", u"&Händler", u"Merchants"),
    Labels(2, u"miSarrakhFriendsX", u"friendsX", u"&Freunde und Bekannte",
           u"Friends and aquaintance"),
    Labels(2, u"miSarrakhBandits", u"bandits", u"&Banditen", u"Bandits"),
    Labels(2, u"miSarrakhDruids", u"druids", u"&Druiden", u"Druids"),
    Labels(2, u"miSarrakhSmiths", u"smiths", u"&Schmiede", u"Smiths"),
    Labels(2, u"miSarrakhHunters", u"hunters", u"&Jäger", u"Hunters"),
    Labels(2, u"miSarrakhAlchemists", u"alchemists", u"Al&chemisten", u"Alchemists"),
    Labels(2, u"miSarrakhOrcs", u"orcs", u"&Orks", u"Orcs"),
    Labels(2, u"miSarrakhNomads", u"nomads", u"&Nomaden", u"Nomads"),
    Labels(2, u"miSarrakhZerhanis", u"zerhanis", u"&Assasinen", u"Zerhanis"),
    Labels(2, u"miSarrakhNomadTribeLeaders", u"nomad tribe leaders", u"&Stammesführer der Nomaden",
           u"Nomad tribe leaders"),
    Labels(2, u"miSarrakhWaterMages", u"watermages", u"&Wassermagier", u"Watermages"),
    Labels(2, u"miSarrakhTwelvePaladins", u"twelve paladins", u"Die &zwölf Paladine",
           u"Twelve paladins"),
    Labels(2, u"miSarrakhBundlesOfWeaponsQuests", u"bundles of weapons quests",
           u"Waffenbündel &Quests", u"Bundles of weapons quests"),
    Divided(Menu(1, u"mnuSarrakhAnimalsAndCreatures", u"&Tiere und Kreaturen",
                 u"Animals and creatures")),
    Hover(2, u"miSarrakhCreatures", u"creatures", u"&Kreaturen", u"Creatures"),
    Hover(2, u"miSarrakhUndead", u"undead", u"&Untote", u"Undead"),
    Hover(2, u"miSarrakhJackals", u"jackals", u"&Schakale", u"Jackals"),
    Labels(2, u"miSarrakhPackLeader", u"pack leader", u"Scha&kalrudelführer", u"Pack leader"),
    Divided(Menu(1, u"mnuObjects", u"&Objekte", u"Objects")),
    Labels(2, u"miSarrakhItems", u"items", u"&Gegenstände", u"Items"),
    Hover(2, u"miSarrakhTeleporterStones", u"teleporter stones", u"&Teleportsteine",
          u"Teleporter stones"),
    Labels(2, u"miSarrakhVelosArtefacts", u"velos artefacts", u"&Velos Artefakte",
           u"Velos artifacts"),
    Labels(2, u"miSarrakhFireChalices", u"fire chalices", u"&Feuerkelche", u"Fire chalices"),
    Hover(2, u"miSarrakhKareshTempleKeys", u"karesh temple keys", u"Karesh &Tempelschlüssel",
          u"Karesh temple keys"),
    Hover(2, u"miSarrakhOstrakhTempleKeys", u"ostrakh temple keys", u"Ostrakh Tem&pelschlüssel",
          u"Ostrakh temple keys"),
    Hover(2, u"miSarrakhMageChests", u"mage chests", u"&Magiertruhen", u"Mage chests"),
    Hover(2, u"miSarrakhWeaponChests", u"weapon chests", u"&Waffentruhen", u"Weapons chests"),
    Hover(2, u"miSarrakhSpecialChests", u"special chests", u"E&xtratruhen (Goldtruhen)",
          u"Special chests"),
    Hover(2, u"miSarrakhBundlesOfWeapons", u"bundles of weapons", u"Waffen&bündel",
          u"Bundles of weapons"),
    Labels(2, u"miSarrakhTools", u"tools", u"Werk&zeuge", u"Tools"),
    Hover(2, u"miSarrakhBaskets", u"baskets", u"&Körbe", u"Baskets"),
    Hover(2, u"miSarrakhResources", u"resources", u"&Ressourcen", u"Resources"),
    Hover(2, u"miSarrakhStoneTablets", u"stone tablets", u"Steinta&feln", u"Stone tablets"),
    Divided(Menu(1, u"mnuSarrakhPlantsAndHerbs", u"Pflanzen und &Kräuter", u"Plants and herbs")),
    Hover(2, u"miSarrakhDragonroots", u"dragonroots", u"&Drachenwurzeln", u"Dragonroots"),
    Hover(2, u"miSarrakhGoblinberries", u"goblinberries", u"&Goblinbeeren", u"Goblinberries"),
    Hover(2, u"miSarrakhKingsSorrels", u"kings sorrels", u"&Kronstöckel", u"King's sorrels"),
    Divided(Menu(1, u"mnuSarrakhPlacesAndLocations", u"O&rte und Plätze", u"Places and locations")),
    Hover(2, u"miSarrakhPlaces", u"places", u"&Orte", u"Places"),
    Labels(2, u"miSarrakhCities", u"cities", u"&Städte und Siedlungen", u"Cities"),
    Labels(2, u"miSarrakhShrines", u"shrines", u"S&chreine", u"Shrines"),
    Hover(2, u"miSarrakhCaves", u"caves", u"&Höhlen", u"Caves"),
    Hover(2, u"miSarrakhTombs", u"tombs", u"Gr&äber mit Beilagen", u"Tombs"),
    Divided(Command(1, u"miSarrakhPerks", Action::Perks, u"&Perks", u"Perks")),
});

constexpr auto Ostrakh = std::to_array<MenuRow>({
    Menu(0, u"mnuOstrakh", u"&Ostrakh", u"Ostrakh"),
    Menu(1, u"mnuOstrakhPersons", u"&Personen", u"Persons"),
    Labels(2, u"miOstrakhNPCs", u"NPC", u"&NPCs", u"NPCs"),
    Divided(Menu(1, u"mnuOstrakhAnimalsAndCreatures", u"&Tiere und Kreaturen",
                 u"Animals and creatures")),
    Labels(2, u"miOstrakhCreatures", u"creatures", u"&Kreaturen", u"Creatures"),
    Divided(Menu(1, u"mnuOstrakhObjects", u"&Objekte", u"Objects")),
    List(2, u"miOstrakhItems", u"items", u"&Gegenstände", u"Items"),
    Hover(2, u"miOstrakhArtifacts", u"artifacts", u"&Artefakte", u"Artifacts"),
    Labels(2, u"miOstrakhKeys", u"keys", u"Ostrakh &Tempelschlüssel", u"Temple keys"),
    Divided(Menu(1, u"mnuOstrakhPlacesAndLocations", u"&Orte und Plätze", u"Places and locations")),
    Labels(2, u"miOstrakhPlaces", u"places", u"&Orte", u"Places"),
});

constexpr auto Ancestors = std::to_array<MenuRow>({
    Menu(0, u"mnuancestors", u"A&hnengräber", u"Ancestors"),
    Menu(1, u"mnuancestorsPersons", u"&Personen", u"Persons"),
    List(2, u"miancestorsNPCs", u"NPC", u"&NPCs", u"NPCs"),
    Labels(2, u"miancestorsOrcs", u"orcs", u"&Orks", u"Orcs"),
    Labels(2, u"miancestorsancestors", u"ancestors", u"&Ahnen", u"Ancestors"),
    Divided(Menu(1, u"mnuancestorsAnimalsAndCreatures", u"&Tiere und Kreaturen",
                 u"Animals and creatures")),
    Labels(2, u"miancestorsCreatures", u"creatures", u"&Kreaturen", u"Creatures"),
    Divided(Menu(1, u"mnuancestorsObjects", u"&Objekte", u"Objects")),
    List(2, u"miancestorsItems", u"items", u"&Gegenstände", u"Items"),
    Divided(
        Menu(1, u"mnuancestorsPlacesAndLocations", u"O&rte und Plätze", u"Places and locations")),
    Labels(2, u"miancestorsPlaces", u"places", u"&Orte", u"Places"),
    Labels(2, u"miancestorsTombs", u"tombs", u"&Gräber", u"Ancestors tobms"),
});

constexpr auto FindExtrasHelp = std::to_array<MenuRow>({
    Menu(0, u"mnuFind", u"&Suchen", u"Find"),
    Command(1, u"miFind", Action::Find, u"&Suchen...", u"Find", u"Ctrl+F"),
    Disabled(Command(1, u"miFindAgain", Action::FindAgain, u"&Weitersuchen", u"Find again", u"F3")),
    Keyed(u"miExtras", Command(0, u"mnuExtras", Action::Extras, u"&Extras", u"Extras")),
    Menu(0, u"mnuHelp", u"&?", u"?"),
    Command(1, u"miHelp", Action::Help, u"&Hilfe", u"Help", u"F1"),
    Command(1, u"miReadMe", Action::ReadMe, u"&Read Me", u"Read me", u"Ctrl+R"),
    Divided(Command(1, u"miDuskholdHomeSite", Action::WebSite, u"Duskhold &HomeSite",
                    u"Duskhold Website")),
    Command(1, u"miPublisherForum", Action::WebSite, u"Forum des &Verlags", u"Forum des &Verlags"),
    Menu(1, u"mnuOtherWebsites", u"Andere &Websites", u"Other websites"),
    Command(2, u"miFanSiteA", Action::WebSite, u"Das Duskhold-&Archiv", u"Das Duskhold-&Archiv"),
    Command(2, u"miFanSiteB", Action::WebSite, u"Am &Lagerfeuer", u"Am &Lagerfeuer"),
    Command(2, u"miFanSiteC", Action::WebSite, u"Die &Kartenstube", u"Die &Kartenstube"),
    Command(2, u"miFanSiteD", Action::WebSite, u"&Wanderers Rast", u"&Wanderers Rast"),
    Divided(Command(1, u"miAbout", Action::About, u"Über...", u"About", u"Ctrl+A")),
});

template <size_t Size>
constexpr std::array<MenuRow, Size> InRegion(Region region, std::array<MenuRow, Size> rows) {
  for (MenuRow& row : rows)
    row.region = region;
  return rows;
}

template <size_t... Sizes>
constexpr auto Joined(const std::array<MenuRow, Sizes>&... parts) {
  std::array<MenuRow, (Sizes + ...)> all;
  auto* to = all.begin();
  ((to = std::copy(parts.begin(), parts.end(), to)), ...);
  return all;
}

constexpr auto All = Joined(
    File, InRegion(Region::Arvenna, Arvenna), InRegion(Region::Skaldor, Skaldor),
    InRegion(Region::Sarrakh, Sarrakh), BarDivider(u"sep13"), InRegion(Region::Ostrakh, Ostrakh),
    InRegion(Region::Ancestors, Ancestors), BarDivider(u"sep40"), FindExtrasHelp);

}  // namespace

namespace MenuTable {

std::span<const MenuRow> Rows() {
  return All;
}

std::vector<TextRow> Captions() {
  std::vector<TextRow> captions;
  for (const MenuRow& row : All)
    if (row.kind != Kind::BarDivider)
      captions.push_back(row.caption);
  return captions;
}

}  // namespace MenuTable
