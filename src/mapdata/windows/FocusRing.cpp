#include "mapdata/windows/FocusRing.h"

#include "controls/windows/WidgetTwips.h"

#include <QPainter>
#include <QPen>

namespace {

// In twips: what lies between marker and ring, and the width of each of its two circles.
constexpr int Gap = 15;
constexpr int CircleWidth = 30;

}  // namespace

FocusRing::FocusRing(QWidget* map) : QWidget(map) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void FocusRing::Surround(const QWidget& marker) {
  const int around = WidgetTwips::ToPixelsX(WidgetTwips::ScreenOf(*this), Gap + 2 * CircleWidth);
  setGeometry(marker.geometry().adjusted(-around, -around, around, around));
  raise();
  show();
}

void FocusRing::paintEvent(QPaintEvent*) {
  const double width = CircleWidth / WidgetTwips::ScreenOf(*this).twipsPerPixelX;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF circle = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
  for (const Qt::GlobalColor color : {Qt::black, Qt::white}) {
    painter.setPen(QPen(color, width));
    painter.drawEllipse(circle);
    circle.adjust(width, width, -width, -width);
  }
}
