#include "mapdata/windows/MapControls.h"

#include "controls/windows/GermanOrder.h"
#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Plan.h"
#include "mapdata/windows/MapArea.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MapGestures.h"
#include "mapdata/windows/MarkerSlots.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"
#include "platform/windows/QtText.h"

#include <QComboBox>
#include <QFrame>
#include <QIcon>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

using QtText::ToQt;
using Twips2Pixel_Module::Twips;

namespace {

constexpr double CaptionPoints = 9.75;
constexpr double HeadingPoints = 12;
constexpr int RightGap = 110;
constexpr int MaximumVisibleItems = 30;
constexpr int LineWidth = 15360;

template <typename Widget>
Widget* Named(Widget* widget, QLatin1StringView name) {
  widget->setObjectName(name);
  return widget;
}

void SetTwips(QWidget& widget, const Twips& leftTop, const Twips& size) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  widget.setGeometry(
      WidgetTwips::ToPixelsX(screen, leftTop.x), WidgetTwips::ToPixelsY(screen, leftTop.y),
      WidgetTwips::ToPixelsX(screen, size.x), WidgetTwips::ToPixelsY(screen, size.y));
}

int WidthInTwips(const QWidget& widget) {
  return WidgetTwips::ToTwips(WidgetTwips::ScreenOf(widget), widget.size()).x;
}

void FillIn(const MapPlan::Marker& entity, ctlLocation& marker, NameLabel& label) {
  const int color = entity.highlighted ? ctlLocation::Green : ctlLocation::DarkRed;
  marker.SetBorderColor(color);
  marker.SetHighlighted(entity.highlighted);
  marker.SetDesc(ToQt(entity.name));
  label.SetTextColor(color);
  label.setToolTip({});
  label.SetCaption(ToQt(entity.caption));
}

void EmptyOut(ctlLocation& marker, NameLabel& label) {
  if (marker.Desc().isEmpty())
    return;
  marker.hide();
  marker.SetDesc({});
  marker.ResetBorderColor();
  marker.SetHighlighted(false);
  label.hide();
  label.SetTextColor(ctlLocation::DarkRed);
  label.setToolTip({});
}

}  // namespace

MapControls::MapControls(QWidget* map)
    : imgMap(Named(new MapArea(map), QLatin1StringView("imgMap"))),
      linMenuSep(Named(new QFrame(map), QLatin1StringView("linMenuSep"))),
      lblCaption(Named(new NameLabel(map, CaptionPoints, ctlLocation::DarkRed, ctlLocation::Gold),
                       QLatin1StringView("lblCaption"))),
      ITEM(Named(new ctlLocation(map), QLatin1StringView("ITEM"))),
      lblMultiInfo(Named(new NameLabel(map, HeadingPoints, ctlLocation::Gold, ctlLocation::DarkRed),
                         QLatin1StringView("lblMultiInfo"))),
      slots_(new MarkerSlots(map, ITEM, lblMultiInfo)),
      cboItems(Named(new QComboBox(map), QLatin1StringView("cboItems"))),
      btnInfo(Named(new QToolButton(map), QLatin1StringView("btnInfo"))),
      map_(map) {
  ITEM->hide();
  lblCaption->hide();
  linMenuSep->setFrameShape(QFrame::HLine);
  SetTwips(*linMenuSep, {}, {LineWidth, 0});
  linMenuSep->resize(linMenuSep->width(), 1);
  cboItems->setMaxVisibleItems(MaximumVisibleItems);
  SetTwips(*cboItems, {}, {4215, 360});
  btnInfo->setIcon(QIcon(QStringLiteral(":/builtin/info.png")));
  btnInfo->setFocusPolicy(Qt::StrongFocus);
  SetTwips(*btnInfo, {0, 5}, {375, 360});
}

void MapControls::AddTo(MapFocus& focus, MapGestures& gestures) const {
  const auto add = [&](ctlLocation* marker, NameLabel* label) {
    focus.Add(marker, label);
    gestures.Add(marker);
    gestures.Add(label);
  };
  gestures.AddPicture(imgMap);
  add(ITEM, lblCaption);
  for (int slot = 0; slot < MarkerSlots::Count; ++slot)
    add(&slots_->Dot(slot), &slots_->Label(slot));
}

void MapControls::SetTexts(const QString& spokenPrompt, const QString& infoToolTip) {
  btnInfo->setToolTip(infoToolTip);
  btnInfo->setAccessibleName(infoToolTip);
  cboItems->setAccessibleName(spokenPrompt);
}

bool MapControls::Select(const QString& row) {
  cboItems->setCurrentIndex(cboItems->findText(row, Qt::MatchExactly | Qt::MatchCaseSensitive));
  return cboItems->currentIndex() >= 0;
}

ctlLocation& MapControls::Marker(const MapPlan& plan, size_t number) const {
  return plan.single ? *ITEM : slots_->Dot(static_cast<int>(number));
}

NameLabel& MapControls::Label(const MapPlan& plan, size_t number) const {
  return plan.single ? *lblCaption : slots_->Label(static_cast<int>(number));
}

void MapControls::Fill(const MapPlan& plan) {
  Empty(plan);
  for (size_t i = 0; i < plan.markers.size(); ++i)
    FillIn(plan.markers[i], Marker(plan, i), Label(plan, i));
  const QString heading = ToQt(plan.heading);
  lblMultiInfo->SetCaption(heading);
  imgMap->setAccessibleName(heading.trimmed());
  lblMultiInfo->setVisible(!heading.isEmpty());
}

void MapControls::Empty(const MapPlan& plan) {
  if (!plan.single || plan.markers.empty())
    EmptyOut(*ITEM, *lblCaption);
  const size_t used = plan.single ? 0 : plan.markers.size();
  for (size_t slot = used; slot < MapPlan::MaximumMarkers; ++slot)
    EmptyOut(slots_->Dot(static_cast<int>(slot)), slots_->Label(static_cast<int>(slot)));
}

TextWidths MapControls::Widths(const MapPlan& plan) const {
  TextWidths widths;
  widths.captions.reserve(plan.markers.size());
  for (size_t i = 0; i < plan.markers.size(); ++i)
    widths.captions.push_back(WidthInTwips(Label(plan, i)));
  widths.heading = WidthInTwips(*lblMultiInfo);
  return widths;
}

void MapControls::Move(QWidget& widget, const Twips& leftTop) const {
  const auto screen = WidgetTwips::ScreenOf(*map_);
  widget.move(WidgetTwips::ToPixelsX(screen, leftTop.x), WidgetTwips::ToPixelsY(screen, leftTop.y));
}

void MapControls::Place(const MapPlan& plan, const MapLayout& layout, int hovered) {
  // One repaint for all that moves.
  map_->setUpdatesEnabled(false);
  for (size_t i = 0; i < plan.markers.size(); ++i) {
    const MapPlan::Marker& entity = plan.markers[i];
    const MapLayout::Place& place = layout.places[i];
    const bool named = entity.captionShown || (entity.shown && static_cast<int>(i) == hovered);
    Move(Marker(plan, i), place.marker);
    Move(Label(plan, i), place.caption);
    Marker(plan, i).setVisible(entity.shown && place.inView);
    Label(plan, i).setVisible(named && place.inView);
  }
  Move(*lblMultiInfo, {layout.headingLeft, 0});
  map_->setUpdatesEnabled(true);
}

void MapControls::FitTo(const QSize& map, int windowWidth) {
  imgMap->resize(map);
  const auto screen = WidgetTwips::ScreenOf(*map_);
  const int listLeft = windowWidth - WidthInTwips(*cboItems) - RightGap;
  cboItems->move(WidgetTwips::ToPixelsX(screen, listLeft), cboItems->y());
  btnInfo->move(WidgetTwips::ToPixelsX(screen, listLeft - WidthInTwips(*btnInfo)), btnInfo->y());
}

void MapControls::ShowList(bool shown) {
  for (QWidget* widget : {static_cast<QWidget*>(btnInfo), static_cast<QWidget*>(cboItems)}) {
    widget->setVisible(shown);
    // The toolkit leaves it there, and a menu that closes brings it back.
    if (!shown)
      widget->clearFocus();
  }
}

void MapControls::List(const QString& prompt, const std::vector<Text>& names) {
  const QSignalBlocker blocker(cboItems);
  QStringList rows;
  for (const Text& name : names)
    rows.append(ToQt(name));
  std::stable_sort(rows.begin(), rows.end(), GermanOrder());
  cboItems->clear();
  cboItems->addItem(prompt);
  cboItems->addItems(rows);
  cboItems->setCurrentIndex(0);
}
