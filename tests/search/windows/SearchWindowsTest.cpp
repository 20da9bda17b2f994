#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Placement.h"
#include "mapdata/windows/MapView.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"
#include "platform/windows/QtText.h"
#include "search/SearchWorld.h"
#include "search/windows/SearchCommands.h"
#include "search/windows/frmFind.h"
#include "support/DialogCheck.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using QtText::ToQt;

namespace {

constexpr TextView English =
    u"[entities]\r\nHändler=Merchant\r\n[frmFind]\r\nSearchResult=Result for: %s\r\n"
    u"searchindescriptions=Search in the descriptions of everybody\r\n";

class SearchWindows : public testing::Test {
 protected:
  SearchWindows() {
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    for (const char* name : {"arvenna.jpg", "skaldor.jpg"})
      picture.save(QString::fromStdString(world_.folder.Native(name)), "PNG");
    world_.Write("arvenna.data", u"[NPC]\r\nWolf=100,200\r\nHändler Mara=500,300\r\n");
    world_.Write("skaldor.data", u"[NPC]\r\nWolf=900,700\r\nRand=1023,50\r\nUnklar=a,b\r\n");
    world_.Write("sarrakh.data", u"[NPC]\r\nOhne Bild=1,1\r\n");
    world_.Write("info.data", u"[info]\r\nWolf=Ein <b>Wolf</b>\\nallein\r\n");
    map_.SetTexts(u"  --- Prompt ---", u"Tip", u"marked", u"Prompt");
    map_.resize(1000, 700);
    map_.show();
  }

  // Types the term into the dialog of the find command and presses Enter.
  void Find(const QString& term) {
    QTimer::singleShot(0, [term] {
      auto* dialog = qobject_cast<frmFind*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      auto* text = dialog->findChild<QLineEdit*>(QStringLiteral("txtFind"));
      QTest::keyClicks(text, term);
      QTest::keyClick(text, Qt::Key_Return);
    });
    search_.miFind_Click();
  }

  // The message box that shows up during `action`; closed at once.
  template <typename Action>
  QString MessageDuring(Action action) {
    QString message;
    QTimer closer;
    closer.callOnTimeout([&message] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box)
        return;
      message = box->windowTitle() + QStringLiteral("|") + box->text();
      box->accept();
    });
    closer.start(10);
    action();
    return message;
  }

  template <typename Widget>
  Widget& Part(const char* name) {
    return *map_.findChild<Widget*>(QLatin1String(name));
  }

  // The pixel at which something stands whose left or top edge is so many twips from a position.
  [[nodiscard]] QPoint Pixel(int x, int y, int shift) const {
    const auto screen = WidgetTwips::ScreenOf(map_);
    const auto point = Twips2Pixel_Module::PointOnMap(screen, map_.MapSize(), x, y);
    return {WidgetTwips::ToPixelsX(screen, point.x - shift),
            WidgetTwips::ToPixelsY(screen, point.y - shift)};
  }

  static constexpr int ListShift = 65;

  SearchWorld world_;
  MapView map_{world_.world.cache, world_.world.language};
  Search::State state_;
  SearchCommands search_{map_, world_.world, state_};
  ctlLocation& item_ = Part<ctlLocation>("ITEM");
  NameLabel& caption_ = Part<NameLabel>("lblCaption");
  NameLabel& heading_ = Part<NameLabel>("lblMultiInfo");
};

}  // namespace

TEST_F(SearchWindows, DialogStandsAsDesignedInEveryLanguage) {
  Search::State state;
  frmFind german(nullptr, world_.world, state);
  EXPECT_EQ(german.windowTitle(), QStringLiteral("Suchen"));
  CheckDialog(german);
  world_.SpeakEnglish(English);
  state.SearchTerm = u"Wolf";
  frmFind english(nullptr, world_.world, state);
  EXPECT_EQ(english.windowTitle(), QStringLiteral("Find"));
  CheckDialog(english);
}

TEST_F(SearchWindows, DialogRemembersTermAndModeEvenWhenCancelled) {
  Search::State state;
  {
    frmFind dialog(nullptr, world_.world, state);
    dialog.show();
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("txtFind"));
    const auto* find = dialog.findChild<QPushButton*>(QStringLiteral("btnFind"));
    EXPECT_FALSE(find->isEnabled());
    QTest::keyClicks(text, QStringLiteral("  "));
    EXPECT_FALSE(find->isEnabled());
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClicks(text, QStringLiteral("W"));
    EXPECT_TRUE(find->isEnabled());
    dialog.findChild<QRadioButton*>(QStringLiteral("rbDescsOnly"))->click();
    QTest::keyClick(text, Qt::Key_Escape);
  }
  EXPECT_EQ(state.SearchMode, Search::Mode::Descriptions);
  EXPECT_EQ(state.SearchTerm, u"");
  state.SearchTerm = u"Wolf ";
  frmFind again(nullptr, world_.world, state);
  again.show();
  const auto* text = again.findChild<QLineEdit*>(QStringLiteral("txtFind"));
  EXPECT_EQ(text->selectedText(), QStringLiteral("Wolf "));
  EXPECT_EQ(again.focusWidget(), text);
  EXPECT_TRUE(again.findChild<QPushButton*>(QStringLiteral("btnFind"))->isEnabled());
  EXPECT_TRUE(again.findChild<QRadioButton*>(QStringLiteral("rbDescsOnly"))->isChecked());
}

TEST_F(SearchWindows, ShowsTheEntityFoundAndThenTheNext) {
  QSignalSpy started(&search_, &SearchCommands::SearchStarted);
  QSignalSpy displayed(&map_, &MapView::Displayed);
  Find(QStringLiteral("Wol"));
  EXPECT_EQ(started.count(), 1);
  EXPECT_EQ(displayed.count(), 1);
  EXPECT_TRUE(item_.isVisible());
  EXPECT_EQ(item_.pos(), Pixel(100, 200, 0));
  EXPECT_EQ(item_.Desc(), QStringLiteral("Wolf"));
  EXPECT_EQ(caption_.text(), QStringLiteral(" Wolf "));
  EXPECT_EQ(caption_.toolTip(), QStringLiteral("Ein <b>Wolf</b>\\nallein"));
  EXPECT_EQ(heading_.text(), QStringLiteral(" Suchergebnis für: Wol "));
  EXPECT_EQ(map_.InfoEntityName(), u"Wolf");
  search_.miFindAgain_Click();
  EXPECT_EQ(item_.pos(), Pixel(900, 700, 0));
  EXPECT_EQ(MessageDuring([this] { search_.miFindAgain_Click(); }),
            QStringLiteral("Suche beendet|Der Suchbegriff: \"Wol\" konnte nicht gefunden werden!"));
  EXPECT_EQ(item_.pos(), Pixel(900, 700, 0));
}

TEST_F(SearchWindows, GoesByTheListWhereItHoldsTheName) {
  map_.Change(world_.world.paths.Of(Region::Arvenna).picture,
              world_.world.paths.Of(Region::Arvenna).data, u"NPC");
  Find(QStringLiteral("Wolf"));
  search_.miFindAgain_Click();
  // The list is Arvenna's, the entity Skaldor's.
  EXPECT_EQ(Part<QComboBox>("cboItems").currentText(), QStringLiteral("Wolf"));
  EXPECT_FALSE(Part<QComboBox>("cboItems").isVisible());
  EXPECT_EQ(item_.pos(), Pixel(900, 700, ListShift));
  EXPECT_EQ(caption_.text(), QStringLiteral("  Wolf  "));
  EXPECT_EQ(caption_.toolTip(), QString());
  map_.resize(800, 600);
  EXPECT_EQ(item_.pos(), Pixel(900, 700, ListShift));
  EXPECT_TRUE(item_.isVisible());
}

TEST_F(SearchWindows, AResizePlacesTheEntityAgain) {
  map_.Change(world_.world.paths.Of(Region::Arvenna).picture,
              world_.world.paths.Of(Region::Arvenna).data, u"NPC");
  Find(QStringLiteral("Rand"));
  EXPECT_EQ(Part<QComboBox>("cboItems").currentIndex(), -1);
  EXPECT_LT(caption_.geometry().right(), item_.x());
  map_.resize(800, 600);
  EXPECT_TRUE(item_.isVisible());
  EXPECT_EQ(item_.pos(), Pixel(1023, 50, ListShift));
  EXPECT_EQ(caption_.text(), QStringLiteral(" Rand "));
}

TEST_F(SearchWindows, SpeaksTheLanguageOfTheMoment) {
  world_.SpeakEnglish(English);
  Find(QStringLiteral("Merchant"));
  EXPECT_EQ(item_.Desc(), QStringLiteral("Merchant Mara"));
  EXPECT_EQ(heading_.text(), QStringLiteral("Result for: Merchant "));
  EXPECT_EQ(map_.InfoEntityName(), u"Merchant Mara");
  map_.resize(800, 600);
  EXPECT_EQ(item_.pos(), Pixel(500, 300, ListShift));
  EXPECT_TRUE(item_.isVisible());
}

TEST_F(SearchWindows, DownOffersNamesThatOnlyFillTheBox) {
  world_.Write("ostrakh.data",
               u"[NPC]\r\nÄrzte-Wolf=1,1\r\nwolf=3,3\r\n*Wolf X=1,1\r\n;Wolf Y=1,1\r\n");
  Search::State state;
  frmFind dialog(nullptr, world_.world, state);
  dialog.show();
  QApplication::setActiveWindow(&dialog);
  auto& text = *dialog.findChild<QLineEdit*>(QStringLiteral("txtFind"));
  const auto* list = dialog.findChild<QCompleter*>()->popup();
  const auto press = [&](Qt::Key key) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup ? popup : static_cast<QWidget*>(&text), key);
  };
  QTest::keyClicks(&text, QStringLiteral("WÔL"));
  EXPECT_FALSE(list->isVisible()) << "typing opens nothing";
  press(Qt::Key_Down);
  ASSERT_TRUE(list->isVisible());
  QStringList offered;
  for (int row = 0; row < list->model()->rowCount(); ++row)
    offered << list->model()->index(row, 0).data().toString();
  EXPECT_EQ(offered.join(u'|').toStdString(), "Ärzte-Wolf|Wolf|wolf");
  press(Qt::Key_Escape);
  EXPECT_FALSE(list->isVisible());
  EXPECT_TRUE(dialog.isVisible()) << "Escape closes the list alone";
  EXPECT_EQ(text.text(), QStringLiteral("WÔL"));
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(text.text(), QStringLiteral("Wolf"));
  EXPECT_FALSE(list->isVisible());
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_FALSE(dialog.Result()) << "no button is pressed";
}

TEST_F(SearchWindows, TellsOfAnInvalidLinkAndEnds) {
  world_.Write("skaldor.data", u"[NPC]\r\nWolf=#,smiths\r\n");
  QSignalSpy ended(&search_, &SearchCommands::EndRequested);
  const QString message = MessageDuring([this] { Find(QStringLiteral("Wolf")); });
  EXPECT_TRUE(message.startsWith(QStringLiteral("Link Error|DB: ")));
  EXPECT_TRUE(message.endsWith(QStringLiteral("\r\n\r\nLink-Target invalid!")));
  EXPECT_EQ(ended.count(), 1);
  EXPECT_FALSE(item_.isVisible());
}

TEST_F(SearchWindows, APictureThatIsMissingLeavesTheMapEmpty) {
  Find(QStringLiteral("Ohne"));
  EXPECT_FALSE(item_.isVisible());
  EXPECT_FALSE(heading_.isVisible());
  map_.resize(800, 600);
  EXPECT_FALSE(item_.isVisible());
}
