#include "controls/windows/WidgetTwips.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/ctlLocation.h"
#include "support/MapFixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QEnterEvent>
#include <QLabel>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

constexpr int Notch = 120;

// A map of four markers whose picture is red in its left upper quarter.
class ZoomTest : public MapFixture {
 protected:
  ZoomTest()
      : MapFixture("[t]\r\nWolf=256,192\r\nElch=300,192\r\nFern=900,700\r\nRand=1020,9\r\n") {
    QImage picture(640, 480, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QPainter(&picture).fillRect(0, 0, 320, 240, Qt::red);
    picture.save(QString::fromStdString(folder.Native("a.jpg")), "PNG");
    Multi();
  }

  void Wheel(const QPoint& at, const QPoint& angle, const QPoint& pixels = {}) {
    QWheelEvent event(at, view.mapToGlobal(at), pixels, angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &event);
  }

  void Drag(QWidget& from, const QPoint& by) {
    const QPoint at = from.rect().center();
    const QPoint start = from.mapToGlobal(at);
    QTest::mousePress(&from, Qt::LeftButton, {}, at);
    for (const QPoint& step : {by / 2, by}) {
      QMouseEvent move(QEvent::MouseMove, at, start + step, Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
      QApplication::sendEvent(&from, &move);
    }
    QTest::mouseRelease(&from, Qt::LeftButton, {}, at);
  }
};

}  // namespace

TEST_F(ZoomTest, TheWheelZoomsAtThePointer) {
  auto& wolf = Part<ctlLocation>(view, "DOT(0)");
  const QPoint at = wolf.geometry().center();
  const QSize size = wolf.size();
  const QPoint beside = Part<QLabel>(view, "lblDOT(0)").pos() - wolf.pos();
  for (int i = 0; i < 4; ++i)
    Wheel(at, {0, Notch});
  EXPECT_NEAR(view.Part().Scale(), std::pow(1.25, 4), 1e-9);
  // Its point, a pixel beside its middle, moves away from the pointer as the picture grows.
  EXPECT_LE((wolf.geometry().center() - at).manhattanLength(), 4) << "the point under it stays";
  EXPECT_EQ(wolf.size(), size);
  EXPECT_EQ(Part<QLabel>(view, "lblDOT(0)").pos() - wolf.pos(), beside);
  EXPECT_FALSE(At("DOT(2)").isVisible()) << "it lies outside";
  EXPECT_FALSE(At("lblDOT(2)").isVisible());
  EXPECT_EQ(view.Focus().Markers().size(), 2U) << "of which a screen reader hears";
  Wheel(at, {});
  EXPECT_NEAR(view.Part().Scale(), std::pow(1.25, 4), 1e-9);
  Wheel(at, {}, {0, -50});
  EXPECT_NEAR(view.Part().Scale(), std::pow(1.25, 3), 1e-9) << "pixels count in proportion";
  Wheel(at, {0, 10'000});
  EXPECT_EQ(view.Part().Scale(), 8);
  Wheel(at, {0, -10'000});
  EXPECT_EQ(view.Part().Scale(), 1);
  EXPECT_TRUE(At("DOT(2)").isVisible());
}

TEST_F(ZoomTest, ShowsThePartOfThePicture) {
  const auto colorAt = [this](int x, int y) { return view.grab().toImage().pixelColor(x, y); };
  EXPECT_EQ(colorAt(900, 600), QColor(Qt::darkGreen));
  Wheel({0, 0}, {0, Notch * 4});
  EXPECT_EQ(colorAt(900, 600), QColor(Qt::red));
  QTest::keyClick(&view, Qt::Key_0);
  EXPECT_EQ(colorAt(900, 600), QColor(Qt::darkGreen));
}

TEST_F(ZoomTest, ADragMovesThePictureAlsoFromAMarkerOrName) {
  Drag(At("DOT(0)"), {-50, -30});
  EXPECT_EQ(view.Part().LeftPart(), 0) << "all of it is there";
  QTest::mouseDClick(&At("imgMap"), Qt::LeftButton, {}, {500, 300});
  EXPECT_EQ(view.Part().Scale(), 2);
  for (const char* name : {"DOT(0)", "lblDOT(0)", "imgMap"}) {
    const QPoint before = At("DOT(0)").pos();
    Drag(At(name), {-40, -20});
    EXPECT_EQ(At("DOT(0)").pos() - before, QPoint(-40, -20)) << name;
  }
  const QPoint before = At("DOT(0)").pos();
  Drag(At("imgMap"), {3, 2});
  EXPECT_EQ(At("DOT(0)").pos(), before) << "a click is no drag";
  QTest::mouseDClick(&At("imgMap"), Qt::RightButton, {}, {500, 300});
  EXPECT_EQ(view.Part().Scale(), 2);
}

TEST_F(ZoomTest, KeysWorkWhileTheListHasTheFocus) {
  view.Change(map, data, u"t");
  ASSERT_EQ(QApplication::focusWidget(), &At("cboItems"));
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  };
  press(Qt::Key_Plus);
  press(Qt::Key_Plus);
  EXPECT_NEAR(view.Part().Scale(), 1.25 * 1.25, 1e-9);
  EXPECT_NEAR(view.Part().LeftPart(), (1 - 1 / (1.25 * 1.25)) / 2, 1e-3) << "at the middle";
  const double left = view.Part().LeftPart();
  press(Qt::Key_Right, Qt::ShiftModifier);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_NEAR(view.Part().LeftPart(), left + 0.125 / (1.25 * 1.25), 1e-3) << "an eighth";
  EXPECT_NEAR(view.Part().TopPart(), view.Part().LeftPart(), 2e-3);
  press(Qt::Key_Minus);
  EXPECT_NEAR(view.Part().Scale(), 1.25, 1e-9);
  EXPECT_EQ(Part<QComboBox>(view, "cboItems").currentIndex(), 0);
  press(Qt::Key_F);
  EXPECT_NEAR(view.Part().Scale(), 1.25, 1e-9) << "a pick keeps the scale";
  EXPECT_TRUE(view.rect().contains(At("ITEM").geometry())) << "and shows its marker";
  view.Change(map, data, u"t");
  EXPECT_EQ(view.Part().Scale(), 1);
}

TEST_F(ZoomTest, TheWalkBringsItsMarkerIntoView) {
  QTest::keyClick(&view, Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), &At("DOT(0)"));
  for (int i = 0; i < 8; ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus);
  EXPECT_EQ(QApplication::focusWidget(), &At("DOT(0)")) << "zooms where the focus is";
  for (const auto& [key, name] : {std::pair(Qt::Key_Right, "DOT(1)"),
                                  {Qt::Key_End, "DOT(3)"},
                                  {Qt::Key_PageUp, "DOT(2)"},
                                  {Qt::Key_Home, "DOT(0)"}}) {
    QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(QApplication::focusWidget(), &At(name));
    EXPECT_TRUE(view.rect().contains(At(name).geometry())) << name;
  }
}

TEST_F(ZoomTest, AResizeKeepsScaleAndPlaceAndTheStartPictureDoesNotZoom) {
  Wheel({900, 100}, {0, Notch * 4});
  const double scale = view.Part().Scale();
  const double top = view.Part().TopPart();
  view.resize(600, 800);
  EXPECT_EQ(view.Part().Scale(), scale);
  EXPECT_NEAR(view.Part().TopPart(), top, 1e-3);
  view.ShowNoRegion();
  EXPECT_EQ(view.Part().Scale(), 1);
  Wheel({300, 300}, {0, Notch});
  QTest::keyClick(&view, Qt::Key_Plus);
  QTest::mouseDClick(&At("imgMap"), Qt::LeftButton, {}, {300, 300});
  EXPECT_EQ(view.Part().Scale(), 1);
}

TEST_F(ZoomTest, F5ReadsEverythingAnewAndKeepsTheScale) {
  Wheel({250, 170}, {0, Notch});
  folder.Write("a.data", "[t]\r\nWolf=256,192\r\nNeu=257,193\r\n");
  QTest::keyClick(&view, Qt::Key_F5);
  EXPECT_EQ(Part<ctlLocation>(view, "DOT(1)").Desc(), u"Neu");
  EXPECT_EQ(view.Part().Scale(), 1.25);
  view.Change(map, data, u"t");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_N);
  folder.Write("a.data", "[t]\r\nAlt=1,1\r\nNeu=500,300\r\nWolf=2,2\r\n");
  const QPoint before = At("ITEM").pos();
  QTest::keyClick(&view, Qt::Key_F5);
  EXPECT_EQ(Part<QComboBox>(view, "cboItems").count(), 4);
  EXPECT_EQ(Part<QComboBox>(view, "cboItems").currentText(), u"Neu");
  EXPECT_NE(At("ITEM").pos(), before);
  folder.Write("a.data", "[t]\r\nAlt=1,1\r\n");
  QTest::keyClick(&view, Qt::Key_F5);
  EXPECT_EQ(Part<QComboBox>(view, "cboItems").currentIndex(), 0) << "the pick is gone";
  EXPECT_FALSE(At("ITEM").isVisible());
}

TEST_F(ZoomTest, APinchZoomsBetweenTheFingersDownToTheWholePicture) {
  const auto pinch = [this](double value) {
    QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2,
                              {100, 100}, {100, 100}, view.mapToGlobal(QPoint(100, 100)), value,
                              {});
    QApplication::sendEvent(&view, &event);
    return view.Part().Scale();
  };
  EXPECT_EQ(pinch(1), 2);
  EXPECT_NEAR(view.Part().LeftPart(), 100.0 / view.width() / 2, 1e-3) << "the point stays";
  EXPECT_EQ(pinch(0), 2);
  for (const double toNothing : {-1.0, -1.5, std::nan("")}) {
    EXPECT_EQ(pinch(toNothing), 1) << toNothing;
    EXPECT_EQ(pinch(1), 2);
  }
}

TEST_F(ZoomTest, TwoFingersOnATouchScreenZoomAndPan) {
  const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
  auto fingers = [&, down = false](const QPoint& one, const QPoint& other) mutable {
    auto touch = QTest::touchEvent(&view, screen.get());
    if (down)
      touch.move(0, one).move(1, other);
    else
      touch.press(0, one).press(1, other);
    down = true;
  };
  fingers({480, 350}, {520, 350});
  fingers({440, 350}, {560, 350});
  fingers({400, 350}, {600, 350});
  const double scale = view.Part().Scale();
  EXPECT_GT(scale, 1.5);
  const double left = view.Part().LeftPart();
  fingers({300, 350}, {500, 350});
  EXPECT_NEAR(view.Part().Scale(), scale, 1e-6);
  EXPECT_GT(view.Part().LeftPart(), left);
  fingers({380, 350}, {420, 350});
  EXPECT_EQ(view.Part().Scale(), 1);
}

TEST_F(ZoomTest, WhatIsSeenIsPrinted) {
  Wheel({300, 200}, {0, Notch * 6});
  const QImage seen = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
  QImage printed(seen.size(), QImage::Format_RGB32);
  printed.setDevicePixelRatio(seen.devicePixelRatio());
  QPainter painter(&printed);
  view.Paint(painter);
  painter.end();
  int64_t different = 0;
  for (int y = 0; y < seen.height(); ++y)
    for (int x = 0; x < seen.width(); ++x)
      different += std::abs(qGray(seen.pixel(x, y)) - qGray(printed.pixel(x, y))) > 20 ? 1 : 0;
  EXPECT_LT(different, seen.width() * seen.height() / 1000) << "but for the edges of letters";
}

TEST_F(ZoomTest, ShiftOverTheMapShowsACrossHair) {
  const auto send = [this](QEvent&& event) { QApplication::sendEvent(&view, &event); };
  const auto shape = [this] { return At("imgMap").cursor().shape(); };
  send(QEvent(QEvent::Leave));
  QTest::keyPress(&view, Qt::Key_Shift);
  EXPECT_EQ(shape(), Qt::ArrowCursor) << "the pointer is elsewhere";
  QTest::keyRelease(&view, Qt::Key_Shift);
  send(QEnterEvent({9, 9}, {9, 9}, {9, 9}));
  QTest::keyPress(&view, Qt::Key_Shift);
  EXPECT_EQ(shape(), Qt::CrossCursor);
  QTest::keyRelease(&view, Qt::Key_Shift);
  EXPECT_EQ(shape(), Qt::ArrowCursor);
  QTest::keyPress(&view, Qt::Key_Shift);
  send(QEvent(QEvent::Leave));
  EXPECT_EQ(shape(), Qt::ArrowCursor);
}

TEST_F(ZoomTest, ShiftAndAClickCopyThePosition) {
  const QPoint at = At("DOT(0)").geometry().center();
  QTest::mouseClick(&At("imgMap"), Qt::LeftButton, Qt::ShiftModifier, at);
  EXPECT_EQ(QApplication::clipboard()->text(), u"256,192");
  Wheel({20, 30}, {0, Notch * 5});
  QTest::mouseClick(&At("imgMap"), Qt::LeftButton, Qt::ShiftModifier, {20, 30});
  const QStringList closer = QApplication::clipboard()->text().split(u',');
  EXPECT_NEAR(closer.at(0).toInt(), 20 * 1024 / 1000, 1);
  EXPECT_NEAR(closer.at(1).toInt(), 30 * 768 / 700, 1);
}

TEST_F(ZoomTest, SurvivesTheSmallestMapAndAPictureThatBreaks) {
  Wheel({500, 300}, {0, Notch * 6});
  for (const QSize& size : {QSize(1, 1), QSize(3840, 2160), QSize(1, 1), QSize(1000, 700)}) {
    view.resize(size);
    Wheel({0, 0}, {0, Notch});
    EXPECT_FALSE(view.grab().isNull());
  }
  EXPECT_GT(view.Part().Scale(), 1);
  folder.Write("a.jpg", "broken");
  view.resize(900, 700);
  EXPECT_EQ(view.Part().Scale(), 1) << "the start picture";
  EXPECT_TRUE(view.Focus().Markers().empty());
}

TEST_F(ZoomTest, StartsWithThePictureBesideTheProgram) {
  Paint(folder, "overview.jpg", Qt::blue);
  MapView started(cache, names, nullptr, folder.Path(u"overview.jpg"));
  started.resize(400, 300);
  started.show();
  const auto color = [&] { return started.grab().toImage().pixelColor(200, 150); };
  EXPECT_EQ(color(), QColor(Qt::blue));
  started.ChangeMulti(map, data, u"t", u"H", false);
  EXPECT_NE(color(), QColor(Qt::blue));
  folder.Write("overview.jpg", "changed after the start");
  started.resize(500, 400);
  started.ShowNoRegion();
  EXPECT_EQ(color(), QColor(Qt::blue));
}
