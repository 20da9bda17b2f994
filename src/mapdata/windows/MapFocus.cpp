#include "mapdata/windows/MapFocus.h"

#include "mapdata/display/MarkerWalk.h"
#include "mapdata/windows/FocusRing.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

std::optional<MarkerWalk::Direction> DirectionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return MarkerWalk::Direction::Left;
    case Qt::Key_Right:
      return MarkerWalk::Direction::Right;
    case Qt::Key_Up:
      return MarkerWalk::Direction::Up;
    case Qt::Key_Down:
      return MarkerWalk::Direction::Down;
    default:
      return std::nullopt;
  }
}

// `from` for a key that leads nowhere.
size_t Target(const std::vector<MarkerWalk::Point>& points, size_t from, int key) {
  const size_t last = points.size() - 1;
  if (key == Qt::Key_Home || key == Qt::Key_End)
    return key == Qt::Key_Home ? 0 : last;
  if (key == Qt::Key_PageDown)
    return std::min(from + 1, last);
  if (key == Qt::Key_PageUp)
    return from == 0 ? 0 : from - 1;
  const auto direction = DirectionOf(key);
  return direction ? MarkerWalk::Next(points, from, *direction).value_or(from) : from;
}

}  // namespace

MapFocus::MapFocus(QWidget* map) : QObject(map), map_(map), ring_(new FocusRing(map)) {}

void MapFocus::Add(ctlLocation* marker, NameLabel* name) {
  spots_.push_back({marker, name});
  marker->installEventFilter(this);
}

std::vector<ctlLocation*> MapFocus::Markers() const {
  std::vector<ctlLocation*> shown;
  for (const Spot& spot : spots_)
    if (!spot.marker->isHidden())
      shown.push_back(spot.marker);
  return shown;
}

size_t MapFocus::NumberOf(const ctlLocation& marker) const {
  const auto found = std::find_if(spots_.begin(), spots_.end(),
                                  [&](const Spot& spot) { return spot.marker == &marker; });
  return static_cast<size_t>(found - spots_.begin());
}

NameLabel& MapFocus::NameOf(const ctlLocation& marker) const {
  return *spots_[NumberOf(marker)].name;
}

void MapFocus::SetPoints(std::vector<std::optional<MarkerWalk::Point>> points) {
  points_ = std::move(points);
}

ctlLocation* MapFocus::Current() const {
  const auto holds = [focus = map_->window()->focusWidget()](const Spot& spot) {
    return spot.marker == focus;
  };
  const auto found = std::find_if(spots_.begin(), spots_.end(), holds);
  return found == spots_.end() ? nullptr : found->marker;
}

void MapFocus::Resume() {
  if (auto* const marker = Current())
    Rest(*marker);
}

void MapFocus::SetRingLeftOut(bool leftOut) {
  ringLeftOut_ = leftOut;
  ShowRing();
}

void MapFocus::MakeTabStop(ctlLocation* marker) {
  if (tabStop_)
    tabStop_->setFocusPolicy(Qt::NoFocus);
  tabStop_ = marker;
  if (tabStop_)
    tabStop_->setFocusPolicy(Qt::TabFocus);
}

bool MapFocus::eventFilter(QObject* watched, QEvent* event) {
  auto& marker = static_cast<ctlLocation&>(*watched);
  switch (event->type()) {
    case QEvent::ShowToParent:
      if (!tabStop_)
        MakeTabStop(&marker);
      break;
    case QEvent::HideToParent:
      if (tabStop_ == &marker)
        MakeTabStop(nullptr);
      // The toolkit leaves the focus on a hidden widget where no other can take it.
      marker.clearFocus();
      break;
    case QEvent::FocusIn:
      TakeFocus(marker, static_cast<const QFocusEvent&>(*event).reason());
      break;
    case QEvent::FocusOut:
      left_ = static_cast<const QFocusEvent&>(*event).reason() == Qt::ActiveWindowFocusReason
                  ? &marker
                  : nullptr;
      Leave();
      break;
    case QEvent::Move:
      if (tabStop_ == &marker)
        ShowRing();
      break;
    case QEvent::KeyPress:
      return Press(marker, static_cast<QKeyEvent&>(*event));
    default:
      break;
  }
  return false;
}

// A window that becomes active without a focus gives it to its first Tab stop, which would show a
// name that nobody asked for.
void MapFocus::TakeFocus(ctlLocation& marker, Qt::FocusReason reason) {
  if (reason == Qt::ActiveWindowFocusReason && left_ != &marker)
    marker.clearFocus();
  else
    Rest(marker);
}

void MapFocus::Rest(ctlLocation& marker) {
  MakeTabStop(&marker);
  marker.Hover();
  NameOf(marker).Hover();
  ShowRing();
  untilTip_.start(map_->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay), this);
}

void MapFocus::Leave() {
  ring_->hide();
  untilTip_.stop();
  QToolTip::hideText();
}

void MapFocus::ShowRing() {
  if (tabStop_ && tabStop_->hasFocus() && !ringLeftOut_)
    ring_->Surround(*tabStop_);
  else
    ring_->hide();
}

void MapFocus::timerEvent(QTimerEvent*) {
  untilTip_.stop();
  if (!tabStop_)
    return;
  NameLabel& name = NameOf(*tabStop_);
  const QPoint below = name.rect().bottomLeft();
  QHelpEvent help(QEvent::ToolTip, below, name.mapToGlobal(below));
  QApplication::sendEvent(&name, &help);
}

bool MapFocus::Press(ctlLocation& marker, const QKeyEvent& key) {
  if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
    return false;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      marker.Activate();
      return true;
    case Qt::Key_Escape:
      marker.clearFocus();
      Q_EMIT Left();
      return true;
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      Walk(marker, key.key());
      return true;
    default:
      return false;
  }
}

void MapFocus::Walk(ctlLocation& from, int key) {
  std::vector<size_t> numbers;
  std::vector<MarkerWalk::Point> points;
  for (size_t number = 0; number < points_.size(); ++number)
    if (points_[number]) {
      numbers.push_back(number);
      points.push_back(*points_[number]);
    }
  const auto at = std::find(numbers.begin(), numbers.end(), NumberOf(from));
  if (at == numbers.end())
    return;
  const size_t target = numbers[Target(points, static_cast<size_t>(at - numbers.begin()), key)];
  Q_EMIT Reached(target);
  // A position beyond the picture can't be brought into a closer view.
  if (!spots_[target].marker->isHidden())
    spots_[target].marker->setFocus();
}
