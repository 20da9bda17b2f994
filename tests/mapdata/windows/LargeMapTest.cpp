#include "support/MapFixture.h"

#include <QPainter>

namespace {

class LargeMap : public MapFixture {
 protected:
  LargeMap() : MapFixture("") {}
};

}  // namespace

TEST_F(LargeMap, ShowsAPictureOfItsOwnSizePixelForPixel) {
  view.resize(900, 600);
  const QSize devicePixels = (QSizeF(view.size()) * view.devicePixelRatioF()).toSize();
  // Lines of one device pixel: they stay black and white only if no pixel is scaled.
  QImage stripes(devicePixels, QImage::Format_RGB32);
  stripes.fill(Qt::white);
  for (int x = 0; x < stripes.width(); x += 2)
    QPainter(&stripes).fillRect(x, 0, 1, stripes.height(), Qt::black);
  stripes.save(QString::fromStdString(folder.Native("a.jpg")), "PNG");
  List(u"none");
  QImage shown = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(shown.size(), devicePixels);
  shown.setDevicePixelRatio(1);
  int different = 0;
  const int y = devicePixels.height() / 2;
  for (int x = 0; x < devicePixels.width(); ++x)
    different += shown.pixel(x, y) != stripes.pixel(x, y) ? 1 : 0;
  EXPECT_EQ(different, 0);
}
