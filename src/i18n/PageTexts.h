#pragma once

#include "i18n/TextRow.h"
#include "platform/Text.h"

#include <array>

/// The words of the page to which a world can be exported.
namespace PageTexts {

/// Their section in the language files.
inline constexpr TextView Section = u"page";

inline constexpr auto Table = std::to_array<TextRow>({
    {Section, u"noScript", u"This page needs JavaScript.", u"Diese Seite braucht JavaScript.",
     false},
    {Section, u"regions", u"Regions", u"Regionen", false},
    {Section, u"categories", u"Categories", u"Kategorien", false},
    {Section, u"list", u"Search and list", u"Suche und Liste", false},
    {Section, u"search", u"Search all regions", u"Alle Regionen durchsuchen", false},
    {Section, u"hits", u"%s hits", u"%s Treffer", false},
    {Section, u"foundOf", u"%s of %s found", u"%s von %s gefunden", false},
    {Section, u"found", u"Found", u"Gefunden", false},
    {Section, u"namesAlways", u"Always show names", u"Namen immer zeigen", false},
    {Section, u"hideAll", u"Hide all", u"Alle ausblenden", false},
    {Section, u"mapOf", u"Map of %s", u"Karte von %s", false},
    {Section, u"mapKeys",
     u"Arrow keys go from marker to marker, Page Up and Page Down through "
     u"all, Enter opens the description, the space bar ticks. Plus and minus "
     u"zoom, Shift and arrow keys move the map, 0 shows all of it.",
     u"Pfeiltasten gehen von Marke zu Marke, Bild auf und Bild ab durch alle,"
     u" Enter öffnet die Beschreibung, die Leertaste hakt ab. Plus und Minus "
     u"zoomen, Umschalt und Pfeiltasten verschieben die Karte, 0 zeigt sie "
     u"ganz.",
     false},
    {Section, u"zoomIn", u"Zoom in", u"Vergrößern", false},
    {Section, u"zoomOut", u"Zoom out", u"Verkleinern", false},
    {Section, u"noPicture", u"This region has no picture.", u"Diese Region hat kein Bild.", false},
    {Section, u"noText", u"No description.", u"Keine Beschreibung.", false},
    {Section, u"link", u"Copy link", u"Link kopieren", false},
    {Section, u"gone", u"\"%s\" is not on these maps any more.",
     u"„%s“ gibt es auf diesen Karten nicht mehr.", false},
    {Section, u"close", u"Close", u"Schließen", false},
    {Section, u"ticks", u"Take ticks along", u"Haken mitnehmen", false},
    {Section, u"ticksHelp",
     u"This text holds everything you have ticked. Copy it and keep it; put "
     u"it in here in another browser and add it.",
     u"Dieser Text enthält alles, was abgehakt ist. Kopieren und aufheben; in"
     u" einem anderen Browser hier einsetzen und hinzufügen.",
     false},
    {Section, u"copy", u"Copy", u"Kopieren", false},
    {Section, u"copied", u"Copied.", u"Kopiert.", false},
    {Section, u"take", u"Add these ticks", u"Diese Haken hinzufügen", false},
    {Section, u"taken", u"%s ticks added, %s lines not understood.",
     u"%s Haken hinzugefügt, %s Zeilen nicht verstanden.", false},
    {Section, u"removeTicks", u"Remove all ticks", u"Alle Haken entfernen", false},
    {Section, u"removed", u"All ticks are removed. The text above still holds them.",
     u"Alle Haken sind entfernt. Der Text oben enthält sie noch.", false},
    {Section, u"noStorage",
     u"This browser keeps no ticks: take them along as a text before you "
     u"close the page.",
     u"Dieser Browser behält keine Haken: Nimm sie als Text mit, bevor du die"
     u" Seite schließt.",
     false},
});

}  // namespace PageTexts
