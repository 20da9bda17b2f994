// Every dialog with the built-in texts, the shipped languages, and one that says all at length.
#include "auxwin/windows/frmAbout.h"
#include "auxwin/windows/frmExtras.h"
#include "auxwin/windows/frmPrint.h"
#include "i18n/windows/frmLang.h"
#include "mapdata/windows/frmInfo.h"
#include "perks/windows/frmPerks.h"
#include "search/windows/frmFind.h"
#include "support/DialogCheck.h"
#include "support/TestWorld.h"

namespace {

// As wordy as translations get, with a long author and addresses that no line can break.
constexpr TextView Lungo =
    u"[general]\r\nlanguage=Lungo\r\nversion=1.0.0\r\n"
    u"author=Anna Beispiel und Bernd Muster-Mustermann\r\n"
    u"email=anna.beispiel.und.bernd.muster@kartenfreunde-lungo.example\r\n"
    u"website=www.orvalis-traduzione-completa-lungo.example\r\n"
    u"[frmLang]\r\ncaption=Scelta della lingua\r\navailablelangs=Lingue disponibili\r\n"
    u"currentlang=Lingua attualmente in uso\r\nauthor=&Tradotto da:\r\n"
    u"email=Posta elettronica:\r\nwebsite=Sito internet:\r\n"
    u"buttonselect=&Choose this language now\r\nbuttoncancel=&Annulla la scelta\r\n"
    u"[frmFind]\r\ncaption=Cerca nella mappa\r\nsearchfor=&Cerca questo testo:\r\n"
    u"options=Opzioni di ricerca\r\nsearchinnames=Cerca soltanto nei &nomi di persone e luoghi\r\n"
    u"searchindescriptions=Cerca anche nelle &descrizioni\r\nbuttonfind=Cerca &adesso\r\n"
    u"buttoncancel=A&nnulla la ricerca\r\n"
    u"[frmAbout]\r\ncaption=Informazioni su\r\n"
    u"description=Mappe interattive di Duskhold per trovare facilmente persone, luoghi e "
    u"oggetti\r\n"
    u"email=Indirizzo di posta:\r\nwebsite=Sito internet:\r\n"
    u"disclaimer=Condizioni d'uso: le mappe sono gratuite e si possono usare solo per scopi non "
    u"commerciali. La pubblicazione su altri siti richiede il permesso degli autori. Per domande "
    u"scrivere all'indirizzo qui sopra, con la pazienza di chi disegna mappe la sera.\r\n"
    u"sources=Fonti: quel che le mappe mostrano viene dalle pagine della comunità e dai diari di "
    u"viaggio di molti giocatori che hanno misurato grotte, contato forzieri e chiesto ai maestri "
    u"che cosa sanno insegnare. A tutti loro va il nostro ringraziamento più sentito.\r\n"
    u"thanksto=Grazie per prove e aiuto ad Ansgar Riedweg, Friederike Halm, Jorin Kesselbach, "
    u"Mathis Ohlendorf, Svea Brandlechner e Tilda Wiesengrund.\r\n"
    u"[frmPrint]\r\ncaption=Stampa della mappa\r\nlabel=&Stampanti disponibili:\r\n"
    u"optionlandscape=&Orientamento orizzontale\r\noptionportrait=Orientamento &verticale\r\n"
    u"buttonprint=Stampa la &mappa adesso\r\nbuttoncancel=&Annulla la stampa\r\n"
    u"[frmInfo]\r\nbuttonclose=&Chiudi questa finestra\r\n"
    u"[frmExtras]\r\nbtnSelect=&Apri il documento scelto\r\nbtnCancel=&Chiudi la finestra\r\n"
    u"[frmPerks]\r\nButtonShow=&Mostra i maestri sulla mappa\r\nButtonCancel=&Chiudi la "
    u"finestra\r\n";

// The windows over a program folder, whose languages lie in `LANG`.
void CheckAll(const Text& programFolder, const Text& languageName, void (*check)(Dialog&)) {
  World world(programFolder);
  RecordingDesktop desktop;
  Launching launching(world.paths, desktop);
  Search::State search;
  IniOps::Snapshot files(world.cache);
  world.language.Start(files, languageName);
  world.language.CacheTranslationTable(files);
  const Printout printout{[] { return Twips2Pixel_Module::Twips{9000, 6000}; }, [](QPainter&) {}};
  frmLang languages(nullptr, world, launching, {});
  frmFind find(nullptr, world, search);
  frmAbout about(nullptr, world, desktop, launching);
  frmPrint print(nullptr, world, desktop, printout);
  frmInfo info(nullptr, world, u"Wolf");
  frmExtras extras(nullptr, world, launching);
  frmPerks perks(nullptr, world.paths.regions[0].data, world);
  for (Dialog* window :
       std::initializer_list<Dialog*>{&languages, &find, &about, &print, &info, &extras, &perks}) {
    const testing::ScopedTrace trace(__FILE__, __LINE__, window->objectName().toStdString());
    check(*window);
    window->hide();
  }
}

const Text ShippedWorld = NativePath::FromBytes(ORVALIS_SOURCES "/world");

}  // namespace

TEST(DialogTexts, GermanAndEnglishOnesMoveNothing) {
  for (const TextView language : {u"Deutsch", u"English"})
    CheckAll(ShippedWorld, Text(language), CheckDialog);
}

TEST(DialogTexts, FrenchOnesAreSeenWhole) {
  CheckAll(ShippedWorld, u"Français", CheckTexts);
}

TEST(DialogTexts, TheEnglishDefaultsMoveNothing) {
  const TemporaryFolder folder;
  folder.Write("LANG/English/English.lng",
               "[general]\r\nlanguage=English\r\n[frmAbout]\r\ncaption=About\r\n");
  CheckAll(folder.Folder(), u"English", CheckDialog);
}

TEST(DialogTexts, LongOnesAreSeenWhole) {
  const TemporaryFolder folder;
  folder.Write("LANG/Lungo/Lungo.lng", Windows1252::Encode(Lungo).value());
  CheckAll(folder.Folder(), u"Lungo", CheckTexts);
}
