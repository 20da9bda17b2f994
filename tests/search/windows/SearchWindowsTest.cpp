#include "mapdata/windows/ctlLocation.h"
#include "search/windows/SearchCommands.h"
#include "search/windows/frmFind.h"
#include "support/MapFixture.h"
#include "support/TestWorld.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QRadioButton>

namespace {

using Names = std::vector<std::string>;

class SearchWindows : public testing::Test, protected TestWorld {
 protected:
  SearchWindows() {
    for (const char* name : {"arvenna.jpg", "skaldor.jpg"})
      Paint(folder, name, Qt::darkGreen);
    Write("arvenna.data", u"[NPC]\r\nWolf=100,200\r\nHändler Mara=500,300\r\n");
    Write("skaldor.data", u"[NPC]\r\nWolf=900,700\r\nRand=1023,50\r\nUnklar=a,b\r\n");
    Write("sarrakh.data", u"[NPC]\r\nOhne Bild=1,1\r\n");
    Write("info.data", u"[info]\r\nWolf=Ein <b>Wolf</b>\\nallein\r\n");
    map_.SetTexts(u"  --- Prompt ---", u"Tip", u"marked", u"Prompt");
    map_.resize(1000, 700);
    map_.show();
  }

  // Types the term into the dialog of the find command and presses Enter.
  void Find(const QString& term) {
    EXPECT_EQ(Opened([this] { search_.miFind_Click(); },
                     [&term](QWidget& dialog) {
                       QTest::keyClicks(&Part(dialog, "txtFind"), term);
                       QTest::keyClick(&Part(dialog, "txtFind"), Qt::Key_Return);
                     }),
              Names{"frmFind"});
  }

  // The text of the name or heading on the map.
  std::string Label(const char* name) { return TextOf(map_, name); }

  // The list of Arvenna's persons instead of an empty map.
  void ShowList() {
    const auto& region = world.paths.Of(Region::Arvenna);
    map_.Change(region.picture, region.data, u"NPC");
  }

  MapView map_{world.cache, world.language};
  Search::State state_;
  SearchCommands search_{map_, world, state_};
  ctlLocation& item_ = Part<ctlLocation>(map_, "ITEM");
  QWidget& caption_ = Part(map_, "lblCaption");
  QComboBox& items_ = Part<QComboBox>(map_, "cboItems");
};

}  // namespace

TEST_F(SearchWindows, DialogRemembersTermAndModeEvenWhenCancelled) {
  {
    frmFind dialog(nullptr, world, state_);
    dialog.show();
    auto& text = Part(dialog, "txtFind");
    const auto& find = Part(dialog, "btnFind");
    EXPECT_FALSE(find.isEnabled());
    QTest::keyClicks(&text, u"  "_s);
    EXPECT_FALSE(find.isEnabled());
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClicks(&text, u"W"_s);
    EXPECT_TRUE(find.isEnabled());
    Part<QRadioButton>(dialog, "rbDescsOnly").click();
    QTest::keyClick(&text, Qt::Key_Escape);
  }
  EXPECT_EQ(state_.SearchMode, Search::Mode::Descriptions);
  EXPECT_EQ(state_.SearchTerm, u"");
  state_.SearchTerm = u"Wolf ";
  frmFind again(nullptr, world, state_);
  again.show();
  const auto& text = Part<QLineEdit>(again, "txtFind");
  EXPECT_EQ(text.selectedText(), u"Wolf "_s);
  EXPECT_EQ(again.focusWidget(), &text);
  EXPECT_TRUE(Part(again, "btnFind").isEnabled());
  EXPECT_TRUE(Part<QRadioButton>(again, "rbDescsOnly").isChecked());
}

TEST_F(SearchWindows, ShowsTheEntityFoundAndThenTheNext) {
  Find(u"Wol"_s);
  EXPECT_TRUE(item_.isVisible());
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 100, 200, 0));
  EXPECT_EQ(item_.Desc(), u"Wolf"_s);
  EXPECT_EQ(Label("lblCaption"), " Wolf ");
  EXPECT_EQ(caption_.toolTip(), u"Ein <b>Wolf</b>\\nallein"_s);
  EXPECT_EQ(Label("lblMultiInfo"), " Suchergebnis für: Wol ");
  EXPECT_EQ(map_.InfoEntityName(), u"Wolf");
  search_.miFindAgain_Click();
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 900, 700, 0));
  EXPECT_EQ(Opened([this] { search_.miFindAgain_Click(); }),
            Names{"Suche beendet|Der Suchbegriff: \"Wol\" konnte nicht gefunden werden!"});
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 900, 700, 0));
}

TEST_F(SearchWindows, GoesByTheListWhereItHoldsTheName) {
  ShowList();
  Find(u"Wolf"_s);
  search_.miFindAgain_Click();
  // The list is Arvenna's, the entity Skaldor's.
  EXPECT_EQ(items_.currentText(), u"Wolf"_s);
  EXPECT_FALSE(items_.isVisible());
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 900, 700));
  EXPECT_EQ(Label("lblCaption"), "  Wolf  ");
  EXPECT_EQ(caption_.toolTip(), QString());
  map_.resize(800, 600);
  items_.setCurrentIndex(1);
  Q_EMIT items_.activated(1);
  EXPECT_TRUE(item_.isVisible()) << "nobody picks from a hidden list";
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 900, 700));
}

TEST_F(SearchWindows, AResizePlacesTheEntityAgain) {
  ShowList();
  Find(u"Rand"_s);
  EXPECT_EQ(items_.currentIndex(), -1);
  map_.resize(800, 600);
  EXPECT_TRUE(item_.isVisible());
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 1023, 50));
}

TEST_F(SearchWindows, SpeaksTheLanguageOfTheMoment) {
  SpeakEnglish(u"[entities]\r\nHändler=Merchant\r\n[frmFind]\r\nSearchResult=Result for: %s\r\n");
  EXPECT_EQ(TitleOf(frmFind(nullptr, world, state_)), "Find");
  Find(u"Merchant"_s);
  EXPECT_EQ(item_.Desc(), u"Merchant Mara"_s);
  EXPECT_EQ(Label("lblMultiInfo"), "Result for: Merchant ");
  EXPECT_EQ(map_.InfoEntityName(), u"Merchant Mara");
  map_.resize(800, 600);
  EXPECT_EQ(item_.pos(), PixelOnMap(map_, 500, 300));
}

TEST_F(SearchWindows, DownOffersNamesThatOnlyFillTheBox) {
  Write("ostrakh.data", u"[NPC]\r\nÄrzte-Wolf=1,1\r\nwolf=3,3\r\n*Wolf X=1,1\r\n;Wolf Y=1,1\r\n");
  frmFind dialog(nullptr, world, state_);
  ShowActive(dialog);
  auto& text = Part<QLineEdit>(dialog, "txtFind");
  const auto* list = Part<QCompleter>(dialog).popup();
  const auto press = [&](Qt::Key key) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup ? popup : &text, key);
  };
  QTest::keyClicks(&text, u"WÔL"_s);
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
  EXPECT_EQ(text.text(), u"WÔL"_s);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
    press(key);
  EXPECT_EQ(text.text(), u"Wolf"_s);
  EXPECT_FALSE(list->isVisible());
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_FALSE(dialog.Result()) << "no button is pressed";
}

TEST_F(SearchWindows, APictureThatIsMissingLeavesTheMapEmpty) {
  Find(u"Ohne"_s);
  EXPECT_FALSE(item_.isVisible());
  EXPECT_FALSE(Part(map_, "lblMultiInfo").isVisible());
  map_.resize(800, 600);
  EXPECT_FALSE(item_.isVisible());
}
