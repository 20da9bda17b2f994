#include "controls/windows/FocusStyle.h"

#include "support/Contrast.h"

#include <QComboBox>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

#include <gtest/gtest.h>

namespace {

QPalette Theme(Qt::GlobalColor ground, Qt::GlobalColor text) {
  QPalette palette(ground);
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    palette.setColor(role, text);
  return palette;
}

template <typename Option, typename Draw>
QImage Drawn(const QPalette& palette, const QWidget& widget, QStyle::State state, Draw draw) {
  Option option;
  option.initFrom(&widget);
  option.palette = palette;
  option.rect = QRect(0, 0, 80, 24);
  option.state = state | QStyle::State_Enabled;
  QImage image(option.rect.size(), QImage::Format_RGB32);
  image.fill(palette.color(QPalette::Window));
  QPainter painter(&image);
  draw(option, painter);
  return image;
}

// How many pixels stand out from what they were without the focus, as WCAG wants it of a mark.
template <typename Option, typename Draw>
int Marked(const QPalette& palette, const QWidget& widget, Draw draw) {
  const auto focus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
  const QImage plain = Drawn<Option>(palette, widget, {}, draw);
  const QImage marked = Drawn<Option>(palette, widget, focus, draw);
  int count = 0;
  for (int y = 0; y < plain.height(); ++y)
    for (int x = 0; x < plain.width(); ++x)
      count += Contrast(plain.pixelColor(x, y), marked.pixelColor(x, y)) >= 3 ? 1 : 0;
  return count;
}

}  // namespace

TEST(FocusStyle, TheFocusStandsOutOfButtonAndListInLightAndDark) {
  const FocusStyle style(QStringLiteral("fusion"));
  const QPushButton button;
  const QComboBox list;
  const auto drawButton = [&](const auto& option, QPainter& painter) {
    style.drawControl(QStyle::CE_PushButton, &option, &painter, &button);
  };
  const auto drawList = [&](const auto& option, QPainter& painter) {
    style.drawComplexControl(QStyle::CC_ComboBox, &option, &painter, &list);
  };
  for (const QPalette& theme : {Theme(Qt::lightGray, Qt::black), Theme(Qt::black, Qt::white)}) {
    constexpr int around = 2 * 60 + 2 * 15;
    EXPECT_GE(Marked<QStyleOptionButton>(theme, button, drawButton), around);
    EXPECT_GE(Marked<QStyleOptionComboBox>(theme, list, drawList), around);
  }
}
