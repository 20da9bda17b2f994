#include "mapdata/windows/MarkerSlots.h"

#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"

namespace {

constexpr double LabelPoints = 9.75;

QString Indexed(QLatin1StringView name, int slot) {
  return QStringLiteral("%1(%2)").arg(name).arg(slot);
}

}  // namespace

MarkerSlots::MarkerSlots(QWidget* map, QWidget* between, QWidget* above)
    : QObject(map), between_(between), above_(above) {
  for (int slot = 0; slot < Count; ++slot) {
    auto* label = new NameLabel(map, LabelPoints, ctlLocation::DarkRed, ctlLocation::Gold);
    auto* dot = new ctlLocation(map);
    label->setObjectName(Indexed(QLatin1StringView("lblDOT"), slot));
    dot->setObjectName(Indexed(QLatin1StringView("DOT"), slot));
    label->stackUnder(between);
    dot->stackUnder(above);
    label->hide();
    dot->hide();
    connect(dot, &ctlLocation::MouseMove, this, [this, slot] { Q_EMIT DotMoved(slot); });
    connect(dot, &ctlLocation::DblClick, this, [this, slot] { Q_EMIT DotDoubleClicked(slot); });
    connect(label, &NameLabel::MouseMove, this, [this, slot] { Q_EMIT LabelMoved(slot); });
    connect(label, &NameLabel::DblClick, this, [this, slot] { Q_EMIT LabelDoubleClicked(slot); });
    labels_[static_cast<size_t>(slot)] = label;
    dots_[static_cast<size_t>(slot)] = dot;
  }
}

void MarkerSlots::BringToFront(int slot) {
  if (front_ == slot)
    return;
  front_ = slot;
  Label(slot).stackUnder(between_);
  Dot(slot).stackUnder(above_);
}
