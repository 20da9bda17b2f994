#include "mapdata/windows/MapView.h"

#include "controls/windows/GermanOrder.h"
#include "controls/windows/PrintableWidget.h"
#include "controls/windows/WidgetTwips.h"
#include "mapdata/display/Placement.h"
#include "mapdata/windows/MapAccess.h"
#include "mapdata/windows/MapArea.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MarkerSlots.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "platform/windows/QtText.h"

#include <QComboBox>
#include <QFrame>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

using QtText::FromQt;
using QtText::ToQt;
using Twips2Pixel_Module::Twips;

namespace {

constexpr double CaptionPoints = 9.75;
constexpr double HeadingPoints = 12;
constexpr int RightGap = 110;
constexpr int MostVisibleItems = 30;

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

void MoveTwips(QWidget& widget, const Twips& leftTop) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  widget.move(WidgetTwips::ToPixelsX(screen, leftTop.x), WidgetTwips::ToPixelsY(screen, leftTop.y));
}

int WidthInTwips(const QWidget& widget) {
  return WidgetTwips::ToTwips(WidgetTwips::ScreenOf(widget), widget.size()).x;
}

QStringList Sorted(const std::vector<Text>& names) {
  QStringList sorted;
  for (const Text& name : names)
    sorted.append(ToQt(name));
  std::stable_sort(sorted.begin(), sorted.end(), GermanOrder());
  return sorted;
}

}  // namespace

MapView::MapView(IniOps::Cache& files, const EntityNames& names, QWidget* parent)
    : QWidget(parent), files_(files), names_(names) {
  MapAccess::Install();
  CreateControls();
  ConnectControls();
  imgMap->ShowStartPicture();
  ClearUI();
}

// In stacking order: the picture, names, markers, and what lies over the whole map.
void MapView::CreateControls() {
  focus_ = new MapFocus(this);
  imgMap = Named(new MapArea(this), QLatin1StringView("imgMap"));
  linMenuSep = Named(new QFrame(this), QLatin1StringView("linMenuSep"));
  linMenuSep->setFrameShape(QFrame::HLine);
  SetTwips(*linMenuSep, {}, {StartSize.x, 0});
  linMenuSep->resize(linMenuSep->width(), 1);
  lblCaption = Named(new NameLabel(this, CaptionPoints, ctlLocation::DarkRed, ctlLocation::Gold),
                     QLatin1StringView("lblCaption"));
  ITEM = Named(new ctlLocation(this), QLatin1StringView("ITEM"));
  lblMultiInfo = Named(new NameLabel(this, HeadingPoints, ctlLocation::Gold, ctlLocation::DarkRed),
                       QLatin1StringView("lblMultiInfo"));
  slots_ = new MarkerSlots(this, ITEM, lblMultiInfo);
  focus_->Add(ITEM, lblCaption);
  for (int slot = 0; slot < MarkerSlots::Count; ++slot)
    focus_->Add(&slots_->Dot(slot), &slots_->Label(slot));
  cboItems = Named(new QComboBox(this), QLatin1StringView("cboItems"));
  cboItems->setMaxVisibleItems(MostVisibleItems);
  SetTwips(*cboItems, {}, {4215, 360});
  btnInfo = Named(new QToolButton(this), QLatin1StringView("btnInfo"));
  btnInfo->setIcon(QIcon(QStringLiteral(":/builtin/info.png")));
  btnInfo->setFocusPolicy(Qt::StrongFocus);
  SetTwips(*btnInfo, {0, 5}, {375, 360});
}

void MapView::ConnectControls() {
  connect(cboItems, &QComboBox::activated, this, [this] {
    if (!cboItems->isHidden())
      cboItems_Click();
  });
  connect(btnInfo, &QToolButton::clicked, this, &MapView::btnInfo_Click);
  connect(ITEM, &ctlLocation::DblClick, this, &MapView::btnInfo_Click);
  connect(lblCaption, &NameLabel::DblClick, this, &MapView::lblCaption_DblClick);
  connect(lblCaption, &NameLabel::MouseMove, this, &MapView::lblCaption_MouseMove);
  connect(focus_, &MapFocus::Left, cboItems,
          [this] { cboItems->setFocus(Qt::ShortcutFocusReason); });
  connect(slots_, &MarkerSlots::DotMoved, this, &MapView::DOT_MouseMove);
  connect(slots_, &MarkerSlots::DotDoubleClicked, this, &MapView::DOT_DblClick);
  connect(slots_, &MarkerSlots::LabelMoved, this, &MapView::lblDOT_MouseMove);
  connect(slots_, &MarkerSlots::LabelDoubleClicked, this, &MapView::lblDOT_DblClick);
}

void MapView::SetTexts(const Text& prompt, const Text& infoToolTip, const Text& highlighted,
                       const Text& spokenPrompt) {
  prompt_ = prompt;
  highlighted_ = highlighted;
  btnInfo->setToolTip(ToQt(infoToolTip));
  btnInfo->setAccessibleName(ToQt(infoToolTip));
  cboItems->setAccessibleName(ToQt(spokenPrompt));
}

int MapView::WindowWidth() const {
  return MapSize().x + Placement::FrameWidth;
}

Twips MapView::MapSize() const {
  return WidgetTwips::ToTwips(WidgetTwips::ScreenOf(*this), size());
}

void MapView::Paint(QPainter& painter) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), imgMap->Pixels());
  focus_->SetRingLeftOut(true);
  for (QObject* child : children()) {
    auto* widget = qobject_cast<QWidget*>(child);
    if (widget && widget != imgMap && widget->isVisible())
      PrintableWidget::Paint(*widget, painter, widget->pos());
  }
  focus_->SetRingLeftOut(false);
}

Twips MapView::PointAt(int x, int y) const {
  return Twips2Pixel_Module::PointOnMap(WidgetTwips::ScreenOf(*this), MapSize(), x, y);
}

void MapView::ClearUI() {
  slots_->Clear();
  lblMultiInfo->hide();
  imgMap->setAccessibleName({});
  HideItem();
  ITEM->SetDesc({});
  lblCaption->setToolTip({});
  for (QWidget* hidden : {static_cast<QWidget*>(btnInfo), static_cast<QWidget*>(cboItems)}) {
    hidden->hide();
    // The toolkit leaves it there, and a menu that closes brings it back.
    hidden->clearFocus();
  }
}

void MapView::ShowNoRegion() {
  ClearUI();
  View = {};
  imgMap->ShowStartPicture();
}

bool MapView::LoadPicture(const Text& path) {
  if (imgMap->LoadPicture(path))
    return true;
  imgMap->ShowStartPicture();
  return false;
}

void MapView::Change(const Text& Map, const Text& Data, const Text& KindX) {
  ClearUI();
  View = {};
  if (!LoadPicture(Map))
    return;
  Q_EMIT Displayed();
  cboItems->show();
  btnInfo->show();
  SetCategory(Data, KindX);
  IniOps::Snapshot files(files_);
  FillItems(EntityFile::ReadNames(files.File(Data), KindX, files, names_));
  cboItems_Click();
  cboItems->setFocus(Qt::ShortcutFocusReason);
}

void MapView::FillItems(const std::vector<Text>& names) {
  const QSignalBlocker blocker(cboItems);
  cboItems->clear();
  cboItems->addItem(ToQt(prompt_));
  cboItems->addItems(Sorted(names));
  cboItems->setCurrentIndex(0);
}

void MapView::ChangeMulti(const Text& Map, const Text& Data, const Text& KindX, const Text& Heading,
                          bool LabelsOnHover) {
  Q_EMIT Displayed();
  View = {Map, Data, KindX, Heading, LabelsOnHover, {}};
  ClearUI();
  if (!LoadPicture(Map))
    return;
  IniOps::Snapshot files(files_);
  const auto markers =
      EntityFile::ReadMarkers(files.File(Data), KindX, files, names_, MarkerSlots::Count);
  int slot = 0;
  for (const EntityFile::Marker& marker : markers)
    slots_->Set(slot++, marker, PointAt(marker.position.x, marker.position.y), !LabelsOnHover,
                WindowWidth());
  ShowHeading(Texts::Padded(Texts::ReplaceAll(Heading, u"&", u"")));
}

void MapView::ShowHeading(const Text& caption) {
  lblMultiInfo->SetCaption(ToQt(caption));
  imgMap->setAccessibleName(ToQt(caption).trimmed());
  PlaceHeading();
  lblMultiInfo->show();
}

Text MapView::Heading() const {
  return lblMultiInfo->isHidden() ? Text() : FromQt(lblMultiInfo->text());
}

void MapView::PlaceHeading() {
  MoveTwips(*lblMultiInfo, {Placement::HeadingLeft(WidthInTwips(*lblMultiInfo), WindowWidth()), 0});
}

void MapView::SetCategory(const Text& dataFile, const Text& categoryKey) {
  dataFile_ = dataFile;
  categoryKey_ = categoryKey;
}

void MapView::HideItem() {
  ITEM->hide();
  lblCaption->hide();
}

void MapView::cboItems_Click() {
  const Text listed = FromQt(cboItems->currentText());
  const Text name = listed.empty() ? View.SelectedEntity : listed;
  if (listed.starts_with(u' ')) {
    HideItem();
    return;
  }
  IniOps::Snapshot files(files_);
  const auto position =
      EntityFile::ReadPicked(files.File(dataFile_), categoryKey_, names_.Key(name));
  lblCaption->setToolTip({});
  View = {{}, dataFile_, categoryKey_, {}, false, name};
  if (!position) {
    HideItem();
    return;
  }
  PlaceItem(Placement::MarkerAt(PointAt(position->x, position->y)), name);
  PlaceCaption(Texts::Padded(name));
}

void MapView::PlaceItem(const Twips& at, const Text& name) {
  itemAt_ = at;
  MoveTwips(*ITEM, at);
  ITEM->SetDesc(ToQt(name));
  ITEM->show();
}

void MapView::PlaceCaption(const Text& caption) {
  lblCaption->SetCaption(ToQt(caption));
  MoveTwips(*lblCaption,
            {Placement::SingleLabelLeft(itemAt_.x, WidthInTwips(*lblCaption), WindowWidth()),
             Placement::LabelTop(itemAt_.y)});
  lblCaption->show();
}

void MapView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Form_Resize();
}

void MapView::Form_Resize() {
  imgMap->setGeometry(rect());
  const auto screen = WidgetTwips::ScreenOf(*this);
  const int listLeft = WindowWidth() - WidthInTwips(*cboItems) - RightGap;
  cboItems->move(WidgetTwips::ToPixelsX(screen, listLeft), cboItems->y());
  btnInfo->move(WidgetTwips::ToPixelsX(screen, listLeft - WidthInTwips(*btnInfo)), btnInfo->y());
  if (View.DataFile.empty())
    return;
  if (!View.SelectedEntity.empty()) {
    PlaceHeading();
    SetCategory(View.DataFile, View.CategoryKey);
    cboItems_Click();
    return;
  }
  const ViewState view = View;
  ctlLocation* const focused = focus_->Current();
  ChangeMulti(view.MapPicture, view.DataFile, view.CategoryKey, view.Heading, view.LabelsOnHover);
  focus_->Resume(focused);
}

void MapView::btnInfo_Click() {
  const Text listed = FromQt(cboItems->currentText());
  if (cboItems->isHidden()) {
    Q_EMIT InfoRequested();
  } else if (listed == prompt_) {
    cboItems->setFocus(Qt::ShortcutFocusReason);
  } else {
    InfoMulti(listed);
  }
}

void MapView::lblCaption_DblClick() {
  btnInfo_Click();
}

void MapView::lblCaption_MouseMove() {
  ShowDescription(*lblCaption);
}

void MapView::InfoMulti(const Text& nameX) {
  InfoEntityName = nameX;
  Q_EMIT InfoRequested();
}

void MapView::DOT_MouseMove(int index) {
  slots_->BringToFront(index);
  slots_->ShowLabel(index, View.LabelsOnHover);
}

void MapView::DOT_DblClick(int index) {
  InfoMulti(FromQt(slots_->Dot(index).Desc()));
}

void MapView::lblDOT_MouseMove(int index) {
  slots_->BringToFront(index);
  ShowDescription(slots_->Label(index));
}

void MapView::lblDOT_DblClick(int index) {
  InfoMulti(FromQt(slots_->Label(index).text()));
}

QString MapView::Description(const NameLabel& label) {
  IniOps::Snapshot files(files_);
  const Text key = Texts::Lower(names_.Key(FromQt(label.text())));
  return ToQt(InfoFile::TooltipOf(InfoFile::ReadEntry(files.File(names_.InfoPath()), key)));
}

void MapView::ShowDescription(NameLabel& label) {
  const QString description = Description(label);
  if (!description.isEmpty())
    label.setToolTip(description);
}

QString MapView::SpokenDescription(const ctlLocation& marker) {
  const bool plain = marker.BorderColor() == ctlLocation::DarkRed;
  const QString mark = plain ? QString() : ToQt(highlighted_) + QStringLiteral(". ");
  return mark + Description(focus_->NameOf(marker));
}
