#include "MapTruth.h"

#include "app/MenuTable.h"
#include "controls/windows/GridListbox.h"
#include "i18n/windows/frmLang.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MapGestures.h"
#include "mapdata/windows/ctlLocation.h"
#include "perks/windows/frmPerks.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"
#include "platform/windows/PictureReader.h"
#include "platform/windows/QtText.h"
#include "search/windows/frmFind.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QRadioButton>

#include <algorithm>
#include <cmath>
#include <set>

using QtText::FromQt;
using QtText::ToQt;
using namespace Qt::StringLiterals;

namespace {

constexpr int Slots = 81;
constexpr int Before = 65;
constexpr int MarkerWidth = 160;
constexpr int NameGap = 50;
constexpr int NameRise = 40;
constexpr int Frame = 90;
constexpr int HeadingGap = 120;
// In twips.
constexpr int EdgeOfView = 30;

QString MarkerName(int slot) {
  return slot < 0 ? u"ITEM"_s : u"DOT(%1)"_s.arg(slot);
}

QString LabelName(int slot) {
  return slot < 0 ? u"lblCaption"_s : u"lblDOT(%1)"_s.arg(slot);
}

int Rounded(double value) {
  return static_cast<int>(std::nearbyint(value));
}

double TwipsPerPixel(const QWidget& widget) {
  return 1440.0 / widget.logicalDpiX();
}

QString Padded(const QString& name) {
  return u" %1 "_s.arg(name);
}

std::string Said(const QString& part, const QString& is, const QString& should) {
  return u"%1 is %2 and not %3"_s.arg(part, is, should).toStdString();
}

QString Said(const QPoint& point) {
  return u"%1,%2"_s.arg(point.x()).arg(point.y());
}

}  // namespace

MapTruth::MapTruth(QMainWindow& window)
    : QObject(&window),
      window_(window),
      map_(*window.centralWidget()),
      world_(NativePath::FromBytes(PosixFile::ExecutableFolder())),
      size_(map_.size()) {
  IniOps::Snapshot files(world_.cache);
  world_.language.Start(files, world_.ChosenLanguage());
  const auto menus = MenuTable::Captions();
  const InterfaceTexts texts = world_.language.IsGerman()
                                   ? RestoreGerman(menus)
                                   : Translate_UI(files, world_.language, menus);
  world_.language.CacheTranslationTable(files);
  captions_ = texts.menus;
  prompt_ = ToQt(texts.prompt);
  Connect();
}

void MapTruth::Connect() {
  map_.installEventFilter(this);
  for (const MenuRow& row : MenuTable::Rows())
    if (row.kind == MenuRow::Kind::Category)
      connect(window_.findChild<QAction*>(ToQt(row.name)), &QAction::triggered, this,
              [this, &row] { Category(row); });
  connect(window_.findChild<QAction*>(u"miFindAgain"_s), &QAction::triggered, this,
          [this] { ShowHit(Search::FindNext(search_)); });
  auto* const items = map_.findChild<QComboBox*>(u"cboItems"_s);
  connect(items, &QComboBox::activated, this, [this, items](int row) {
    if (kind_ != Kind::List)
      return;
    Pick(items->itemText(row));
    if (item_)
      BringIntoView(InView(*item_));
  });
  for (int slot = 0; slot < Slots; ++slot)
    connect(map_.findChild<ctlLocation*>(MarkerName(slot)), &ctlLocation::MouseMove, this,
            [this, slot] { hovered_ = slot; });
  const auto* gestures = map_.findChild<MapGestures*>();
  connect(gestures, &MapGestures::ZoomWanted, this, &MapTruth::Zoom);
  connect(gestures, &MapGestures::KeyZoomWanted, this,
          [this](double factor) { Zoom(anchor_, factor); });
  connect(gestures, &MapGestures::PanWanted, this, [this](const QPoint& by) {
    Pan(by.x() * TwipsPerPixel(map_), by.y() * TwipsPerPixel(map_));
  });
  connect(gestures, &MapGestures::KeyPanWanted, this, [this](int right, int down) {
    Pan(right * std::floor(map_.width() * TwipsPerPixel(map_) / 8),
        down * std::floor(map_.height() * TwipsPerPixel(map_) / 8));
  });
  connect(gestures, &MapGestures::RepeatWanted, this, &MapTruth::Repeated);
  connect(map_.findChild<MapFocus*>(), &MapFocus::Reached, this, [this](size_t number) {
    for (const Spot& spot : Spots())
      if (spot.slot + 1 == static_cast<int>(number))
        BringIntoView(InView(spot));
  });
}

// The marker that the keyboard is on shows its name again.
void MapTruth::Repeated() {
  hovered_ = -1;
  const QWidget* focused = window_.focusWidget();
  for (int slot = 0; focused && slot < Slots; ++slot)
    if (focused->objectName() == MarkerName(slot))
      hovered_ = slot;
  if (kind_ == Kind::List || kind_ == Kind::Hit)
    Pick(listed_);
}

void MapTruth::Begin() {
  const auto* marker = qobject_cast<const ctlLocation*>(window_.focusWidget());
  anchor_ = marker ? marker->geometry().center() : map_.rect().center();
}

void MapTruth::ShowWhole() {
  scale_ = 1;
  left_ = 0;
  top_ = 0;
}

void MapTruth::Zoom(const QPoint& at, double factor) {
  if (kind_ == Kind::Nothing || (kind_ == Kind::Markers && !IsReadable(picture_)))
    return;
  const double scale = factor > 0 ? std::clamp(scale_ * factor, 1.0, 8.0) : 1;
  const QPointF point = QPointF(at) * TwipsPerPixel(map_);
  left_ = (left_ + point.x()) * scale / scale_ - point.x();
  top_ = (top_ + point.y()) * scale / scale_ - point.y();
  scale_ = scale;
  Clamp();
}

void MapTruth::Pan(double right, double down) {
  left_ -= right;
  top_ -= down;
  Clamp();
}

void MapTruth::BringIntoView(const QPoint& corner) {
  const auto step = [](int from, int length) {
    return from < 0 ? -from : -std::max(0, std::min(from, from + MarkerWidth - length));
  };
  Pan(step(corner.x(), Rounded(map_.width() * TwipsPerPixel(map_))),
      step(corner.y(), Rounded(map_.height() * TwipsPerPixel(map_))));
}

void MapTruth::Clamp() {
  const double most = (scale_ - 1) * TwipsPerPixel(map_);
  left_ = std::clamp(left_, 0.0, most * map_.width());
  top_ = std::clamp(top_, 0.0, most * map_.height());
}

void MapTruth::Watch(QWidget& dialog) {
  if (const auto* find = qobject_cast<frmFind*>(&dialog)) {
    const auto* names = find->findChild<QRadioButton*>(u"rbNamesOnly"_s);
    connect(names, &QRadioButton::toggled, this, [this](bool chosen) {
      search_.SearchMode = chosen ? Search::Mode::Names : Search::Mode::Descriptions;
    });
    connect(find, &frmFind::SearchStarted, this, [this, find] {
      IniOps::Snapshot files(world_.cache);
      ShowHit(
          Search::FindFirst(search_, files, world_, FromQt(find->findChild<QLineEdit*>()->text())));
    });
  } else if (const auto* language = qobject_cast<frmLang*>(&dialog)) {
    connect(language, &frmLang::LanguageChanged, this,
            [this, language](const InterfaceTexts& texts) {
              const auto* list = language->findChild<GridListbox*>();
              SpeakAs(texts, list->Rows(list->ListIndex()).value().Tag);
            });
  } else if (const auto* perks = qobject_cast<frmPerks*>(&dialog)) {
    connect(
        perks, &frmPerks::TeachersChosen, this,
        [this](const Text& picture, const Text& data, const Text& category, const Text& heading) {
          ShowMarkers(picture, data, category, ToQt(heading), false);
        });
  }
}

bool MapTruth::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Resize)
    Resized();
  return false;
}

void MapTruth::SpeakAs(const InterfaceTexts& texts, const Text& file) {
  IniOps::Snapshot files(world_.cache);
  world_.language.Choose(files, file);
  world_.language.CacheTranslationTable(files);
  if (!texts.menus.empty())
    captions_ = texts.menus;
  ShowWhole();
  prompt_ = ToQt(texts.prompt);
  kind_ = Kind::Nothing;
}

void MapTruth::Category(const MenuRow& row) {
  const auto& region = world_.paths.Of(row.region.value());
  const Text category(row.category);
  if (row.mode == DisplayMode::List || row.listFirst)
    ShowList(region.picture, region.data, category);
  if (row.mode == DisplayMode::List)
    return;
  QString heading;
  size_t caption = 0;
  for (const MenuRow& other : MenuTable::Rows()) {
    if (other.kind == MenuRow::Kind::Menu && other.region == row.region && heading.isEmpty())
      heading = ToQt(captions_.at(caption)) + u": "_s;
    if (&other == &row)
      heading += ToQt(captions_.at(caption));
    caption += other.kind == MenuRow::Kind::BarDivider ? 0 : 1;
  }
  ShowMarkers(region.picture, region.data, category, heading,
              row.mode == DisplayMode::LabelsOnHover);
}

bool MapTruth::IsReadable(const Text& picture) {
  const auto [known, isNew] = readable_.try_emplace(picture, false);
  if (isNew)
    known->second = !PictureReader::Read(picture, window_.size()).isNull();
  return known->second;
}

void MapTruth::ShowList(const Text& picture, const Text& data, const Text& category) {
  ShowWhole();
  kind_ = Kind::Nothing;
  if (!IsReadable(picture))
    return;
  kind_ = Kind::List;
  data_ = data;
  category_ = category;
  item_.reset();
  found_.clear();
  listed_ = prompt_;
  IniOps::Snapshot files(world_.cache);
  rows_ = {prompt_};
  for (const Text& name : EntityFile::ReadNames(files.File(data), category, files, world_.language))
    rows_ << ToQt(name);
}

void MapTruth::ShowMarkers(const Text& picture, const Text& data, const Text& category,
                           const QString& heading, bool onHover) {
  ShowWhole();
  kind_ = Kind::Markers;
  picture_ = picture;
  data_ = data;
  category_ = category;
  heading_ = Padded(QString(heading).remove(u'&'));
  onHover_ = onHover;
  hovered_ = -1;
}

void MapTruth::Pick(const QString& name) {
  listed_ = name;
  item_.reset();
  if (name.startsWith(u' '))
    return;
  found_ = name.isEmpty() ? found_ : name;
  IniOps::Snapshot files(world_.cache);
  const Text key = world_.language.Key(FromQt(found_));
  if (const auto position = EntityFile::ReadPicked(files.File(data_), category_, key)) {
    item_ = Spot{.point = {position->x, position->y},
                 .before = Before,
                 .name = found_,
                 .caption = Padded(found_)};
  }
}

void MapTruth::ShowHit(const Search::Outcome& outcome) {
  const auto* hit = std::get_if<Search::Hit>(&outcome);
  if (!hit)
    return;
  const CachedEntity entity = search_.Cache.At(hit->index);
  ShowWhole();
  kind_ = Kind::Nothing;
  item_.reset();
  if (!IsReadable(entity.Map))
    return;
  kind_ = Kind::Hit;
  data_ = entity.Database;
  category_ = entity.Section;
  IniOps::Snapshot files(world_.cache);
  heading_ = ToQt(Search::ResultHeading(search_, files, world_.language));
  const QString name = ToQt(world_.language.Shown(world_.language.NameFile(files), entity.Name));
  const Spot atPoint = {.point = {entity.X, entity.Y}, .name = name, .caption = name};
  listed_ = rows_.contains(ToQt(entity.Name)) ? ToQt(entity.Name) : QString();
  if (!listed_.isEmpty())
    Pick(listed_);
  const bool placed = listed_.isEmpty() || item_;
  item_ = item_.value_or(atPoint);
  item_->caption = Padded(item_->caption);
  item_->markerShown = placed;
  found_ = name;
}

void MapTruth::Resized() {
  hovered_ = -1;
  // The middle stays in the middle.
  const QSize now = map_.size();
  const auto kept = [this](double before, int from, int to) {
    const double twips = TwipsPerPixel(map_);
    return from > 0 ? (before + from * twips / 2) * to / from - to * twips / 2 : 0;
  };
  left_ = kept(left_, size_.width(), now.width());
  top_ = kept(top_, size_.height(), now.height());
  size_ = now;
  Clamp();
  if (kind_ == Kind::List || kind_ == Kind::Hit)
    Pick(listed_);
}

QPoint MapTruth::OnPicture(int x, int y, double scale) const {
  const double twips = TwipsPerPixel(map_);
  const auto scaled = [scale, twips](int pixels, int frame, int position) {
    return Rounded(std::nearbyint(pixels * twips) * scale / std::nearbyint(frame * twips) *
                   std::nearbyint(position * twips));
  };
  return {scaled(map_.width(), 1024, x), scaled(map_.height(), 768, y)};
}

QPoint MapTruth::InView(const Spot& spot) const {
  return OnPicture(spot.point.x(), spot.point.y(), scale_) -
         QPoint(Rounded(left_) + spot.before, Rounded(top_) + spot.before);
}

// How far a marker's nearest side lies inside of the map, in twips; below 0 it is outside.
int MapTruth::Inside(const Spot& spot) const {
  const QPoint at = InView(spot);
  const double twips = TwipsPerPixel(map_);
  return std::min({at.x() + MarkerWidth, at.y() + MarkerWidth,
                   Rounded(map_.width() * twips) - at.x(),
                   Rounded(map_.height() * twips) - at.y()});
}

std::vector<MapTruth::Spot> MapTruth::MarkersOfCategory() {
  std::vector<Spot> spots;
  IniOps::Snapshot files(world_.cache);
  int slot = 0;
  for (const auto& marker :
       EntityFile::ReadMarkers(files.File(data_), category_, files, world_.language, Slots)) {
    if (!marker.disabled)
      spots.push_back({.point = {marker.position.x, marker.position.y},
                       .before = Before,
                       .name = ToQt(marker.name),
                       .caption = Padded(ToQt(marker.name)),
                       .highlighted = marker.highlighted,
                       .labelShown = !onHover_ || slot == hovered_,
                       .slot = slot});
    ++slot;
  }
  return spots;
}

std::vector<MapTruth::Spot> MapTruth::Spots() {
  if (kind_ == Kind::Markers)
    return IsReadable(picture_) ? MarkersOfCategory() : std::vector<Spot>();
  if (kind_ != Kind::Nothing && item_)
    return {*item_};
  return {};
}

QWidget& MapTruth::Part(const QString& name) const {
  return *map_.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
}

std::string MapTruth::Fault() {
  const auto spots = Spots();
  for (const std::string& fault : {FaultOfShown(spots), FaultOfList(), FaultOfFocus()})
    if (!fault.empty())
      return fault;
  for (const Spot& spot : spots)
    if (std::string fault = FaultOf(spot); !fault.empty())
      return fault;
  return {};
}

std::string MapTruth::FaultOfShown(const std::vector<Spot>& spots) const {
  std::set<QString> wanted = {u"imgMap"_s, u"linMenuSep"_s};
  std::set<QString> either;
  for (const Spot& spot : spots) {
    // By a rounding a marker at the very edge may be seen or not.
    if (scale_ > 1 && std::abs(Inside(spot)) <= EdgeOfView)
      either.insert({MarkerName(spot.slot), LabelName(spot.slot)});
    if (scale_ > 1 && Inside(spot) <= 0)
      continue;
    if (spot.markerShown)
      wanted.insert(MarkerName(spot.slot));
    if (spot.labelShown)
      wanted.insert(LabelName(spot.slot));
  }
  const bool titled = kind_ == Kind::Hit || (kind_ == Kind::Markers && readable_.at(picture_));
  if (titled)
    wanted.insert(u"lblMultiInfo"_s);
  if (kind_ == Kind::List)
    wanted.insert({u"cboItems"_s, u"btnInfo"_s});
  for (const QWidget* child : map_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const QString name = child->objectName();
    if (!name.isEmpty() && either.count(name) == 0 && child->isHidden() == (wanted.count(name) > 0))
      return (name + (child->isHidden() ? u" is hidden"_s : u" is shown"_s)).toStdString();
  }
  const auto& heading = static_cast<const QLabel&>(Part(u"lblMultiInfo"_s));
  if (titled && heading.text() != heading_)
    return Said(u"the heading"_s, heading.text(), heading_);
  const int gap = Rounded((HeadingGap - Frame) / TwipsPerPixel(map_));
  if (titled && std::abs(map_.width() - gap - heading.width() - heading.x()) > 1)
    return "the heading is not in its corner";
  return {};
}

// From the marker's corner, in pixels: the name keeps the place that it has at scale 1.
QPoint MapTruth::BesideMarker(const Spot& spot, int width) const {
  const double twips = TwipsPerPixel(map_);
  const auto pixels = [twips](int length) { return Rounded(length / twips); };
  const QPoint corner =
      OnPicture(spot.point.x(), spot.point.y(), 1) - QPoint(spot.before, spot.before);
  const int right = corner.x() + MarkerWidth + NameGap;
  const int before = corner.x() - width - NameGap;
  int left = spot.slot >= 0 && spot.slot % 2 == 0 ? before : right;
  if (spot.slot >= 0 && left < 0)
    left = right;
  if (left + width > Rounded(map_.width() * twips) + Frame)
    left = before;
  return {pixels(left) - pixels(corner.x()), pixels(corner.y() - NameRise) - pixels(corner.y())};
}

std::string MapTruth::FaultOf(const Spot& spot) const {
  const double twips = TwipsPerPixel(map_);
  const QString name = MarkerName(spot.slot);
  const auto& marker = static_cast<const ctlLocation&>(Part(name));
  const QPoint corner = InView(spot);
  // The places of a closer view are sums of many roundings.
  const int most = scale_ > 1 ? 1 : 0;
  if (scale_ > 1 && Inside(spot) <= EdgeOfView)
    return {};
  const QPoint at = {Rounded(corner.x() / twips), Rounded(corner.y() / twips)};
  const QPoint off = marker.pos() - at;
  if (spot.markerShown && std::max(std::abs(off.x()), std::abs(off.y())) > most)
    return Said(name, u"at "_s + Said(marker.pos()), Said(at));
  if (spot.markerShown && marker.Desc() != spot.name)
    return Said(name, marker.Desc(), spot.name);
  if (marker.BorderColor() != (spot.highlighted ? ctlLocation::Green : ctlLocation::DarkRed))
    return (name + u" has another's colour"_s).toStdString();
  if (!spot.labelShown)
    return {};
  const auto& label = static_cast<const QLabel&>(Part(LabelName(spot.slot)));
  if (label.text() != spot.caption)
    return Said(label.objectName(), label.text(), spot.caption);
  const int width = Rounded(label.width() * twips);
  const QPoint beside = (spot.markerShown ? marker.pos() : at) + BesideMarker(spot, width);
  return label.pos() == beside
             ? std::string()
             : Said(label.objectName(), u"at "_s + Said(label.pos()), Said(beside));
}

std::string MapTruth::FaultOfList() const {
  if (kind_ != Kind::List)
    return {};
  const auto& items = static_cast<const QComboBox&>(Part(u"cboItems"_s));
  QStringList shown;
  for (int row = 0; row < items.count(); ++row)
    shown << items.itemText(row);
  QStringList wanted = rows_;
  shown.sort();
  wanted.sort();
  if (shown != wanted)
    return Said(u"the list"_s, shown.join(u'|'), wanted.join(u'|'));
  return items.currentText() == listed_ ? std::string()
                                        : Said(u"the list's row"_s, items.currentText(), listed_);
}

std::string MapTruth::FaultOfFocus() const {
  const QWidget* focused = window_.focusWidget();
  return !focused || focused->isVisible()
             ? std::string()
             : (focused->objectName() + u" has the focus unseen"_s).toStdString();
}
