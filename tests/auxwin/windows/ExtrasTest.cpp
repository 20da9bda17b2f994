#include "auxwin/windows/frmExtras.h"

#include "auxwin/windows/WindowFixture.h"
#include "controls/windows/GridListbox.h"
#include "support/DialogCheck.h"

#include <QPushButton>
#include <QTest>

namespace {

constexpr auto HelpFiles = "application/vnd.ms-htmlhelp";

class Extras : public WindowFixture {
 protected:
  std::unique_ptr<frmExtras> Open() {
    return std::make_unique<frmExtras>(nullptr, world, launching);
  }

  static GridListbox& List(const frmExtras& window) {
    return *window.findChild<GridListbox*>(QStringLiteral("glbExtras"));
  }

  static std::vector<Text> Names(const frmExtras& window) {
    std::vector<Text> names;
    for (int i = 1; i <= List(window).ListCount(); ++i)
      names.push_back(List(window).List(i));
    return names;
  }

  static void Select(frmExtras& window, TextView name) {
    List(window).SetText(name);
    window.findChild<QPushButton*>(QStringLiteral("btnSelect"))->click();
  }
};

}  // namespace

TEST_F(Extras, ListsItsDocumentsInTheOrderOfTheirNames) {
  const auto german = Open();
  EXPECT_EQ(Names(*german),
            (std::vector<Text>{u"Cheatliste", u"Perk-Übersicht", u"Pflanzen und Kräuter",
                               u"Rufliste", u"Rüstungsliste", u"Teleportsteine", u"Zauberbuch"}));
  UseEnglish(u"[frmExtras]\r\nSpellbook=A spellbook\r\nbtnSelect=&Open\r\n");
  const auto english = Open();
  EXPECT_EQ(Names(*english),
            (std::vector<Text>{u"A spellbook", u"Armor list", u"Cheat list", u"Perklist",
                               u"Plant list", u"Reputation list", u"Teleporter stones"}));
  EXPECT_EQ(english->findChild<QPushButton*>(QStringLiteral("btnSelect"))->text(),
            QStringLiteral("&Open"));
}

TEST_F(Extras, PrefersTheLanguagesOwnCopyButNeverInGerman) {
  folder.Write("EXTRAS/cheatlist.html", "<p>de");
  folder.Write("EXTRAS/spellbook.chm", "de");
  folder.Write("LANG/English/cheatlist.html", "<p>en");
  folder.Write("LANG/Deutsch/cheatlist.html", "<p>nie");
  desktop.viewers.insert(HelpFiles);
  const auto german = Open();
  Select(*german, u"Cheatliste");
  Select(*german, u"Zauberbuch");
  ExpectCalls({"open " + folder.Native("EXTRAS/cheatlist.html"),
               "open " + folder.Native("EXTRAS/spellbook.chm")});
  UseEnglish(u"");
  const auto english = Open();
  Select(*english, u"Cheat list");
  Select(*english, u"Spellbook");
  ExpectCalls({"open " + folder.Native("LANG/English/cheatlist.html"),
               "open " + folder.Native("EXTRAS/spellbook.chm")});
}

TEST_F(Extras, HelpFilesAreTheirPagesOnAPlainDesktop) {
  folder.Write("EXTRAS/armorlist.html", "<p>de");
  folder.Write("LANG/English/plantlist.html", "<p>en");
  UseEnglish(u"");
  desktop.viewers.clear();
  const auto window = Open();
  Select(*window, u"Armor list");
  Select(*window, u"Plant list");
  Select(*window, u"Perklist");
  ExpectCalls({"page " + folder.Native("EXTRAS/armorlist.html"),
               "page " + folder.Native("LANG/English/plantlist.html")});
}

TEST_F(Extras, OpensByDoubleClickAndEnterAndStaysOpen) {
  folder.Write("EXTRAS/cheatlist.html", "<p>de");
  const auto window = Open();
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  window->findChild<QPushButton*>(QStringLiteral("btnSelect"))->click();
  ExpectCalls({});
  List(*window).Select(1);
  Q_EMIT List(*window).DblClick();
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  ExpectCalls({"open " + folder.Native("EXTRAS/cheatlist.html"),
               "open " + folder.Native("EXTRAS/cheatlist.html")});
  EXPECT_TRUE(window->isVisible());
}

TEST_F(Extras, KeepsWhatEveryDialogPromises) {
  CheckDialog(*Open());
  UseEnglish(
      u"[frmExtras]\r\ncaption=Suppléments\r\nbtnSelect=&Sélectionner\r\nbtnCancel=&Annuler\r\n");
  CheckDialog(*Open());
}
