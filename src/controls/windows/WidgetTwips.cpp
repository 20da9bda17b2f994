#include "controls/windows/WidgetTwips.h"

#include <QWidget>

using Twips2Pixel_Module::Round;
using Twips2Pixel_Module::Screen;

namespace {

constexpr double TwipsPerInch = 1440;

}  // namespace

namespace WidgetTwips {

Screen ScreenOf(const QWidget& widget) {
  return {TwipsPerInch / widget.logicalDpiX(), TwipsPerInch / widget.logicalDpiY()};
}

int ToPixelsX(const Screen& screen, int twips) {
  return Round(twips / screen.twipsPerPixelX);
}

int ToPixelsY(const Screen& screen, int twips) {
  return Round(twips / screen.twipsPerPixelY);
}

Twips2Pixel_Module::Twips ToTwips(const Screen& screen, const QSize& pixels) {
  return {Twips2Pixel_Module::PixelsToTwipsX(screen, pixels.width()),
          Twips2Pixel_Module::PixelsToTwipsY(screen, pixels.height())};
}

QFont Font(double points, bool bold) {
  QFont font;
  font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                    QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
  // The constructor takes whole points only.
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

QColor Color(int number) {
  return {number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF};
}

}  // namespace WidgetTwips
