#pragma once

#include "i18n/TextRow.h"
#include "platform/ProgramInfo.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>

/// The texts of all windows and messages but those that belong to the tables of the menus, the
/// perks and the extras.
namespace WindowTexts {

namespace Details {

inline constexpr TextView Disclaimer =
    u"Nutzungsbedingungen: Die Karten von Orvalis sind kostenlos und dürfen nur zu "
    u"nichtkommerziellen Zwecken verwendet werden. Ihre Veröffentlichung auf anderen Webseiten ist "
    u"nur mit Erlaubnis der Autoren gestattet. Anfragen bitte an die oben genannte E-Mail-Adresse.";

inline constexpr TextView Sources =
    u"Quellen: Die Angaben auf den Karten stammen von den Seiten der Gemeinschaft, dem "
    u"Duskhold-Archiv, der Kartenstube, dem Lagerfeuer und Wanderers Rast, sowie aus den "
    u"Reisetagebüchern vieler Spieler, die Höhlen vermessen, Truhen gezählt und Lehrer nach "
    u"ihrem Können gefragt haben. Ihnen allen gebührt Dank.";

inline constexpr TextView ThanksTo =
    u"Dank für Tests und Hilfe an Ansgar Riedweg, Friederike Lindhag, Jorin Kesselried, Mathis "
    u"Ohlengrund, Svea Brandlechner und Tilda Wiesenhag.";

}  // namespace Details

/// Every row, section by section in the order of the manual.
inline constexpr auto Table = std::to_array<TextRow>({
    {u"general", u"language", u"", u"Deutsch"},
    {u"general", u"version", u"", u"", false},
    {u"general", u"author", u"", u"", false},
    {u"general", u"website", u"", u"", false},
    {u"general", u"email", u"", u"", false},

    {u"ui", u"ComboBoxPrompt", u"------------ Please select ------------",
     u"------------ Bitte Auswählen ------------"},
    {u"ui", u"InfoButtonToolTip", u"Displays informations about selected entity.",
     u"Zeigt Informationen zur ausgewählten Entität an."},
    {u"ui", u"Highlighted", u"highlighted", u"hervorgehoben", false},
    {u"ui", u"FileNotFound", u"",
     u"Die folgende Datei fehlt: %s\\nDas Programm kann nicht fortgesetzt werden."},
    {u"ui", u"FileNotFoundCaption", u"", u"Fehler"},

    {u"frmLang", u"caption", u"Choose language", u"Sprache auswählen"},
    {u"frmLang", u"availablelangs", u"Available languages", u"Vorhandene Sprachen"},
    {u"frmLang", u"currentlang", u"Current language", u"Aktuelle Sprache"},
    {u"frmLang", u"author", u"Author", u"Autor:"},
    {u"frmLang", u"email", u"eMail", u"eMail:"},
    {u"frmLang", u"website", u"Website", u"WebSite:"},
    {u"frmLang", u"buttonselect", u"Select", u"A&uswählen"},
    {u"frmLang", u"buttoncancel", u"Cancel", u"&Abbrechen"},

    {u"frmFind", u"caption", u"Find", u"Suchen"},
    {u"frmFind", u"searchfor", u"Search for:", u"Suchen nach:"},
    {u"frmFind", u"options", u"Options", u"Optionen"},
    {u"frmFind", u"searchinnames", u"Search in names", u"Suche in den &Namen"},
    {u"frmFind", u"searchindescriptions", u"Search in descriptions",
     u"Suche in den &Beschreibungen"},
    {u"frmFind", u"buttonfind", u"Find", u"&Suchen"},
    {u"frmFind", u"buttoncancel", u"Cancel", u"&Abbrechen"},
    {u"frmFind", u"notfoundmessage", u"", u"Der Suchbegriff: \"%s\" konnte nicht gefunden werden!"},
    {u"frmFind", u"notfoundcaption", u"", u"Suche beendet"},
    {u"frmFind", u"SearchResult", u"", u"Suchergebnis für: %s"},

    {u"frmAbout", u"caption", u"", u"Über"},
    {u"frmAbout", u"description", u"", ProgramInfo::Description},
    {u"frmAbout", u"email", u"", u"eMail:"},
    {u"frmAbout", u"website", u"", u"WebSite:"},
    {u"frmAbout", u"disclaimer", u"", Details::Disclaimer},
    {u"frmAbout", u"sources", u"", Details::Sources},
    {u"frmAbout", u"thanksto", u"", Details::ThanksTo},

    {u"frmPrint", u"caption", u"Print", u"Karte Drucken"},
    {u"frmPrint", u"label", u"Printers", u"Drucker:"},
    {u"frmPrint", u"optionlandscape", u"Landscape", u"&Querformat"},
    {u"frmPrint", u"optionportrait", u"Portrait", u"&Hochformat"},
    {u"frmPrint", u"buttonprint", u"Print", u"&Drucken"},
    {u"frmPrint", u"buttoncancel", u"Cancel", u"&Abbrechen"},

    {u"frmInfo", u"buttonclose", u"Close", u"&Schließen"},

    {u"frmExtras", u"caption", u"Extras", u"Extras"},
    {u"frmExtras", u"btnSelect", u"Select", u"A&uswählen"},
    {u"frmExtras", u"btnCancel", u"Cancel", u"&Abbrechen"},

    {u"frmPerks", u"caption", u"Perks in %s", u"Lehrer für Perks in %s"},
    {u"frmPerks", u"root", u"Perks in %s", u"Lehrer in %s"},
    {u"frmPerks", u"ButtonShow", u"Show", u"An&zeigen"},
    {u"frmPerks", u"ButtonCancel", u"Abort", u"&Abbrechen"},
});

/// The row with these names, which must be there: a program with another does not compile.
[[nodiscard]] consteval const TextRow& Row(TextView section, TextView key) {
  const auto* found = std::find_if(Table.begin(), Table.end(), [&](const TextRow& row) {
    return row.section == section && row.key == key;
  });
  if (found == Table.end())
    throw "there is no such text";
  return *found;
}

}  // namespace WindowTexts
