#include "app/windows/MenuBar.h"

#include "i18n/LanguageList.h"
#include "platform/NativePath.h"
#include "platform/windows/QtText.h"
#include "support/TemporaryFolder.h"

#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using QtText::FromQt;

QStringList Names(const QList<QAction*>& actions) {
  QStringList names;
  for (const QAction* action : actions)
    names << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
  return names;
}

QAction* Find(MenuBar& bar, const char* name) {
  return bar.findChild<QAction*>(QLatin1String(name));
}

}  // namespace

TEST(MenuBar, StandsInOrderWithDividers) {
  MenuBar bar;
  EXPECT_EQ(Names(bar.actions()).join(QLatin1Char(' ')).toStdString(),
            "mnuFile mnuArvenna mnuSkaldor mnuSarrakh sep13 mnuOstrakh mnuancestors sep40 mnuFind "
            "mnuExtras mnuHelp");
  EXPECT_FALSE(Find(bar, "sep13")->isEnabled());
  EXPECT_EQ(Find(bar, "sep40")->text().toStdString(), "|");
  const auto* sarrakh = bar.findChild<QMenu*>(QStringLiteral("mnuSarrakh"));
  EXPECT_EQ(Names(sarrakh->actions()).join(QLatin1Char(' ')).toStdString(),
            "mnuSarrakhPersons - mnuSarrakhAnimalsAndCreatures - mnuObjects - "
            "mnuSarrakhPlantsAndHerbs - mnuSarrakhPlacesAndLocations - miSarrakhPerks");
  const auto* orks = bar.findChild<QMenu*>(QStringLiteral("mnuArvennaOrks"));
  EXPECT_EQ(orks->actions().size(), 4);
}

TEST(MenuBar, DisabledAndHiddenCommandsDontAnswerTheirShortcuts) {
  QWidget window;
  MenuBar bar(&window);
  std::vector<Action> chosen;
  QObject::connect(&bar, &MenuBar::CommandChosen,
                   [&](const MenuRow& row) { chosen.push_back(row.action); });
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto pressAll = [&] {
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_F3);
  };
  bar.SetShown(u"mnuLanguage", false);
  pressAll();
  EXPECT_EQ(chosen, std::vector<Action>());
  bar.SetEnabled(u"miPrint", true);
  bar.SetEnabled(u"miFindAgain", true);
  bar.SetShown(u"mnuLanguage", true);
  pressAll();
  EXPECT_EQ(chosen, (std::vector{Action::Print, Action::Language, Action::FindAgain}));
}

TEST(MenuBar, HeadingFollowsTheCaptionsShown) {
  MenuBar bar;
  const auto rows = MenuTable::Rows();
  const auto& teachers = *std::find_if(rows.begin(), rows.end(), [](const MenuRow& row) {
    return row.name == u"miSkaldorTeachers";
  });
  EXPECT_EQ(bar.Heading(teachers), u"&Skaldor: &Lehrer");
  std::vector<Text> english;
  for (const TextRow& caption : MenuTable::Captions())
    english.emplace_back(caption.english);
  bar.SetCaptions(english);
  EXPECT_EQ(bar.Heading(teachers), u"Skaldor: Teachers");
  EXPECT_EQ(FromQt(Find(bar, "miAbout")->text()), u"About");
  EXPECT_EQ(FromQt(Find(bar, "sep40")->text()), u"|");
  bar.SetCaptions({});
  EXPECT_EQ(FromQt(Find(bar, "miAbout")->text()), u"About");
}

TEST(MenuBar, ASwitchThroughTheWorldsLanguagesLeavesNothingBehind) {
  const TemporaryFolder folder;
  const Text root = NativePath::FromBytes(ORVALIS_SOURCES "/world/LANG/");
  const auto rows = MenuTable::Captions();
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  LOCAL::Language language(ProgramPaths{});
  MenuBar bar;
  for (const TextView name : {u"English", u"Français", u"Deutsch"}) {
    const bool german = name == LOCAL::German;
    const Text file = german ? Text(LOCAL::BuiltIn) : LOCAL::FileOfLanguage(root, name, u".lng");
    bar.SetCaptions(
        LanguageList::Select(files, language, folder.Path(u"orvalis.ini"), file, rows).menus);
    for (const MenuRow& row : MenuTable::Rows()) {
      const Text shown = FromQt(bar.findChild<QAction*>(QtText::ToQt(row.name))->text());
      const Text expected = row.kind == MenuRow::Kind::BarDivider ? u"|"
                            : german                              ? Text(row.caption.german)
                                     : files.IniRead(file, u"menus", row.caption.key, u"missing");
      EXPECT_EQ(shown, expected);
    }
  }
  EXPECT_EQ(folder.Read("orvalis.ini"), "[general]\r\nlanguage=Deutsch\r\n");
}
