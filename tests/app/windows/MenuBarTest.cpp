#include "app/windows/MenuBar.h"

#include "platform/windows/QtText.h"
#include "support/Windows.h"

#include <QMenu>

#include <algorithm>

#include <gtest/gtest.h>

namespace {

std::string NamesOf(const QWidget& menu) {
  QStringList names;
  for (const QAction* action : menu.actions())
    names << (action->isSeparator() ? u"-"_s : action->objectName());
  return names.join(u' ').toStdString();
}

}  // namespace

TEST(MenuBar, StandsInOrderWithDividers) {
  MenuBar bar;
  EXPECT_EQ(NamesOf(bar),
            "mnuFile mnuArvenna mnuSkaldor mnuSarrakh sep13 mnuOstrakh mnuancestors sep40 mnuFind "
            "mnuExtras mnuHelp");
  EXPECT_FALSE(Part<QAction>(bar, "sep13").isEnabled());
  EXPECT_EQ(NamesOf(Part<QMenu>(bar, "mnuSarrakh")),
            "mnuSarrakhPersons - mnuSarrakhAnimalsAndCreatures - mnuObjects - "
            "mnuSarrakhPlantsAndHerbs - mnuSarrakhPlacesAndLocations - miSarrakhPerks");
}

TEST(MenuBar, DisabledAndHiddenCommandsDontAnswerTheirShortcuts) {
  QWidget window;
  MenuBar bar(&window);
  std::vector<Action> chosen;
  QObject::connect(&bar, &MenuBar::CommandChosen,
                   [&](const MenuRow& row) { chosen.push_back(row.action); });
  ShowActive(window);
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
  const auto& teachers = *std::ranges::find(rows, u"miSkaldorTeachers", &MenuRow::name);
  EXPECT_EQ(bar.Heading(teachers), u"&Skaldor: &Lehrer");
  std::vector<Text> english;
  for (const TextRow& caption : MenuTable::Captions())
    english.emplace_back(caption.english);
  bar.SetCaptions(english);
  EXPECT_EQ(bar.Heading(teachers), u"Skaldor: Teachers");
  bar.SetCaptions({});
  for (const MenuRow& row : rows) {
    const bool divider = row.kind == MenuRow::Kind::BarDivider;
    const auto* action = bar.findChild<QAction*>(QtText::ToQt(row.name));
    EXPECT_EQ(QtText::FromQt(action->text()), divider ? u"|" : row.caption.english);
  }
}
