#include "mapdata/windows/MapArea.h"

#include <QPainter>
#include <QScreen>
#include <QTimer>

namespace {

constexpr TextView BuiltIn = u":/builtin/overview.jpg";

// The milliseconds without a step after which a closer view is read more sharply.
constexpr int Rest = 150;

}  // namespace

MapArea::MapArea(QWidget* parent) : QWidget(parent), startPicture_(BuiltIn) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize MapArea::DevicePixels() const {
  return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void MapArea::SetStartPicture(const Text& path) {
  if (LoadPicture(path))
    startPicture_ = path;
  ShowStartPicture();
  picture_.Keep();
}

bool MapArea::LoadPicture(TextView path) {
  const QSize onScreen = (QSizeF(screen()->size()) * devicePixelRatioF()).toSize();
  // A window may be larger than its screen.
  if (!picture_.Load(path, DevicePixels(), onScreen.expandedTo(DevicePixels())))
    return false;
  showsStart_ = false;
  update();
  return true;
}

void MapArea::ShowStartPicture() {
  ShowPart({0, 0, 1, 1});
  static_cast<void>(LoadPicture(startPicture_));
  showsStart_ = true;
}

void MapArea::ShowPart(const QRectF& part) {
  if (part == part_)
    return;
  part_ = part;
  untilSharp_.start(Rest, this);
  update();
}

void MapArea::PaintPixels(QPainter& painter) {
  picture_.PaintPixels(painter, rect(), part_);
}

void MapArea::resizeEvent(QResizeEvent*) {
  untilSharp_.start(Rest, this);
}

void MapArea::timerEvent(QTimerEvent*) {
  untilSharp_.stop();
  if (picture_.Sharpen(DevicePixels(), part_))
    update();
}

void MapArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!picture_.IsOpaque())
    painter.fillRect(rect(), palette().window());
  picture_.Paint(painter, rect(), DevicePixels(), part_);
  // Now that the picture is on the screen: a later resize finds its pixels there.
  if (!picture_.IsFinished())
    QTimer::singleShot(0, this, [this] { picture_.FinishLoading(); });
}
