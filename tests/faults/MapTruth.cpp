#include "MapTruth.h"

#include "app/MenuTable.h"
#include "controls/windows/GridListbox.h"
#include "i18n/windows/frmLang.h"
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

namespace {

constexpr int Slots = 81;
constexpr int Before = 65;
constexpr int MarkerWidth = 160;
constexpr int NameGap = 50;
constexpr int NameRise = 40;
constexpr int Frame = 90;
constexpr int HeadingGap = 120;

QString Indexed(const char* name, int slot) {
  return slot < 0 ? QLatin1String(name)
                  : QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(slot);
}

int Rounded(double value) {
  return static_cast<int>(std::nearbyint(value));
}

double TwipsPerPixel(const QWidget& widget) {
  return 1440.0 / widget.logicalDpiX();
}

QString Padded(const QString& name) {
  return QStringLiteral(" %1 ").arg(name);
}

std::string Said(const QString& what, const QString& is, const QString& should) {
  return QStringLiteral("%1 is %2 and not %3").arg(what, is, should).toStdString();
}

QString Said(const QPoint& point) {
  return QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
}

}  // namespace

MapTruth::MapTruth(QMainWindow& window)
    : QObject(&window),
      window_(window),
      map_(*window.centralWidget()),
      world_(NativePath::FromBytes(PosixFile::ExecutableFolder())) {
  IniOps::Snapshot files(cache_);
  language_.Start(files, world_.ChosenLanguage());
  const auto menus = MenuTable::Captions();
  const InterfaceTexts texts =
      language_.IsGerman() ? RestoreGerman(menus) : Translate_UI(files, language_, menus);
  language_.CacheTranslationTable(files);
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
  connect(window_.findChild<QAction*>(QStringLiteral("miFindAgain")), &QAction::triggered, this,
          [this] { ShowHit(Search::FindNext(search_)); });
  auto* const items = map_.findChild<QComboBox*>(QStringLiteral("cboItems"));
  connect(items, &QComboBox::activated, this, [this, items](int row) {
    if (kind_ == Kind::List)
      Pick(items->itemText(row));
  });
  for (int slot = 0; slot < Slots; ++slot)
    connect(map_.findChild<ctlLocation*>(Indexed("DOT", slot)), &ctlLocation::MouseMove, this,
            [this, slot] { hovered_ = slot; });
}

void MapTruth::Watch(QWidget& dialog) {
  if (const auto* find = qobject_cast<frmFind*>(&dialog)) {
    const auto* names = find->findChild<QRadioButton*>(QStringLiteral("rbNamesOnly"));
    connect(names, &QRadioButton::toggled, this, [this](bool chosen) {
      search_.SearchMode = chosen ? Search::Mode::Names : Search::Mode::Descriptions;
    });
    connect(find, &frmFind::SearchStarted, this, [this, find] {
      IniOps::Snapshot files(cache_);
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
  IniOps::Snapshot files(cache_);
  language_.Choose(files, file);
  language_.CacheTranslationTable(files);
  if (!texts.menus.empty())
    captions_ = texts.menus;
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
      heading = ToQt(captions_.at(caption)) + QStringLiteral(": ");
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
  kind_ = Kind::Nothing;
  if (!IsReadable(picture))
    return;
  kind_ = Kind::List;
  data_ = data;
  category_ = category;
  item_.reset();
  found_.clear();
  listed_ = prompt_;
  IniOps::Snapshot files(cache_);
  rows_ = {prompt_};
  for (const Text& name : EntityFile::ReadNames(files, data, category, language_))
    rows_ << ToQt(name);
}

void MapTruth::ShowMarkers(const Text& picture, const Text& data, const Text& category,
                           const QString& heading, bool onHover) {
  kind_ = Kind::Markers;
  picture_ = picture;
  data_ = data;
  category_ = category;
  heading_ = Padded(QString(heading).remove(u'&'));
  onHover_ = onHover;
  hovered_ = -1;
}

std::optional<EntityFile::Position> MapTruth::PositionOf(const QString& name) {
  IniOps::Snapshot files(cache_);
  return EntityFile::ReadPicked(files, data_, category_, language_.Key(FromQt(name)));
}

void MapTruth::Pick(const QString& name) {
  listed_ = name;
  item_.reset();
  if (name.startsWith(u' '))
    return;
  found_ = name.isEmpty() ? found_ : name;
  if (const auto position = PositionOf(found_)) {
    const QPoint before = PointOf(position->x, position->y) - QPoint(Before, Before);
    item_ = Spot{.at = before, .name = found_, .caption = Padded(found_)};
  }
}

void MapTruth::ShowHit(const Search::Outcome& outcome) {
  const auto* hit = std::get_if<Search::Hit>(&outcome);
  if (!hit)
    return;
  const CachedEntity entity = search_.Cache.At(hit->index);
  kind_ = Kind::Nothing;
  item_.reset();
  if (!IsReadable(entity.Map))
    return;
  kind_ = Kind::Hit;
  data_ = entity.Database;
  category_ = entity.Section;
  IniOps::Snapshot files(cache_);
  heading_ = ToQt(Search::ResultHeading(search_, files, language_));
  const QString name = ToQt(language_.Shown(files, entity.Name));
  const Spot atPoint = {.at = PointOf(entity.X, entity.Y), .name = name, .caption = name};
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
  if (kind_ == Kind::List || kind_ == Kind::Hit)
    Pick(listed_);
}

QPoint MapTruth::PointOf(int x, int y) const {
  const double twips = TwipsPerPixel(map_);
  const auto scaled = [twips](int pixels, int frame, int position) {
    return Rounded(std::nearbyint(pixels * twips) / std::nearbyint(frame * twips) *
                   std::nearbyint(position * twips));
  };
  return {scaled(map_.width(), 1024, x), scaled(map_.height(), 768, y)};
}

std::vector<MapTruth::Spot> MapTruth::MarkersOfCategory() {
  std::vector<Spot> spots;
  IniOps::Snapshot files(cache_);
  int slot = 0;
  for (const auto& marker : EntityFile::ReadMarkers(files, data_, category_, language_, Slots)) {
    if (!marker.disabled)
      spots.push_back({.at = PointOf(marker.position.x, marker.position.y) - QPoint(Before, Before),
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
  std::set<QString> wanted = {QStringLiteral("imgMap"), QStringLiteral("linMenuSep")};
  for (const Spot& spot : spots) {
    if (spot.markerShown)
      wanted.insert(spot.slot < 0 ? QStringLiteral("ITEM") : Indexed("DOT", spot.slot));
    if (spot.labelShown)
      wanted.insert(spot.slot < 0 ? QStringLiteral("lblCaption") : Indexed("lblDOT", spot.slot));
  }
  const bool titled = kind_ == Kind::Hit || (kind_ == Kind::Markers && readable_.at(picture_));
  if (titled)
    wanted.insert(QStringLiteral("lblMultiInfo"));
  if (kind_ == Kind::List)
    wanted.insert({QStringLiteral("cboItems"), QStringLiteral("btnInfo")});
  for (const QWidget* child : map_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const QString name = child->objectName();
    if (!name.isEmpty() && child->isHidden() == (wanted.count(name) > 0))
      return (name +
              (child->isHidden() ? QStringLiteral(" is hidden") : QStringLiteral(" is shown")))
          .toStdString();
  }
  const auto& heading = static_cast<const QLabel&>(Part(QStringLiteral("lblMultiInfo")));
  if (titled && heading.text() != heading_)
    return Said(QStringLiteral("the heading"), heading.text(), heading_);
  const int gap = Rounded((HeadingGap - Frame) / TwipsPerPixel(map_));
  if (titled && std::abs(map_.width() - gap - heading.width() - heading.x()) > 1)
    return "the heading is not in its corner";
  return {};
}

int MapTruth::NameLeft(const Spot& spot, int left, int width) const {
  const int right = left + MarkerWidth + NameGap;
  const int before = left - width - NameGap;
  int at = spot.slot >= 0 && spot.slot % 2 == 0 ? before : right;
  if (spot.slot >= 0 && at < 0)
    at = right;
  return at + width > Rounded(map_.width() * TwipsPerPixel(map_)) + Frame ? before : at;
}

std::string MapTruth::FaultOf(const Spot& spot) const {
  const double twips = TwipsPerPixel(map_);
  const QString name = spot.slot < 0 ? QStringLiteral("ITEM") : Indexed("DOT", spot.slot);
  auto& marker = static_cast<const ctlLocation&>(Part(name));
  const QPoint at = {Rounded(spot.at.x() / twips), Rounded(spot.at.y() / twips)};
  if (spot.markerShown && marker.pos() != at)
    return Said(name, QStringLiteral("at ") + Said(marker.pos()), Said(at));
  if (spot.markerShown && marker.Desc() != spot.name)
    return Said(name, marker.Desc(), spot.name);
  if (marker.BorderColor() != (spot.highlighted ? ctlLocation::Green : ctlLocation::DarkRed))
    return (name + QStringLiteral(" has another's colour")).toStdString();
  if (!spot.labelShown)
    return {};
  const auto& label = static_cast<const QLabel&>(
      Part(spot.slot < 0 ? QStringLiteral("lblCaption") : Indexed("lblDOT", spot.slot)));
  if (label.text() != spot.caption)
    return Said(label.objectName(), label.text(), spot.caption);
  const int width = Rounded(label.width() * twips);
  const QPoint beside = {Rounded(NameLeft(spot, spot.at.x(), width) / twips),
                         Rounded((spot.at.y() - NameRise) / twips)};
  return label.pos() == beside
             ? std::string()
             : Said(label.objectName(), QStringLiteral("at ") + Said(label.pos()), Said(beside));
}

std::string MapTruth::FaultOfList() const {
  if (kind_ != Kind::List)
    return {};
  const auto& items = static_cast<const QComboBox&>(Part(QStringLiteral("cboItems")));
  QStringList shown;
  for (int row = 0; row < items.count(); ++row)
    shown << items.itemText(row);
  QStringList wanted = rows_;
  shown.sort();
  wanted.sort();
  if (shown != wanted)
    return Said(QStringLiteral("the list"), shown.join(u'|'), wanted.join(u'|'));
  return items.currentText() == listed_
             ? std::string()
             : Said(QStringLiteral("the list's row"), items.currentText(), listed_);
}

std::string MapTruth::FaultOfFocus() const {
  const QWidget* focused = window_.focusWidget();
  return !focused || focused->isVisible()
             ? std::string()
             : (focused->objectName() + QStringLiteral(" has the focus unseen")).toStdString();
}
