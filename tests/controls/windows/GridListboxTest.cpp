#include "controls/windows/GridListbox.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

QTreeWidget& View(const GridListbox& list) {
  return *list.findChild<QTreeWidget*>(QStringLiteral("lvListView"));
}

QPixmap Picture() {
  QPixmap picture(16, 16);
  picture.fill(Qt::green);
  return picture;
}

std::vector<Text> AllTexts(const GridListbox& list) {
  std::vector<Text> texts;
  for (int i = 1; i <= list.ListCount(); ++i)
    texts.push_back(list.List(i));
  return texts;
}

void Fill(GridListbox& list) {
  for (const TextView text : {u" Français", u" English", u" Deutsch", u" ölig", u" Zulu", u" ?"})
    list.AddItem(text, {}, text.substr(1));
}

}  // namespace

TEST(GridListbox, SortsLikeAGermanDictionaryWithoutRegardToCase) {
  const std::vector<Text> sorted = {u" ?",        u" Deutsch", u" English",
                                    u" Français", u" ölig",    u" Zulu"};
  GridListbox before;
  before.SetSorted(true);
  Fill(before);
  EXPECT_EQ(AllTexts(before), sorted);

  GridListbox after;
  Fill(after);
  EXPECT_EQ(after.List(1), u" Français");
  after.Select(3);
  after.SetSorted(true);
  EXPECT_EQ(AllTexts(after), sorted);
  EXPECT_EQ(after.Text(), u" Deutsch");
}

TEST(GridListbox, PicturesCountOnAcrossClear) {
  GridListbox list;
  list.AddItem(u"a");
  list.AddItem(u"b", Picture());
  list.AddItem(u"c");
  EXPECT_EQ(list.Rows(1)->SmallIcon, 0);
  EXPECT_EQ(list.Rows(2)->SmallIcon, 1);
  EXPECT_EQ(list.Rows(3)->SmallIcon, 0);
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  list.AddItem(u"d", Picture());
  EXPECT_EQ(list.Rows(1)->SmallIcon, 2);
  EXPECT_FALSE(GridListbox::GetImage(list.Pictures(), 2).isNull());
  EXPECT_TRUE(GridListbox::GetImage(list.Pictures(), 0).isNull());
  EXPECT_TRUE(GridListbox::GetImage(list.Pictures(), 3).isNull());
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
  EXPECT_TRUE(list.NoHeader());
  EXPECT_FALSE(View(list).header()->isVisible());
  list.SetNoHeader(false);
  EXPECT_TRUE(View(list).header()->isVisible());
  EXPECT_EQ(View(list).headerItem()->text(0), QStringLiteral("<caption>"));
  list.SetCaption(u"Vorhandene Sprachen");
  EXPECT_EQ(View(list).headerItem()->text(0), QStringLiteral("Vorhandene Sprachen"));
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
  EXPECT_FALSE(list.Enabled());
  EXPECT_EQ(View(list).palette().color(QPalette::Disabled, QPalette::Text),
            QColor(0x80, 0x80, 0x80));
  EXPECT_EQ(View(list).palette().color(QPalette::Disabled, QPalette::Base),
            QPalette().color(QPalette::Button));
  list.SetEnabled(true);
  EXPECT_EQ(list.ForeColor(), 0x0000FFU);
  EXPECT_EQ(View(list).palette().color(QPalette::Text), QColor(Qt::red));
}

TEST(GridListbox, WhateverSelectsARowTellsOfIt) {
  GridListbox list;
  Fill(list);
  list.resize(300, 300);
  list.show();
  QSignalSpy rowClicks(&list, &GridListbox::RowClick);
  QSignalSpy clicks(&list, &GridListbox::Click);
  QSignalSpy doubleClicks(&list, &GridListbox::DblClick);
  QSignalSpy moves(&list, &GridListbox::MouseMove);
  list.Select(1);
  EXPECT_EQ(rowClicks.count(), 0);
  QTest::keyClick(&View(list), Qt::Key_Down);
  ASSERT_EQ(rowClicks.count(), 1);
  EXPECT_EQ(rowClicks.last().front().toInt(), 2);
  const auto middleOf = [&](int row) {
    return View(list).visualItemRect(View(list).topLevelItem(row - 1)).center();
  };
  QWidget* const rows = View(list).viewport();
  QTest::mouseClick(rows, Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(rowClicks.last().front().toInt(), 3);
  EXPECT_EQ(clicks.count(), 1);
  QTest::mouseDClick(rows, Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(doubleClicks.count(), 1);
  QTest::mouseClick(rows, Qt::RightButton, {}, middleOf(1));
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(rowClicks.last().front().toInt(), 1);
  QTest::mousePress(rows, Qt::LeftButton, {}, middleOf(2));
  QMouseEvent drag(QEvent::MouseMove, middleOf(3), rows->mapToGlobal(middleOf(3)), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(rows, &drag);
  QTest::mouseRelease(rows, Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(rowClicks.last().front().toInt(), list.ListIndex()) << "what is told is what is chosen";
  // Where no row is.
  const auto told = rowClicks.count();
  const auto clicked = clicks.count();
  const QPoint below(100, 250);
  QTest::mouseClick(rows, Qt::LeftButton, {}, below);
  QTest::mouseDClick(rows, Qt::LeftButton, {}, below);
  EXPECT_EQ(rowClicks.count(), told);
  EXPECT_GT(clicks.count(), clicked);
  EXPECT_EQ(doubleClicks.count(), 2);
  QTest::mouseMove(rows, below + QPoint(5, 5));
  EXPECT_TRUE(QTest::qWaitFor([&] { return moves.count() > 0; })) << "without a button held";
}

TEST(GridListbox, TypedLettersFindRowsThatBeginWithABlank) {
  GridListbox list;
  Fill(list);
  list.show();
  QTest::keyClicks(&View(list), QStringLiteral("z"));
  EXPECT_EQ(list.Text(), u" Zulu");
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(&View(list), QStringLiteral("en"));
  EXPECT_EQ(list.Text(), u" English");
}

TEST(GridListbox, TheHostMayChangeOrSwallowKeys) {
  GridListbox list;
  Fill(list);
  list.show();
  list.Select(1);
  const auto turnAround = QObject::connect(&list, &GridListbox::KeyDown, [](int& KeyCode, int) {
    KeyCode = KeyCode == Qt::Key_Up ? int{Qt::Key_Down} : 0;
  });
  QTest::keyClick(&View(list), Qt::Key_Up);
  EXPECT_EQ(list.ListIndex(), 2);
  QTest::keyClick(&View(list), Qt::Key_Down);
  EXPECT_EQ(list.ListIndex(), 2);
  QObject::disconnect(turnAround);
  QObject::connect(&list, &GridListbox::KeyPress, [](int& KeyAscii) { KeyAscii = u'z'; });
  QTest::keyClicks(&View(list), QStringLiteral("e"));
  EXPECT_EQ(list.Text(), u" Zulu");
}
