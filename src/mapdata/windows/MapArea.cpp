#include "mapdata/windows/MapArea.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

namespace {

constexpr TextView StartPicture = u":/builtin/overview.jpg";

}  // namespace

MapArea::MapArea(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize MapArea::DevicePixels() const {
  return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

bool MapArea::LoadPicture(TextView path) {
  const QSize onScreen = (QSizeF(screen()->size()) * devicePixelRatioF()).toSize();
  // A window may be larger than its screen.
  if (!picture_.Load(path, DevicePixels(), onScreen.expandedTo(DevicePixels())))
    return false;
  update();
  return true;
}

void MapArea::ShowStartPicture() {
  static_cast<void>(LoadPicture(StartPicture));
}

void MapArea::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QImage& picture = picture_.At(DevicePixels());
  if (picture.isNull()) {
    painter.fillRect(event->rect(), palette().window());
    return;
  }
  const double ratio = devicePixelRatioF();
  const QRectF from(QPointF(event->rect().topLeft()) * ratio, QSizeF(event->rect().size()) * ratio);
  painter.drawImage(QRectF(event->rect()), picture, from);
  // Now that the picture is on the screen: a later resize finds its pixels there.
  if (!picture_.IsSettled())
    QTimer::singleShot(0, this, [this] { picture_.Settle(); });
}
