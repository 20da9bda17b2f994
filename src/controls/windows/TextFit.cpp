#include "controls/windows/TextFit.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>

namespace {

// What stays free between a grown control and what stopped it.
constexpr int Gap = 4;
// A push button's text and the frame drawn around it, both sides together.
constexpr QSize ButtonFrame(10, 8);
// A frame's title stands indented in its upper edge.
constexpr int TitleIndent = 24;
constexpr double SmallestPoints = 6;
constexpr double PointStep = 0.25;

bool Fits(const QSize& needed, const QSize& given) {
  return needed.width() <= given.width() && needed.height() <= given.height();
}

// How far the rectangle could reach to the right and down, were it alone with one edge of the two.
struct Limits {
  int right = 0;
  int bottom = 0;
};

std::vector<QRect> Neighbours(const QWidget& control) {
  std::vector<QRect> rectangles;
  for (const QObject* child : control.parentWidget()->children()) {
    const auto* other = qobject_cast<const QWidget*>(child);
    if (other && other != &control && !other->isWindow() &&
        other->isVisibleTo(control.parentWidget()))
      rectangles.push_back(other->geometry());
  }
  return rectangles;
}

int RightLimit(const QWidget& control, const QRect& from) {
  int limit = control.parentWidget()->width() - Gap;
  for (const QRect& other : Neighbours(control)) {
    if (other.left() > from.right() && other.top() <= from.bottom() && other.bottom() >= from.top())
      limit = std::min(limit, other.left() - Gap);
  }
  return std::max(limit, from.right() + 1);
}

int BottomLimit(const QWidget& control, const QRect& from) {
  int limit = control.parentWidget()->height() - Gap;
  for (const QRect& other : Neighbours(control)) {
    if (other.top() > from.bottom() && other.left() <= from.right() && other.right() >= from.left())
      limit = std::min(limit, other.top());
  }
  return std::max(limit, from.bottom() + 1);
}

QRect Grown(const QWidget& control, const QRect& designed, const QFont& font) {
  QRect place = designed;
  const int widest = RightLimit(control, designed) - designed.left();
  while (place.width() < widest &&
         !Fits(TextFit::Needed(control, font, place.width()), place.size()))
    place.setWidth(place.width() + 1);
  const int highest = BottomLimit(control, place) - place.top();
  const int needed = TextFit::Needed(control, font, place.width()).height();
  place.setHeight(std::clamp(needed, place.height(), std::max(highest, place.height())));
  return place;
}

}  // namespace

namespace TextFit {

QString TextOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return button->text();
  if (const auto* frame = qobject_cast<const QGroupBox*>(&control))
    return frame->title();
  return {};
}

QSize Needed(const QWidget& control, const QFont& font, int width) {
  const QString text = TextOf(control);
  const QFontMetrics metrics(font, &control);
  if (text.isEmpty())
    return {};
  if (qobject_cast<const QLabel*>(&control))
    return metrics.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, text).size();
  const QSize line = metrics.size(Qt::TextShowMnemonic, text);
  if (qobject_cast<const QGroupBox*>(&control))
    return {line.width() + TitleIndent, line.height()};
  if (qobject_cast<const QRadioButton*>(&control))
    return {line.width() + control.sizeHint().width() -
                control.fontMetrics().size(Qt::TextShowMnemonic, text).width(),
            line.height()};
  return line + ButtonFrame;
}

Place Fit(const QWidget& control, const QRect& designed, const QFont& font) {
  Place place{designed, font};
  if (Fits(Needed(control, font, designed.width()), designed.size()))
    return place;
  const int steps = static_cast<int>((font.pointSizeF() - SmallestPoints) / PointStep);
  for (int step = 0; step <= steps; ++step) {
    place.font.setPointSizeF(font.pointSizeF() - step * PointStep);
    place.rectangle = Grown(control, designed, place.font);
    if (Fits(Needed(control, place.font, place.rectangle.width()), place.rectangle.size()))
      break;
  }
  return place;
}

}  // namespace TextFit
