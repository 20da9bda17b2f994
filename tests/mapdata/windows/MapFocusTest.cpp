#include "mapdata/windows/MapFocus.h"

#include "mapdata/windows/FocusRing.h"
#include "mapdata/windows/ctlLocation.h"
#include "support/MapFixture.h"

#include <QAccessible>
#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QToolTip>

namespace {

// A map of one row of markers, with a disabled slot between them and one marker below.
class MapFocusTest : public MapFixture {
 protected:
  MapFocusTest()
      : MapFixture("[t]\r\nWolf=200,300,*\r\n;Beta=300,300\r\nAmsel=400,300\r\nGrab=400,500\r\n") {}

  void EnterMap() { QTest::keyClick(&view, Qt::Key_Tab); }

  static void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

  static std::string Focus() {
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName().toStdString() : "nothing";
  }

  bool IsShown(const char* name) { return At(name).isVisible(); }

  FocusRing& Ring() { return Part<FocusRing>(view); }
};

}  // namespace

TEST_F(MapFocusTest, IsOneTabStopAndWalksOverWhatIsShown) {
  Multi();
  EnterMap();
  std::string way = Focus();
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
                            Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_PageDown}) {
    Press(key);
    way += ' ' + Focus();
  }
  EXPECT_EQ(way, "DOT(0) DOT(2) DOT(2) DOT(3) DOT(0) DOT(3) DOT(2) DOT(0) DOT(0) DOT(2)");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "DOT(2)") << "nothing else takes the focus";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Focus(), "DOT(2)");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Focus(), "nothing");
  EnterMap();
  EXPECT_EQ(Focus(), "DOT(2)") << "where it was left";
  QSignalSpy asked(&view, &MapView::InfoRequested);
  Press(Qt::Key_Return);
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(view.InfoEntityName(), u"Amsel");
}

TEST_F(MapFocusTest, DoesWhatRestingThePointerDoes) {
  Multi(true);
  EnterMap();
  EXPECT_TRUE(IsShown("lblDOT(0)"));
  EXPECT_EQ(At("lblDOT(0)").toolTip(), u"a < b und c > d...");
  EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text() == u"a < b und c > d..."; }));
  Press(Qt::Key_Right);
  EXPECT_FALSE(IsShown("lblDOT(0)"));
  EXPECT_TRUE(IsShown("lblDOT(2)"));
}

TEST_F(MapFocusTest, ComingBackToTheWindowTakesNoMarkerThatHadNoFocus) {
  QWidget other;
  other.show();
  const auto comeBack = [&] {
    QApplication::setActiveWindow(&other);
    QApplication::setActiveWindow(&view);
  };
  Multi(true);
  comeBack();
  EXPECT_EQ(Focus(), "nothing");
  EXPECT_FALSE(IsShown("lblDOT(0)"));
  EXPECT_FALSE(Ring().isVisible());
  EnterMap();
  Press(Qt::Key_Right);
  comeBack();
  EXPECT_EQ(Focus(), "DOT(2)") << "as it was left";
  EXPECT_TRUE(Ring().isVisible());
  Press(Qt::Key_Escape);
  comeBack();
  EXPECT_EQ(Focus(), "nothing");
  List();
  Multi();
  comeBack();
  EXPECT_FALSE(Ring().isVisible()) << "the list had the focus and is hidden";
}

TEST_F(MapFocusTest, RingsTheMarkerOnlyWhileTheMapHasTheFocus) {
  Multi();
  EXPECT_FALSE(Ring().isVisible());
  EnterMap();
  EXPECT_TRUE(Ring().isVisible());
  EXPECT_EQ(Ring().geometry().center(), At("DOT(0)").geometry().center());
  view.resize(1200, 800);
  EXPECT_EQ(Focus(), "DOT(0)") << "a resize draws the markers anew";
  EXPECT_EQ(Ring().geometry().center(), At("DOT(0)").geometry().center());
  view.Focus().SetRingLeftOut(true);
  EXPECT_FALSE(Ring().isVisible());
  view.Focus().SetRingLeftOut(false);
  EXPECT_TRUE(Ring().isVisible());
  Multi();
  EXPECT_FALSE(Ring().isVisible()) << "another display begins without";
}

TEST_F(MapFocusTest, EscapeGoesFromTheSingleMarkerToTheList) {
  List();
  Press(Qt::Key_A);
  EXPECT_EQ(Part<ctlLocation>(view, "ITEM").Desc(), u"Amsel") << "typed letters pick";
  std::string way;
  for (int i = 0; i < 3; ++i) {
    Press(Qt::Key_Tab);
    way += Focus() + ' ';
  }
  EXPECT_EQ(way, "btnInfo ITEM cboItems ");
  QSignalSpy asked(&view, &MapView::InfoRequested);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
  Press(Qt::Key_Right);
  Press(Qt::Key_Enter);
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(view.InfoEntityName(), u"Amsel");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Focus(), "cboItems");
}

TEST_F(MapFocusTest, AHiddenListHasNoKeyboardWhenAMenuCloses) {
  QMainWindow window;
  QMenu menu(u"&Menu"_s);
  window.menuBar()->addMenu(&menu);
  QAction* const list = menu.addAction(u"&List"_s, [this] { List(); });
  menu.addAction(u"&Markers"_s, [this] { Multi(); });
  menu.addAction(u"&Both"_s, [this, list] {
    list->trigger();
    Multi();
  });
  auto& items = Part<QComboBox>(view, "cboItems");
  window.setCentralWidget(&view);
  window.show();
  QApplication::setActiveWindow(&window);
  const auto choose = [&](Qt::Key key) {
    window.menuBar()->setActiveAction(menu.menuAction());
    QTest::keyClick(&menu, key);
  };
  for (const auto& way : {std::vector{Qt::Key_B}, {Qt::Key_L, Qt::Key_M}, {Qt::Key_L, Qt::Key_B}}) {
    for (const Qt::Key key : way)
      choose(key);
    EXPECT_EQ(window.focusWidget(), nullptr);
    items.setCurrentIndex(1);
    Q_EMIT items.activated(1);
    EXPECT_FALSE(IsShown("ITEM"));
  }
  view.setParent(nullptr);
}

TEST_F(MapFocusTest, IsAListOfTheMarkersShown) {
  Multi();
  const auto of = [this](const char* name) {
    return QAccessible::queryAccessibleInterface(&At(name));
  };
  QAccessibleInterface* const list = of("imgMap");
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_EQ(list->text(QAccessible::Name), u"Arvenna: Lehrer");
  ASSERT_EQ(list->childCount(), 3);
  QAccessibleInterface* const wolf = list->child(0);
  EXPECT_EQ(wolf->role(), QAccessible::ListItem);
  EXPECT_EQ(wolf->text(QAccessible::Name), u"Wolf");
  EXPECT_EQ(wolf->text(QAccessible::Description), u"hervorgehoben. a < b und c > d...");
  EXPECT_EQ(wolf->parent(), list);
  EXPECT_EQ(list->indexOfChild(of("DOT(3)")), 2);
  EXPECT_EQ(list->indexOfChild(of("DOT(1)")), -1) << "disabled";
  QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(&view);
  EXPECT_EQ(whole->childCount(), 2) << "heading and list";
  EXPECT_EQ(whole->indexOfChild(list), 1);
  QSignalSpy asked(&view, &MapView::InfoRequested);
  wolf->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(asked.wait());
  view.ClearUI();
  EXPECT_EQ(list->childCount(), 0);
}
