#include "controls/windows/GridListbox.h"

#include "support/Windows.h"

#include <QHeaderView>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

QTreeWidget& View(const GridListbox& list) {
  return Part<QTreeWidget>(list, "lvListView");
}

QPixmap Picture(int width = 16, int height = 16) {
  QPixmap picture(width, height);
  picture.fill(Qt::green);
  return picture;
}

// Languages as their dialog lists them, on the screen.
class Languages : public GridListbox {
 public:
  Languages() {
    for (const TextView text : {u" Français", u" English", u" Deutsch", u" ölig", u" Zulu", u" ?"})
      AddItem(text, {}, text.substr(1));
    resize(300, 300);
    show();
  }
};

}  // namespace

TEST(GridListbox, SortsLikeAGermanDictionaryWithoutRegardToCase) {
  const std::vector<Text> sorted = {u" ?",        u" Deutsch", u" English",
                                    u" Français", u" ölig",    u" Zulu"};
  Languages list;
  list.Select(3);
  list.SetSorted(true);
  EXPECT_EQ(RowsOf(list), sorted);
  EXPECT_EQ(list.Text(), u" Deutsch");
  list.RemoveItem(2);
  list.AddItem(u" Deutsch");
  EXPECT_EQ(RowsOf(list), sorted);
}

TEST(GridListbox, SortingSelectsNothing) {
  Languages list;
  View(list).selectionModel()->setCurrentIndex(View(list).model()->index(1, 0),
                                               QItemSelectionModel::NoUpdate);
  list.SetSorted(true);
  EXPECT_EQ(list.ListIndex(), 0);
}

TEST(GridListbox, ItsStateIsItsPropertiesAndTwoCantBeSet) {
  Languages list;
  list.Select(2);
  EXPECT_EQ(GridListbox::SetListCount(0), 382);
  EXPECT_EQ(GridListbox::SetListIndex(1), 382);
  EXPECT_FALSE(list.setProperty("ListIndex", 1));
  EXPECT_FALSE(list.setProperty("ListCount", 0));
  EXPECT_EQ(list.property("ListIndex"), 2);
  EXPECT_EQ(list.property("ListCount"), 6);

  const struct {
    const char* name;
    QVariant standard;
    QVariant other;
  } table[] = {{"ForeColor", 0x80000008U, 0xFFU}, {"BackColor", 0x80000005U, 0xFF00U},
               {"Sorted", false, true},           {"Enabled", true, false},
               {"NoHeader", true, false},         {"Caption", u"<caption>"_s, u"Sprachen"_s}};

  for (const auto& row : table) {
    EXPECT_EQ(list.property(row.name), row.standard) << row.name;
    EXPECT_TRUE(list.setProperty(row.name, row.other)) << row.name;
    EXPECT_EQ(list.property(row.name), row.other) << row.name;
    const QMetaObject& meta = GridListbox::staticMetaObject;
    EXPECT_TRUE(meta.property(meta.indexOfProperty(row.name)).reset(&list)) << row.name;
    EXPECT_EQ(list.property(row.name), row.standard) << row.name;
  }
}

TEST(GridListbox, PicturesCountOnAcrossClearAndHaveOneSize) {
  GridListbox list;
  list.AddItem(u"a");
  list.AddItem(u"b", Picture(64, 48));
  list.AddItem(u"c");
  EXPECT_EQ(list.Rows(1)->SmallIcon, 0);
  EXPECT_EQ(list.Rows(2)->SmallIcon, 1);
  EXPECT_EQ(list.Rows(3)->SmallIcon, 0);
  list.Clear();
  list.AddItem(u"d", Picture());
  EXPECT_EQ(list.Rows(1)->SmallIcon, 2);
  EXPECT_FALSE(GridListbox::GetImage(list.Pictures(), 2).isNull());
  EXPECT_TRUE(GridListbox::GetImage(list.Pictures(), 0).isNull());
  EXPECT_TRUE(GridListbox::GetImage(list.Pictures(), 3).isNull());
  ASSERT_EQ(list.Pictures().size(), 2U);
  EXPECT_EQ(list.Pictures()[0].Key, u"Key 1");
  EXPECT_EQ(list.Pictures()[1].Key, u"Key 2");
  for (const auto& picture : list.Pictures()) {
    EXPECT_EQ(picture.Pixmap.deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_EQ(picture.Pixmap.devicePixelRatio(), list.devicePixelRatio());
  }
}

TEST(GridListbox, NumbersThatNameNoRowArePassedOver) {
  GridListbox list;
  list.AddItem(u"eins", {}, u"tag");
  list.AddItem(u"zwei");
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_FALSE(list.Rows(list.ListIndex()).has_value());
  EXPECT_EQ(list.Rows(1)->Tag, u"tag");
  EXPECT_EQ(list.List(0), u"eins");
  EXPECT_EQ(list.List(3), u"");
  EXPECT_EQ(list.List(-1), u"");
  list.RemoveItem(0);
  list.RemoveItem(3);
  EXPECT_EQ(list.ListCount(), 2);
  list.RemoveItem(1);
  EXPECT_EQ(list.List(1), u"zwei");
}

TEST(GridListbox, TextSelectsTheFirstRowOfThatWord) {
  GridListbox list;
  for (const TextView text : {u"Rufliste", u"Ruf der Wölfe", u"ruf", u"Zauberbuch"})
    list.AddItem(text);
  list.SetText(u"RUF");
  EXPECT_EQ(list.ListIndex(), 2);
  list.SetText(u"Zauber");
  EXPECT_EQ(list.ListIndex(), 2);
  list.SetText(u"zauberbuch");
  EXPECT_EQ(list.ListIndex(), 4);
}

TEST(GridListbox, HeaderIsHiddenUntilAskedForAndFollowsItsCaption) {
  GridListbox list;
  list.resize(289, 305);
  list.show();
  EXPECT_FALSE(View(list).header()->isVisible());
  list.SetNoHeader(false);
  EXPECT_TRUE(View(list).header()->isVisible());
  list.SetCaption(u"Vorhandene Sprachen");
  EXPECT_EQ(View(list).headerItem()->text(0), u"Vorhandene Sprachen"_s);
  EXPECT_EQ(View(list).geometry(), list.rect());
  EXPECT_LT(View(list).columnWidth(0), list.width());
}

TEST(GridListbox, GreysAndRestoresTheColoursOfTheLastShowing) {
  GridListbox list;
  list.SetForeColor(0x0000FF);
  list.show();
  list.SetForeColor(0xFF0000);
  EXPECT_EQ(View(list).palette().color(QPalette::Text), QColor(Qt::blue));
  list.SetEnabled(false);
  EXPECT_EQ(View(list).palette().color(QPalette::Disabled, QPalette::Text),
            QColor(0x80, 0x80, 0x80));
  EXPECT_EQ(View(list).palette().color(QPalette::Disabled, QPalette::Base),
            QPalette().color(QPalette::Button));
  list.SetEnabled(true);
  EXPECT_EQ(list.ForeColor(), 0x0000FFU);
  EXPECT_EQ(View(list).palette().color(QPalette::Text), QColor(Qt::red));
  list.SetBackColor(0x8000000D);
  EXPECT_EQ(View(list).palette().color(QPalette::Base), QPalette().color(QPalette::Highlight))
      << "the desktop's own";
}

TEST(GridListbox, WhateverSelectsARowTellsOfIt) {
  Languages list;
  int reached = 0;
  QObject::connect(&list, &GridListbox::RowClick,
                   [&reached](const GridListbox::Row& Item) { reached = Item.Index; });
  QSignalSpy rowClicks(&list, &GridListbox::RowClick);
  QSignalSpy clicks(&list, &GridListbox::Click);
  QSignalSpy doubleClicks(&list, &GridListbox::DblClick);
  QSignalSpy moves(&list, &GridListbox::MouseMove);
  list.Select(1);
  EXPECT_EQ(rowClicks.count(), 0);
  QTest::keyClick(&View(list), Qt::Key_Down);
  EXPECT_EQ(rowClicks.count(), 1);
  EXPECT_EQ(reached, 2);
  const auto middleOf = [&](int row) {
    return View(list).visualItemRect(View(list).topLevelItem(row - 1)).center();
  };
  QWidget* const rows = View(list).viewport();
  QTest::mouseClick(rows, Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(reached, 3);
  EXPECT_EQ(clicks.count(), 1);
  QTest::mouseDClick(rows, Qt::LeftButton, {}, middleOf(3));
  QTest::mouseRelease(rows, Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(doubleClicks.count(), 1);
  EXPECT_EQ(clicks.count(), 1) << "one of the two presses of a double click";
  QTest::mouseClick(rows, Qt::RightButton, {}, middleOf(1));
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(reached, 1);
  QTest::mousePress(rows, Qt::LeftButton, {}, middleOf(2));
  QMouseEvent drag(QEvent::MouseMove, middleOf(3), rows->mapToGlobal(middleOf(3)), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(rows, &drag);
  QTest::mouseRelease(rows, Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(reached, list.ListIndex()) << "what is told is what is chosen";
  // Where no row is.
  const auto told = rowClicks.count();
  const auto clicked = clicks.count();
  const QPoint below(100, 250);
  QTest::mouseClick(rows, Qt::LeftButton, {}, below);
  QTest::mouseDClick(rows, Qt::LeftButton, {}, below);
  EXPECT_EQ(rowClicks.count(), told);
  EXPECT_GT(clicks.count(), clicked);
  EXPECT_EQ(doubleClicks.count(), 2);
  moves.clear();
  QTest::mouseMove(rows, below + QPoint(5, 5));
  EXPECT_TRUE(QTest::qWaitFor([&] { return moves.count() > 0; })) << "without a button held";
}

TEST(GridListbox, TypedLettersFindRowsThatBeginWithABlank) {
  Languages list;
  QTest::keyClicks(&View(list), u"z"_s);
  EXPECT_EQ(list.Text(), u" Zulu");
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(&View(list), u"en"_s);
  EXPECT_EQ(list.Text(), u" English");
}

TEST(GridListbox, TheHostMayChangeOrSwallowKeys) {
  constexpr int16_t up = 38;
  constexpr int16_t down = 40;
  Languages list;
  list.Select(1);
  const auto turnAround = QObject::connect(
      &list, &GridListbox::KeyDown,
      [](int16_t& KeyCode, int16_t&) { KeyCode = KeyCode == up ? down : int16_t{0}; });
  QTest::keyClick(&View(list), Qt::Key_Up);
  EXPECT_EQ(list.ListIndex(), 2);
  QTest::keyClick(&View(list), Qt::Key_Down);
  EXPECT_EQ(list.ListIndex(), 2);
  QObject::disconnect(turnAround);
  QObject::connect(&list, &GridListbox::KeyPress, [](int16_t& KeyAscii) { KeyAscii = u'z'; });
  QTest::keyClicks(&View(list), u"e"_s);
  EXPECT_EQ(list.Text(), u" Zulu");
}

TEST(GridListbox, KeysHaveTheirClassicCodes) {
  GridListbox list;
  list.show();
  std::vector<int> codes;
  std::vector<int> characters;
  QObject::connect(&list, &GridListbox::KeyDown,
                   [&codes](int16_t& KeyCode, int16_t&) { codes.push_back(KeyCode); });
  QObject::connect(&list, &GridListbox::KeyPress,
                   [&characters](int16_t& KeyAscii) { characters.push_back(KeyAscii); });
  for (const auto key :
       {Qt::Key_Return, Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home,
        Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_A})
    QTest::keyClick(&View(list), key);
  // A keyboard gives it a character too.
  QTest::sendKeyEvent(QTest::Click, &View(list), Qt::Key_Delete, u"\x7F"_s, {});
  EXPECT_EQ(codes, (std::vector<int>{13, 27, 33, 34, 35, 36, 37, 38, 39, 40, 65, 46}));
  EXPECT_EQ(characters, (std::vector<int>{13, 27, 'a'})) << "none for Delete";
}

TEST(GridListbox, MouseEventsTellTwips) {
  GridListbox list;
  list.resize(300, 300);
  list.show();
  float twips = 0;
  QObject::connect(&list, &GridListbox::MouseDown,
                   [&twips](int16_t&, int16_t&, float& X, float&) { twips = X; });
  QTest::mouseClick(View(list).viewport(), Qt::LeftButton, {}, QPoint(100, 50));
  EXPECT_FLOAT_EQ(twips, static_cast<float>(100 * 1440.0 / list.logicalDpiX()));
}
