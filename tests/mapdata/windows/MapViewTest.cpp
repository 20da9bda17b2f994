#include "mapdata/windows/MapView.h"

#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Placement.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"
#include "platform/windows/QtText.h"
#include "support/GermanNames.h"
#include "support/TemporaryFolder.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <cstring>

#include <gtest/gtest.h>

using QtText::ToQt;
using WidgetTwips::ToPixelsX;
using WidgetTwips::ToPixelsY;

namespace {

constexpr TextView Prompt = u"  ------------ Bitte Auswählen ------------";

// A map over a small world of its own.
class MapViewTest : public testing::Test {
 protected:
  MapViewTest() {
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    picture.save(QString::fromStdString(folder.Native("a.jpg")), "PNG");
    folder.Write(
        "a.data",
        "[t]\r\nWolf=512,384,*\r\n;Beta=1,1\r\n\xC4pfel=300,200\r\nAlm=#,u\r\nEdge=1020,9\r\n"
        "bad=x,y\r\n[u]\r\nAlm=10,20\r\n[only]\r\n;x=1,1\r\n");
    folder.Write("info.data", "[info]\r\nwolf=a < b und c > d\r\n");
    view.SetTexts(Text(Prompt), u"Tip", u"marked", u"Prompt");
    view.resize(1000, 700);
    view.show();
  }

  void Multi(bool onHover = false, const Text& category = u"t") {
    view.ChangeMulti(map, data, category, u"&Arvenna: &Lehrer", onHover);
  }

  void List(const Text& category = u"t") { view.Change(map, data, category); }

  void Pick(const QString& name) {
    auto& items = Find<QComboBox>("cboItems");
    items.setCurrentIndex(items.findText(name));
    Q_EMIT items.activated(items.currentIndex());
  }

  template <typename Widget>
  Widget& Find(const char* name) {
    return *view.findChild<Widget*>(QLatin1String(name));
  }

  [[nodiscard]] QStringList Shown() {
    QStringList shown;
    for (const QWidget* widget : view.findChildren<QWidget*>())
      if (widget->isVisible() && widget->parent() == &view && widget->objectName() != u"imgMap" &&
          widget->objectName() != u"linMenuSep")
        shown << widget->objectName();
    shown.sort();
    return shown;
  }

  // The marker's place for a position of the frame, in pixels.
  [[nodiscard]] QPoint MarkerPlace(int x, int y) {
    const auto screen = WidgetTwips::ScreenOf(view);
    const auto at =
        Placement::MarkerAt(Twips2Pixel_Module::PointOnMap(screen, view.MapSize(), x, y));
    return {ToPixelsX(screen, at.x), ToPixelsY(screen, at.y)};
  }

  TemporaryFolder folder;
  Text map = folder.Path(u"a.jpg");
  Text data = folder.Path(u"a.data");
  IniOps::Cache cache;
  GermanNames names{folder.Path(u"info.data")};
  MapView view{cache, names};
};

}  // namespace

TEST_F(MapViewTest, ShowsEverySlotBesideItsMarker) {
  Multi();
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(),
            "DOT(0) DOT(2) DOT(3) DOT(4) DOT(5) lblDOT(0) lblDOT(2) lblDOT(3) lblDOT(4) lblDOT(5) "
            "lblMultiInfo");
  EXPECT_EQ(Find<QWidget>("DOT(0)").pos(), MarkerPlace(512, 384));
  EXPECT_EQ(Find<QWidget>("DOT(3)").pos(), MarkerPlace(10, 20)) << "a link";
  EXPECT_EQ(Find<QWidget>("DOT(5)").pos(), MarkerPlace(0, 0)) << "no numbers";
  EXPECT_EQ(Find<QLabel>("lblDOT(2)").text(), u" Äpfel ");
  EXPECT_LT(Find<QWidget>("lblDOT(2)").x(), Find<QWidget>("DOT(2)").x()) << "even: left";
  EXPECT_GT(Find<QWidget>("lblDOT(3)").x(), Find<QWidget>("DOT(3)").x()) << "odd: right";
  EXPECT_EQ(Find<ctlLocation>("DOT(0)").BorderColor(), ctlLocation::Green);
  EXPECT_EQ(Find<QLabel>("lblMultiInfo").text(), u" Arvenna: Lehrer ");
  EXPECT_EQ(Find<ctlLocation>("DOT(0)").Desc(), u"Wolf");
  Multi(false, u"u");
  EXPECT_EQ(Find<ctlLocation>("DOT(0)").BorderColor(), ctlLocation::DarkRed);
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(), "DOT(0) lblDOT(0) lblMultiInfo");
  Multi(false, u"T");
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(), "lblMultiInfo") << "headers are exact";
}

TEST_F(MapViewTest, FollowsTheWindowsSize) {
  Multi();
  for (const QSize size : {QSize(1920, 1100), QSize(200, 100), QSize(3840, 2160)}) {
    view.resize(size);
    EXPECT_EQ(Find<QWidget>("imgMap").size(), size);
    EXPECT_EQ(Find<QWidget>("DOT(0)").pos(), MarkerPlace(512, 384));
    EXPECT_NEAR(Find<QWidget>("DOT(0)").x(), size.width() / 2 - 4, 2);
  }
}

TEST_F(MapViewTest, LabelsOnHoverShowTheLastOneOnly) {
  Multi(true);
  EXPECT_FALSE(Find<QWidget>("lblDOT(0)").isVisible());
  QTest::mouseMove(&Find<QWidget>("DOT(3)"), {3, 3});
  QTest::mouseMove(&Find<QWidget>("DOT(2)"), {3, 3});
  EXPECT_EQ(Shown().filter(QStringLiteral("lblDOT")), QStringList{QStringLiteral("lblDOT(2)")});
  Multi(false);
  QTest::mouseMove(&Find<QWidget>("DOT(3)"), {3, 3});
  EXPECT_EQ(Shown().filter(QStringLiteral("lblDOT")).size(), 5);
}

TEST_F(MapViewTest, ListsSortedBehindThePromptAndMarksThePick) {
  List();
  auto& items = Find<QComboBox>("cboItems");
  QStringList rows;
  for (int i = 0; i < items.count(); ++i)
    rows << items.itemText(i);
  EXPECT_EQ(rows.join(QLatin1Char('|')), ToQt(Prompt) + QStringLiteral("|Alm|Äpfel|bad|Edge|Wolf"));
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(), "btnInfo cboItems");
  Pick(QStringLiteral("Alm"));
  EXPECT_EQ(Find<QWidget>("ITEM").pos(), MarkerPlace(10, 20));
  EXPECT_EQ(Find<QLabel>("lblCaption").text(), u" Alm ");
  EXPECT_GT(Find<QWidget>("lblCaption").x(), Find<QWidget>("ITEM").x());
  Pick(QStringLiteral("Edge"));
  EXPECT_LT(Find<QWidget>("lblCaption").x(), Find<QWidget>("ITEM").x()) << "at the right edge";
  view.resize(1500, 900);
  EXPECT_EQ(Find<QWidget>("ITEM").pos(), MarkerPlace(1020, 9));
  Pick(QStringLiteral("bad"));
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(), "btnInfo cboItems") << "no position";
  Pick(QStringLiteral("Wolf"));
  Pick(ToQt(Prompt));
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(), "btnInfo cboItems");
  List(u"only");
  EXPECT_EQ(items.count(), 1);
}

TEST_F(MapViewTest, AListStaysWhenTheWindowIsResized) {
  Multi();
  List();
  view.resize(1200, 800);
  EXPECT_EQ(Shown().join(QLatin1Char(' ')).toStdString(), "btnInfo cboItems");
}

TEST_F(MapViewTest, FallsBackToTheStartPictureAndTriesAgain) {
  std::filesystem::rename(folder.Native("a.jpg"), folder.Native("b.jpg"));
  Multi();
  List();
  EXPECT_TRUE(Shown().isEmpty());
  Multi();
  std::filesystem::rename(folder.Native("b.jpg"), folder.Native("a.jpg"));
  view.resize(1100, 700);
  EXPECT_EQ(Shown().size(), 11);
  std::filesystem::remove(folder.Native("a.jpg"));
  view.resize(1000, 700);
  EXPECT_TRUE(Shown().isEmpty());
}

TEST_F(MapViewTest, AsksForInformationOnTheRightName) {
  QSignalSpy asked(&view, &MapView::InfoRequested);
  Multi();
  QTest::mouseDClick(&Find<QWidget>("lblDOT(2)"), Qt::LeftButton);
  EXPECT_EQ(view.InfoEntityName(), u" Äpfel ") << "a label hands over its blanks";
  QTest::mouseDClick(&Find<QWidget>("DOT(2)"), Qt::LeftButton);
  EXPECT_EQ(view.InfoEntityName(), u"Äpfel");
  QTest::mouseDClick(&Find<QWidget>("DOT(0)"), Qt::RightButton);
  QTest::mouseDClick(&Find<QWidget>("lblDOT(0)"), Qt::RightButton);
  List();
  QTest::mouseClick(&Find<QWidget>("btnInfo"), Qt::LeftButton);
  EXPECT_EQ(asked.count(), 2) << "the prompt names nobody";
  Pick(QStringLiteral("Wolf"));
  QTest::mouseClick(&Find<QWidget>("btnInfo"), Qt::LeftButton);
  QTest::mouseDClick(&Find<QWidget>("ITEM"), Qt::LeftButton);
  QTest::mouseDClick(&Find<QWidget>("lblCaption"), Qt::LeftButton);
  EXPECT_EQ(asked.count(), 5);
  EXPECT_EQ(view.InfoEntityName(), u"Wolf");
}

TEST_F(MapViewTest, DescribesTheNameUnderThePointer) {
  Multi();
  auto& label = Find<QWidget>("lblDOT(0)");
  QTest::mouseMove(&label, {3, 3});
  EXPECT_EQ(label.toolTip(), u"a < b und c > d...");
  folder.Write("info.data", "[info]\r\nWOLF=neu\r\n");
  QTest::mouseMove(&label, {5, 3});
  EXPECT_EQ(label.toolTip(), u"neu...");
  QTest::mouseMove(&Find<QWidget>("lblDOT(2)"), {3, 3});
  EXPECT_EQ(Find<QWidget>("lblDOT(2)").toolTip(), u"");
  Multi();
  EXPECT_EQ(label.toolTip(), u"");
}

TEST_F(MapViewTest, TheOneUnderThePointerComesFirstAndNoNameCoversAMarker) {
  folder.Write("a.data", "[t]\r\nWolf=500,300\r\nZwei=503,300\r\nElch=480,301\r\n");
  Multi();
  const auto at = [&](const char* name) {
    const QWidget* found = view.childAt(Find<QWidget>(name).geometry().center());
    return found->objectName().toStdString();
  };
  for (const char* hovered : {"DOT(0)", "lblDOT(0)", "DOT(1)", "lblDOT(2)", "DOT(0)"}) {
    QTest::mouseMove(&Find<QWidget>(hovered), {3, 3});
    const std::string marker = std::string("DOT") + std::strchr(hovered, '(');
    EXPECT_EQ(at(marker.c_str()), marker);
    EXPECT_EQ(at("DOT(2)"), "DOT(2)") << "the name of DOT(0) lies there";
    const QPoint ofNames = {Find<QWidget>("lblDOT(2)").geometry().right() - 1,
                            Find<QWidget>("lblDOT(2)").geometry().top() + 1};
    if (marker != "DOT(1)") {
      EXPECT_EQ(view.childAt(ofNames)->objectName().toStdString(), "lbl" + marker);
    }
  }
}

TEST(ctlLocation, KeepsItsSizeAndColours) {
  ctlLocation marker;
  const QSize size = marker.size();
  EXPECT_EQ(size.width(), ToPixelsX(WidgetTwips::ScreenOf(marker), 160));
  marker.resize(50, 50);
  EXPECT_EQ(marker.size(), size);
  marker.setProperty("BorderColor", 2263842);
  marker.setProperty("Desc", QStringLiteral("Wolf"));
  EXPECT_EQ(marker.property("BorderColor").toInt(), 2263842);
  EXPECT_EQ(marker.toolTip(), u"Wolf");
  EXPECT_EQ(marker.accessibleName(), u"Wolf");
  EXPECT_EQ(marker.property("BackColor").toInt(), 55295);
}
