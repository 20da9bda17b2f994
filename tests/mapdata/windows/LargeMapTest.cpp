#include "mapdata/windows/MapView.h"

#include "mapdata/windows/ctlLocation.h"
#include "support/GermanNames.h"
#include "support/TemporaryFolder.h"

#include <QPainter>

#include <cmath>

#include <gtest/gtest.h>

namespace {

// Wider than 32767 twips at 15 twips a pixel, as every screen of this size is.
constexpr QSize Large = {3840, 2160};
constexpr int Point = 65;

// Left or top edge in pixels of the marker for a coordinate of the frame.
int MarkerEdge(int coordinate, int frame, int length, double twipsPerPixel) {
  const double twips = std::nearbyint(length * twipsPerPixel / frame * coordinate) - Point;
  return static_cast<int>(std::nearbyint(twips / twipsPerPixel));
}

// Lines of one device pixel: they stay black and white only if no pixel is scaled.
QImage Stripes(const QSize& size) {
  QImage stripes(size, QImage::Format_RGB32);
  stripes.fill(Qt::white);
  QPainter painter(&stripes);
  for (int x = 0; x < size.width(); x += 2)
    painter.fillRect(x, 0, 1, size.height(), Qt::black);
  return stripes;
}

}  // namespace

TEST(LargeMap, KeepsMarkersOnTheirSpots) {
  const TemporaryFolder folder;
  Stripes({64, 48}).save(QString::fromStdString(folder.Native("a.jpg")), "PNG");
  folder.Write("a.data", "[t]\r\na=1,1\r\nb=600,400\r\nc=1020,760\r\n");
  IniOps::Cache cache;
  GermanNames names;
  MapView view(cache, names);
  view.resize(Large);
  view.show();
  view.ChangeMulti(folder.Path(u"a.jpg"), folder.Path(u"a.data"), u"t", u"", false);
  const double twips = 1440.0 / view.logicalDpiX();
  int slot = 0;
  for (const QPoint& at : {QPoint(1, 1), QPoint(600, 400), QPoint(1020, 760)}) {
    const auto* dot = view.findChild<ctlLocation*>(QStringLiteral("DOT(%1)").arg(slot++));
    EXPECT_EQ(dot->pos(), QPoint(MarkerEdge(at.x(), 1024, view.width(), twips),
                                 MarkerEdge(at.y(), 768, view.height(), twips)));
    EXPECT_TRUE(view.rect().intersects(dot->geometry()));
  }
}

TEST(LargeMap, ShowsAPictureOfItsOwnSizePixelForPixel) {
  const TemporaryFolder folder;
  const QSize map(900, 600);
  IniOps::Cache cache;
  GermanNames names;
  MapView view(cache, names);
  view.resize(map);
  view.show();
  const QSize devicePixels = (QSizeF(map) * view.devicePixelRatioF()).toSize();
  const QImage stripes = Stripes(devicePixels);
  stripes.save(QString::fromStdString(folder.Native("a.jpg")), "PNG");
  view.Change(folder.Path(u"a.jpg"), folder.Path(u"none.data"), u"t");
  QImage shown = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(shown.size(), devicePixels);
  shown.setDevicePixelRatio(1);
  int different = 0;
  const int y = devicePixels.height() / 2;
  for (int x = 0; x < devicePixels.width(); ++x)
    different += shown.pixel(x, y) != stripes.pixel(x, y) ? 1 : 0;
  EXPECT_EQ(different, 0);
}
