#include "mapdata/windows/MapView.h"

#include "mapdata/display/Plan.h"
#include "mapdata/windows/MapAccess.h"
#include "mapdata/windows/MapArea.h"
#include "mapdata/windows/MapControls.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MapGestures.h"
#include "mapdata/windows/MapLook.h"
#include "mapdata/windows/MapPointer.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ShiftCursor.h"
#include "mapdata/windows/ctlLocation.h"
#include "mapdata/world/EntityNames.h"
#include "platform/windows/QtText.h"

#include <QComboBox>
#include <QPainter>
#include <QToolButton>

using Kind = ViewState::Kind;
using QtText::FromQt;
using QtText::ToQt;

MapView::MapView(IniOps::Cache& cache, const EntityNames& names, QWidget* parent,
                 const Text& startPicture)
    : QWidget(parent),
      cache_(cache),
      names_(names),
      focus_(new MapFocus(this)),
      controls_(std::make_unique<MapControls>(this)),
      gestures_(new MapGestures(this)),
      look_(new MapLook(*this, *controls_, *focus_, *gestures_)),
      pointer_(new MapPointer(*this, *controls_, *focus_, *look_, cache, names)) {
  MapAccess::Install();
  new ShiftCursor(this);
  ConnectControls();
  controls_->imgMap->SetStartPicture(startPicture);
  ClearUI();
}

MapView::~MapView() = default;

void MapView::ConnectControls() {
  MapControls& controls = *controls_;
  controls.AddTo(*focus_, *gestures_);
  connect(gestures_, &MapGestures::RepeatWanted, this, &MapView::Repeat);
  connect(focus_, &MapFocus::Left, this,
          [this] { controls_->cboItems->setFocus(Qt::ShortcutFocusReason); });
  connect(controls.cboItems, &QComboBox::activated, this, [this] {
    if (controls_->cboItems->isHidden())
      return;
    cboItems_Click();
    look_->BringIntoView(0);
  });
  connect(controls.btnInfo, &QToolButton::clicked, this, &MapView::btnInfo_Click);
  connect(controls.ITEM, &ctlLocation::DblClick, this, &MapView::btnInfo_Click);
  connect(controls.lblCaption, &NameLabel::DblClick, this, &MapView::lblCaption_DblClick);
  connect(pointer_, &MapPointer::InfoWanted, this, &MapView::InfoMulti);
}

void MapView::SetTexts(const Text& prompt, const Text& infoToolTip, const Text& highlighted,
                       const Text& spokenPrompt) {
  prompt_ = prompt;
  controls_->SetTexts(ToQt(spokenPrompt), ToQt(infoToolTip));
  pointer_->SetHighlightedText(ToQt(highlighted));
}

void MapView::ClearUI() {
  controls_->ShowList(false);
  look_->Show({});
}

void MapView::ShowNoRegion() {
  ClearUI();
  view_ = {};
  look_->ShowWhole();
  controls_->imgMap->ShowStartPicture();
}

// False, and the start-up picture, if the picture can't be read.
bool MapView::Begin(const ViewState& view) {
  ClearUI();
  view_ = view;
  look_->ShowWhole();
  return Load();
}

bool MapView::Load() {
  if (controls_->imgMap->LoadPicture(view_.MapPicture))
    return true;
  // Markers are tried again at the next resize.
  const ViewState next = view_.kind == Kind::Markers ? view_ : ViewState();
  ShowNoRegion();
  view_ = next;
  return false;
}

void MapView::Change(const Text& Map, const Text& Data, const Text& KindX) {
  if (!Begin({.kind = Kind::List, .MapPicture = Map, .DataFile = Data, .CategoryKey = KindX}))
    return;
  Q_EMIT Displayed();
  controls_->ShowList(true);
  FillList();
  cboItems_Click();
  controls_->cboItems->setFocus(Qt::ShortcutFocusReason);
}

void MapView::FillList() {
  IniOps::Snapshot files(cache_);
  controls_->List(ToQt(prompt_), EntityFile::ReadNames(files.File(view_.DataFile),
                                                       view_.CategoryKey, files, names_));
}

void MapView::ChangeMulti(const Text& Map, const Text& Data, const Text& KindX, const Text& Heading,
                          bool LabelsOnHover) {
  Q_EMIT Displayed();
  if (Begin({Kind::Markers, Map, Data, KindX, Heading, LabelsOnHover, {}, {}}))
    ShowPlan();
}

void MapView::ShowHit(const Hit& hit) {
  Q_EMIT Displayed();
  if (!Begin({Kind::Hit, hit.Map, hit.DataFile, hit.CategoryKey, hit.Heading, false, hit.ShownName,
              ViewState::Found{hit.at, {}}}))
    return;
  const bool listed = controls_->Select(ToQt(hit.Name));
  view_.found->row = listed ? hit.Name : Text();
  ShowPlan();
  if (!listed)
    controls_->lblCaption->setToolTip(ToQt(hit.Description));
  infoEntityName_ = hit.Name;
}

void MapView::Repeat() {
  if (view_.kind == Kind::Nothing || !Load())
    return;
  if (view_.kind == Kind::List) {
    const QString picked = controls_->cboItems->currentText();
    FillList();
    if (!controls_->Select(picked))
      controls_->Select(ToQt(prompt_));
  }
  if (view_.kind == Kind::Markers)
    ShowPlan();
  else
    cboItems_Click();
}

void MapView::ShowPlan() {
  IniOps::Snapshot files(cache_);
  pointer_->SetLabelsOnHover(view_.LabelsOnHover);
  look_->Show(Plan(view_, names_, files));
}

const Text& MapView::Heading() const {
  return look_->Plan().heading;
}

const Viewport& MapView::Part() const {
  return look_->Part();
}

void MapView::resizeEvent(QResizeEvent*) {
  Form_Resize();
}

void MapView::Form_Resize() {
  look_->Resize();
  if (view_.kind == Kind::Markers && Load())
    ShowPlan();
  if (view_.kind == Kind::List || view_.kind == Kind::Hit)
    cboItems_Click();
}

void MapView::cboItems_Click() {
  const Text listed = FromQt(controls_->cboItems->currentText());
  if (listed.starts_with(u' '))
    return look_->Show({true, {}, view_.Heading});
  view_.SelectedEntity = listed.empty() ? view_.SelectedEntity : listed;
  view_.found.reset();
  ShowPlan();
}

void MapView::btnInfo_Click() {
  const Text listed = FromQt(controls_->cboItems->currentText());
  if (controls_->cboItems->isHidden())
    Q_EMIT InfoRequested();
  else if (listed == prompt_)
    controls_->cboItems->setFocus(Qt::ShortcutFocusReason);
  else
    InfoMulti(listed);
}

void MapView::InfoMulti(const Text& nameX) {
  infoEntityName_ = nameX;
  Q_EMIT InfoRequested();
}

void MapView::Paint(QPainter& painter) {
  look_->Paint(painter);
}
