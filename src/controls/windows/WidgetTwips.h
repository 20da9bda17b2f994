#pragma once

#include "app/Twips2Pixel_Module.h"

#include <QColor>
#include <QFont>
#include <QSize>

class QWidget;

/// Where twips become a widget's pixels, and the fonts that sizes in twips were made for.
namespace WidgetTwips {

/// The scale of the screen that the widget is on.
[[nodiscard]] Twips2Pixel_Module::Screen ScreenOf(const QWidget& widget);

/// Horizontal twips as whole pixels.
[[nodiscard]] int ToPixelsX(const Twips2Pixel_Module::Screen& screen, int twips);

/// Vertical twips as whole pixels.
[[nodiscard]] int ToPixelsY(const Twips2Pixel_Module::Screen& screen, int twips);

/// A size in pixels as twips.
[[nodiscard]] Twips2Pixel_Module::Twips ToTwips(const Twips2Pixel_Module::Screen& screen,
                                                const QSize& pixels);

/// The program's font in points, fractions allowed.
[[nodiscard]] QFont Font(double points, bool bold = false);

/// The colour that a number stands for: red + 256 x green + 65536 x blue, or with its top bit set
/// one of the system's, such as 0x80000005 for the ground of windows.
[[nodiscard]] QColor Color(int number);

}  // namespace WidgetTwips
