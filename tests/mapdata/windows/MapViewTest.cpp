#include "mapdata/windows/MapView.h"

#include "mapdata/windows/ctlLocation.h"
#include "support/MapFixture.h"

#include <QComboBox>
#include <QSignalSpy>

#include <cstring>

namespace {

constexpr const char* AllSlots =
    "DOT(0) DOT(2) DOT(3) DOT(4) DOT(5) lblDOT(0) lblDOT(2) lblDOT(3) lblDOT(4) lblDOT(5) "
    "lblMultiInfo";

class MapViewTest : public MapFixture {
 protected:
  // The rows of the list of "t".
  enum Row { Prompt, Alm, Apples, Bad, Edge, Wolf };

  MapViewTest()
      : MapFixture(
            "[t]\r\nWolf=512,384,*\r\n;Beta=1,1\r\n\xC4pfel=300,200\r\nAlm=#,u\r\nEdge=1020,9\r\n"
            "bad=x,y\r\n[u]\r\nAlm=10,20\r\n[only]\r\n;x=1,1\r\n") {}

  void Pick(Row row) {
    items.setCurrentIndex(row);
    Q_EMIT items.activated(row);
  }

  // The names of all parts that are seen, but for the picture.
  std::string Shown() {
    QStringList shown;
    for (const QWidget* widget : view.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
      if (widget->isVisible() && widget->objectName() != u"imgMap" &&
          widget->objectName() != u"linMenuSep")
        shown << widget->objectName();
    shown.sort();
    return shown.join(u' ').toStdString();
  }

  QComboBox& items = Part<QComboBox>(view, "cboItems");
};

}  // namespace

TEST_F(MapViewTest, ShowsEverySlotBesideItsMarker) {
  Multi();
  EXPECT_EQ(Shown(), AllSlots);
  EXPECT_EQ(At("DOT(0)").pos(), PixelOnMap(view, 512, 384));
  EXPECT_EQ(At("DOT(3)").pos(), PixelOnMap(view, 10, 20)) << "a link";
  EXPECT_EQ(At("DOT(5)").pos(), PixelOnMap(view, 0, 0)) << "no numbers";
  EXPECT_EQ(TextOf(view, "lblDOT(2)"), " Äpfel ");
  EXPECT_LT(At("lblDOT(2)").x(), At("DOT(2)").x()) << "even: left";
  EXPECT_GT(At("lblDOT(3)").x(), At("DOT(3)").x()) << "odd: right";
  EXPECT_EQ(Part<ctlLocation>(view, "DOT(0)").BorderColor(), ctlLocation::Green);
  EXPECT_EQ(TextOf(view, "lblMultiInfo"), " Arvenna: Lehrer ");
  EXPECT_EQ(Part<ctlLocation>(view, "DOT(0)").Desc(), u"Wolf");
  Multi(false, u"u");
  EXPECT_EQ(Part<ctlLocation>(view, "DOT(0)").BorderColor(), ctlLocation::DarkRed);
  EXPECT_EQ(Shown(), "DOT(0) lblDOT(0) lblMultiInfo");
  Multi(false, u"T");
  EXPECT_EQ(Shown(), "lblMultiInfo") << "headers are exact";
}

TEST_F(MapViewTest, LabelsOnHoverShowTheLastOneOnly) {
  Multi(true);
  EXPECT_FALSE(At("lblDOT(0)").isVisible());
  QTest::mouseMove(&At("DOT(3)"), {3, 3});
  QTest::mouseMove(&At("DOT(2)"), {3, 3});
  EXPECT_EQ(Shown(), "DOT(0) DOT(2) DOT(3) DOT(4) DOT(5) lblDOT(2) lblMultiInfo");
  Multi(false);
  QTest::mouseMove(&At("DOT(3)"), {3, 3});
  EXPECT_EQ(Shown(), AllSlots);
}

TEST_F(MapViewTest, ListsSortedBehindThePromptAndMarksThePick) {
  Multi();
  List();
  QStringList rows;
  for (int i = 0; i < items.count(); ++i)
    rows << items.itemText(i);
  view.resize(1200, 800);
  EXPECT_EQ(rows.join(u'|').toStdString(), "  ----- Bitte Auswählen -----|Alm|Äpfel|bad|Edge|Wolf");
  EXPECT_EQ(Shown(), "btnInfo cboItems");
  Pick(Alm);
  EXPECT_EQ(At("ITEM").pos(), PixelOnMap(view, 10, 20));
  EXPECT_EQ(TextOf(view, "lblCaption"), " Alm ");
  EXPECT_GT(At("lblCaption").x(), At("ITEM").x());
  Pick(Edge);
  EXPECT_LT(At("lblCaption").x(), At("ITEM").x()) << "at the right edge";
  // Wider than 32767 twips at 15 twips a pixel, as every screen of this size is.
  view.resize(3840, 2160);
  EXPECT_EQ(At("ITEM").pos(), PixelOnMap(view, 1020, 9));
  EXPECT_TRUE(view.rect().intersects(At("ITEM").geometry()));
  Pick(Bad);
  EXPECT_EQ(Shown(), "btnInfo cboItems") << "no position";
  Pick(Wolf);
  Pick(Prompt);
  EXPECT_EQ(Shown(), "btnInfo cboItems");
  List(u"only");
  EXPECT_EQ(items.count(), 1);
}

TEST_F(MapViewTest, FallsBackToTheStartPictureAndTriesAgain) {
  std::filesystem::rename(folder.Native("a.jpg"), folder.Native("b.jpg"));
  Multi();
  List();
  EXPECT_EQ(Shown(), "");
  Multi();
  std::filesystem::rename(folder.Native("b.jpg"), folder.Native("a.jpg"));
  view.resize(1100, 700);
  EXPECT_EQ(Shown(), AllSlots);
  std::filesystem::remove(folder.Native("a.jpg"));
  view.resize(1000, 700);
  EXPECT_EQ(Shown(), "");
}

TEST_F(MapViewTest, AsksForInformationOnTheRightName) {
  QSignalSpy asked(&view, &MapView::InfoRequested);
  Multi();
  QTest::mouseDClick(&At("lblDOT(2)"), Qt::LeftButton);
  EXPECT_EQ(view.InfoEntityName(), u" Äpfel ") << "a label hands over its blanks";
  QTest::mouseDClick(&At("DOT(2)"), Qt::LeftButton);
  EXPECT_EQ(view.InfoEntityName(), u"Äpfel");
  QTest::mouseDClick(&At("DOT(0)"), Qt::RightButton);
  QTest::mouseDClick(&At("lblDOT(0)"), Qt::RightButton);
  List();
  QTest::mouseClick(&At("btnInfo"), Qt::LeftButton);
  EXPECT_EQ(asked.count(), 2) << "the prompt names nobody";
  Pick(Wolf);
  QTest::mouseClick(&At("btnInfo"), Qt::LeftButton);
  QTest::mouseDClick(&At("ITEM"), Qt::LeftButton);
  QTest::mouseDClick(&At("lblCaption"), Qt::LeftButton);
  EXPECT_EQ(asked.count(), 5);
  EXPECT_EQ(view.InfoEntityName(), u"Wolf");
}

TEST_F(MapViewTest, DescribesTheNameUnderThePointer) {
  Multi();
  auto& label = At("lblDOT(0)");
  QTest::mouseMove(&label, {3, 3});
  EXPECT_EQ(label.toolTip(), u"a < b und c > d...");
  folder.Write("info.data", "[info]\r\nWOLF=neu\r\n");
  QTest::mouseMove(&label, {5, 3});
  EXPECT_EQ(label.toolTip(), u"neu...");
  QTest::mouseMove(&At("lblDOT(2)"), {3, 3});
  EXPECT_EQ(At("lblDOT(2)").toolTip(), u"");
  Multi();
  EXPECT_EQ(label.toolTip(), u"");
}

TEST_F(MapViewTest, TheOneUnderThePointerComesFirstAndNoNameCoversAMarker) {
  folder.Write("a.data", "[t]\r\nWolf=500,300\r\nZwei=503,300\r\nElch=480,301\r\n");
  Multi();
  const auto at = [&](const char* name) {
    const QWidget* found = view.childAt(At(name).geometry().center());
    return found->objectName().toStdString();
  };
  for (const char* hovered : {"DOT(0)", "lblDOT(0)", "DOT(1)", "lblDOT(2)", "DOT(0)"}) {
    QTest::mouseMove(&At(hovered), {3, 3});
    const std::string marker = std::string("DOT") + std::strchr(hovered, '(');
    EXPECT_EQ(at(marker.c_str()), marker);
    EXPECT_EQ(at("DOT(2)"), "DOT(2)") << "the name of DOT(0) lies there";
    const QPoint ofNames = {At("lblDOT(2)").geometry().right() - 1,
                            At("lblDOT(2)").geometry().top() + 1};
    if (marker != "DOT(1)") {
      EXPECT_EQ(view.childAt(ofNames)->objectName().toStdString(), "lbl" + marker);
    }
  }
}

TEST(ctlLocation, KeepsItsSizeAndColours) {
  ctlLocation marker;
  const QSize size = marker.size();
  EXPECT_EQ(size.width(), WidgetTwips::ToPixelsX(WidgetTwips::ScreenOf(marker), 160));
  marker.resize(50, 50);
  EXPECT_EQ(marker.size(), size);
  marker.setProperty("BorderColor", 2263842);
  marker.setProperty("Desc", u"Wolf"_s);
  EXPECT_EQ(marker.property("BorderColor").toInt(), 2263842);
  EXPECT_EQ(marker.toolTip(), u"Wolf");
  EXPECT_EQ(marker.accessibleName(), u"Wolf");
  EXPECT_EQ(marker.property("BackColor").toInt(), 55295);
}
