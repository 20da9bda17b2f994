#include "auxwin/windows/frmExtras.h"

#include "support/TestWorld.h"
#include "support/Windows.h"

namespace {

class Extras : public testing::Test, protected TestWorld {
 protected:
  std::unique_ptr<frmExtras> Open() {
    return std::make_unique<frmExtras>(nullptr, world, launching);
  }

  std::vector<Text> Names() { return RowsOf(Part<GridListbox>(*Open())); }

  // Opens the documents of these names in a window of the moment's language.
  void Choose(std::initializer_list<TextView> documents) {
    const auto window = Open();
    for (const TextView document : documents) {
      Part<GridListbox>(*window).SetText(document);
      Press(*window, "btnSelect");
    }
  }
};

}  // namespace

TEST_F(Extras, ListsItsDocumentsInTheOrderOfTheirNames) {
  EXPECT_EQ(Names(),
            (std::vector<Text>{u"Cheatliste", u"Perk-Übersicht", u"Pflanzen und Kräuter",
                               u"Rufliste", u"Rüstungsliste", u"Teleportsteine", u"Zauberbuch"}));
  SpeakEnglish(u"[frmExtras]\r\nSpellbook=A spellbook\r\nbtnSelect=&Open\r\n");
  EXPECT_EQ(TextOf(*Open(), "btnSelect"), "&Open");
  EXPECT_EQ(Names(), (std::vector<Text>{u"A spellbook", u"Armor list", u"Cheat list", u"Perklist",
                                        u"Plant list", u"Reputation list", u"Teleporter stones"}));
}

TEST_F(Extras, PrefersTheLanguagesOwnCopyButNeverInGerman) {
  folder.Write("EXTRAS/cheatlist.html", "<p>de");
  folder.Write("EXTRAS/spellbook.chm", "de");
  folder.Write("LANG/English/cheatlist.html", "<p>en");
  folder.Write("LANG/English/plantlist.html", "<p>en");
  folder.Write("LANG/Deutsch/cheatlist.html", "<p>nie");
  desktop.viewers.insert("application/vnd.ms-htmlhelp");
  Choose({u"Cheatliste", u"Zauberbuch"});
  ExpectCalls({"open " + folder.Native("EXTRAS/cheatlist.html"),
               "open " + folder.Native("EXTRAS/spellbook.chm")});
  SpeakEnglish(u"");
  Choose({u"Cheat list", u"Spellbook", u"Plant list", u"Perklist"});
  ExpectCalls({"open " + folder.Native("LANG/English/cheatlist.html"),
               "open " + folder.Native("EXTRAS/spellbook.chm"),
               "open " + folder.Native("LANG/English/plantlist.html")});
}

TEST_F(Extras, OpensByDoubleClickAndEnterAndStaysOpen) {
  folder.Write("EXTRAS/cheatlist.html", "<p>de");
  const auto window = Open();
  ShowActive(*window);
  Press(*window, "btnSelect");
  ExpectCalls({});
  auto& list = Part<GridListbox>(*window);
  list.Select(1);
  Q_EMIT list.DblClick();
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  ExpectCalls({"open " + folder.Native("EXTRAS/cheatlist.html"),
               "open " + folder.Native("EXTRAS/cheatlist.html")});
  EXPECT_TRUE(window->isVisible());
}
