#include "mapdata/windows/MarkerSlots.h"

#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Placement.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"
#include "platform/windows/QtText.h"

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

void MarkerSlots::Clear() {
  front_ = -1;
  for (int slot = 0; slot < Count; ++slot) {
    Dot(slot).hide();
    Dot(slot).SetDesc({});
    Dot(slot).ResetBorderColor();
    Label(slot).hide();
    Label(slot).setToolTip({});
    Label(slot).SetTextColor(ctlLocation::DarkRed);
  }
}

void MarkerSlots::Set(int slot, const EntityFile::Marker& entity,
                      const Twips2Pixel_Module::Twips& point, bool labelShown, int windowWidth) {
  const auto screen = WidgetTwips::ScreenOf(*between_);
  const auto at = Placement::MarkerAt(point);
  const int color = entity.highlighted ? ctlLocation::Green : ctlLocation::DarkRed;
  Dot(slot).SetBorderColor(color);
  Label(slot).SetTextColor(color);
  Dot(slot).move(WidgetTwips::ToPixelsX(screen, at.x), WidgetTwips::ToPixelsY(screen, at.y));
  Dot(slot).SetDesc(QtText::ToQt(entity.name));
  if (entity.disabled)
    return;
  Dot(slot).show();
  Label(slot).SetCaption(QtText::ToQt(Texts::Padded(entity.name)));
  const int width = WidgetTwips::ToTwips(screen, Label(slot).size()).x;
  const int left = Placement::SlotLabelLeft(slot, at.x, width, windowWidth);
  Label(slot).move(WidgetTwips::ToPixelsX(screen, left),
                   WidgetTwips::ToPixelsY(screen, Placement::LabelTop(at.y)));
  Label(slot).setVisible(labelShown);
}

void MarkerSlots::ShowLabel(int slot, bool alone) {
  for (int other = 0; alone && other < Count; ++other)
    if (other != slot)
      Label(other).hide();
  Label(slot).show();
}

void MarkerSlots::BringToFront(int slot) {
  if (front_ == slot)
    return;
  front_ = slot;
  Label(slot).stackUnder(between_);
  Dot(slot).stackUnder(above_);
}
