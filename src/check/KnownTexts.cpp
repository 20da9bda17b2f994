#include "check/KnownTexts.h"

#include "app/MenuTable.h"
#include "auxwin/ExtrasTable.h"
#include "perks/PerkCatalogue.h"

#include <array>

namespace {

struct WindowText {
  TextView section;
  TextView key;
  TextView english;
  TextView german;
  bool hasPlaceholder;
  bool isOptional;
};

constexpr auto WindowTexts = std::to_array<WindowText>({
    {u"general", u"language", u"", u"", false, false},
    {u"general", u"version", u"", u"", false, true},
    {u"general", u"author", u"", u"", false, true},
    {u"general", u"website", u"", u"", false, true},
    {u"general", u"email", u"", u"", false, true},
    {u"ui", u"ComboBoxPrompt", u"------------ Please select ------------", u"", false, false},
    {u"ui", u"InfoButtonToolTip", u"Displays informations about selected entity.", u"", false,
     false},
    {u"ui", u"Highlighted", u"highlighted", u"", false, true},
    {u"ui", u"FileNotFound", u"", u"", true, false},
    {u"ui", u"FileNotFoundCaption", u"", u"", false, false},
    {u"frmLang", u"caption", u"Choose language", u"Sprache auswählen", false, false},
    {u"frmLang", u"availablelangs", u"Available languages", u"Vorhandene Sprachen", false, false},
    {u"frmLang", u"currentlang", u"Current language", u"Aktuelle Sprache", false, false},
    {u"frmLang", u"author", u"Author", u"Autor:", false, false},
    {u"frmLang", u"email", u"eMail", u"eMail:", false, false},
    {u"frmLang", u"website", u"Website", u"WebSite:", false, false},
    {u"frmLang", u"buttonselect", u"Select", u"A&uswählen", false, false},
    {u"frmLang", u"buttoncancel", u"Cancel", u"&Abbrechen", false, false},
    {u"frmFind", u"caption", u"Find", u"", false, false},
    {u"frmFind", u"searchfor", u"Search for:", u"", false, false},
    {u"frmFind", u"options", u"Options", u"", false, false},
    {u"frmFind", u"searchinnames", u"Search in names", u"", false, false},
    {u"frmFind", u"searchindescriptions", u"Search in descriptions", u"", false, false},
    {u"frmFind", u"buttonfind", u"Find", u"", false, false},
    {u"frmFind", u"buttoncancel", u"Cancel", u"", false, false},
    {u"frmFind", u"notfoundmessage", u"", u"", true, false},
    {u"frmFind", u"notfoundcaption", u"", u"", false, false},
    {u"frmFind", u"SearchResult", u"", u"", true, false},
    {u"frmAbout", u"caption", u"", u"", false, false},
    {u"frmAbout", u"description", u"", u"", false, false},
    {u"frmAbout", u"email", u"", u"", false, false},
    {u"frmAbout", u"website", u"", u"", false, false},
    {u"frmAbout", u"disclaimer", u"", u"", false, false},
    {u"frmAbout", u"sources", u"", u"", false, false},
    {u"frmAbout", u"thanksto", u"", u"", false, false},
    {u"frmPrint", u"caption", u"Print", u"", false, false},
    {u"frmPrint", u"label", u"Printers", u"", false, false},
    {u"frmPrint", u"optionlandscape", u"Landscape", u"", false, false},
    {u"frmPrint", u"optionportrait", u"Portrait", u"", false, false},
    {u"frmPrint", u"buttonprint", u"Print", u"", false, false},
    {u"frmPrint", u"buttoncancel", u"Cancel", u"", false, false},
    {u"frmInfo", u"buttonclose", u"Close", u"", false, false},
    {u"frmExtras", u"caption", u"Extras", u"Extras", false, false},
    {u"frmExtras", u"btnSelect", u"Select", u"A&uswählen", false, false},
    {u"frmExtras", u"btnCancel", u"Cancel", u"&Abbrechen", false, false},
    {u"frmPerks", u"caption", u"Perks in %s", u"Lehrer für Perks in %s", true, false},
    {u"frmPerks", u"root", u"Perks in %s", u"Lehrer in %s", true, false},
    {u"frmPerks", u"ButtonShow", u"Show", u"An&zeigen", false, false},
    {u"frmPerks", u"ButtonCancel", u"Abort", u"&Abbrechen", false, false},
    {u"frmPerks", u"ArvennaTeachersFor", u"", u"Arvenna: Lehrer für", false, false},
    {u"frmPerks", u"SkaldorTeachersFor", u"", u"Skaldor: Lehrer für", false, false},
    {u"frmPerks", u"SarrakhTeachersFor", u"", u"Sarrakh: Lehrer für", false, false},
});

std::vector<KnownText> Collected() {
  std::vector<KnownText> texts;
  for (const WindowText& text : WindowTexts)
    texts.push_back({text.section, Text(text.key), Text(text.english), Text(text.german),
                     text.hasPlaceholder, text.isOptional});
  for (const MenuCaption& menu : MenuTable::Captions())
    texts.push_back(
        {u"menus", Text(menu.key), Text(menu.english), Text(menu.german), false, false});
  for (const Extra& extra : ExtrasTable)
    texts.push_back(
        {u"frmExtras", Text(extra.key), Text(extra.english), Text(extra.german), false, false});
  for (const PerkCatalogue::Category& category : PerkCatalogue::Categories)
    texts.push_back({u"frmPerks", Text(category.languageKey), Text(category.english),
                     Text(category.german), false, false});
  for (const PerkCatalogue::Perk& perk : PerkCatalogue::Perks)
    texts.push_back({u"frmPerks", PerkCatalogue::LanguageKey(perk), PerkCatalogue::English(perk),
                     Text(perk.german), false, false});
  return texts;
}

}  // namespace

const std::vector<KnownText>& KnownTexts() {
  static const std::vector<KnownText> texts = Collected();
  return texts;
}
