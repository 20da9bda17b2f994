#include "controls/windows/WidgetTwips.h"

#include <QPalette>
#include <QWidget>

using Twips2Pixel_Module::Round;
using Twips2Pixel_Module::Screen;
using Twips2Pixel_Module::TwipsPerInch;

namespace {

// The roles of the system's colours by their numbers.
QPalette::ColorRole SystemRole(int number) {
  switch (number) {
    case 0x05:
      return QPalette::Base;
    case 0x08:
      return QPalette::Text;
    case 0x0D:
      return QPalette::Highlight;
    case 0x0E:
      return QPalette::HighlightedText;
    case 0x10:
      return QPalette::Dark;
    case 0x11:
      return QPalette::PlaceholderText;
    case 0x07:
    case 0x09:
    case 0x12:
      return QPalette::ButtonText;
    case 0x14:
      return QPalette::Light;
    case 0x17:
      return QPalette::ToolTipText;
    case 0x18:
      return QPalette::ToolTipBase;
    default:
      return QPalette::Button;
  }
}

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
  if (number < 0)
    return QPalette().color(QPalette::Active, SystemRole(number & 0xFF));
  return {number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF};
}

}  // namespace WidgetTwips
