#include "controls/windows/GridListbox.h"

#include "controls/windows/EventCodes.h"
#include "controls/windows/GermanOrder.h"
#include "controls/windows/GridListView.h"
#include "controls/windows/WidgetTwips.h"
#include "platform/windows/QtText.h"

#include <QCollator>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTreeWidgetItem>

#include <algorithm>
#include <memory>

using QtText::FromQt;
using QtText::ToQt;

namespace {

constexpr int TagRole = Qt::UserRole;
constexpr int SmallIconRole = Qt::UserRole + 1;
constexpr int PictureSize = 16;
// Twips between the column's right edge and the list's.
constexpr int ColumnMargin = 100;

constexpr uint32_t MidGray = 0x808080;

QColor ColorOf(uint32_t number) {
  return WidgetTwips::Color(static_cast<int>(number));
}

bool BeginsWithWords(const QString& text, const QString& words) {
  return text.startsWith(words, Qt::CaseInsensitive) &&
         (text.size() == words.size() || !text.at(words.size()).isLetterOrNumber());
}

}  // namespace

GridListbox::GridListbox(QWidget* parent)
    : QWidget(parent),
      lvListView(new GridListView([this](int row) { Q_EMIT RowClick(*Rows(row + 1)); })) {
  lvListView->setParent(this);
  lvListView->setObjectName(QStringLiteral("lvListView"));
  lvListView->setColumnCount(1);
  lvListView->setHeaderHidden(true);
  lvListView->setRootIsDecorated(false);
  lvListView->setUniformRowHeights(true);
  lvListView->setIconSize({PictureSize, PictureSize});
  lvListView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lvListView->header()->setStretchLastSection(false);
  setFocusProxy(lvListView);
  ConnectList();
  NameList();
}

void GridListbox::ConnectList() {
  lvListView->installEventFilter(this);
  lvListView->viewport()->installEventFilter(this);
  lvListView->viewport()->setMouseTracking(true);
}

QPixmap GridListbox::Sized(const QPixmap& picture, double pixelRatio) {
  constexpr QSize size(PictureSize, PictureSize);
  if (picture.isNull() ||
      (picture.deviceIndependentSize() == QSizeF(size) && picture.devicePixelRatio() == pixelRatio))
    return picture;
  QPixmap sized =
      picture.scaled(size * pixelRatio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  sized.setDevicePixelRatio(pixelRatio);
  return sized;
}

void GridListbox::AddItem(TextView sText, const QPixmap& spPicture, TextView Tag) {
  auto* item = new QTreeWidgetItem({ToQt(sText)});
  item->setData(0, TagRole, ToQt(Tag));
  if (!spPicture.isNull()) {
    const size_t position = ImageList.size() + 1;
    const QPixmap picture = Sized(spPicture, devicePixelRatio());
    ImageList.push_back({FromQt(QStringLiteral("Key %1").arg(position)), picture});
    item->setIcon(0, picture);
    item->setData(0, SmallIconRole, static_cast<int>(position));
  }
  const QCollator standsBefore = GermanOrder();
  int at = 0;
  while (at < ListCount() &&
         !(sorted_ && standsBefore(item->text(0), lvListView->topLevelItem(at)->text(0))))
    ++at;
  lvListView->insertTopLevelItem(at, item);
}

void GridListbox::RemoveItem(int Index) {
  const std::unique_ptr<QTreeWidgetItem> removed(lvListView->takeTopLevelItem(Index - 1));
}

void GridListbox::Clear() {
  lvListView->clear();
}

void GridListbox::Refresh() {
  lvListView->viewport()->update();
}

QPixmap GridListbox::GetImage(std::span<const Picture> ilPictures, int iIndex) {
  const auto position = static_cast<size_t>(iIndex);
  return iIndex > 0 && position <= ilPictures.size() ? ilPictures[position - 1].Pixmap : QPixmap();
}

std::optional<GridListbox::Row> GridListbox::Rows(int Index) const {
  const QTreeWidgetItem* item = lvListView->topLevelItem(Index - 1);
  if (!item)
    return std::nullopt;
  return Row{Index, FromQt(item->text(0)), FromQt(item->data(0, TagRole).toString()),
             item->data(0, SmallIconRole).toInt()};
}

int GridListbox::ListCount() const {
  return lvListView->topLevelItemCount();
}

int GridListbox::ListIndex() const {
  const auto selected = lvListView->selectedItems();
  return selected.isEmpty() ? 0 : lvListView->indexOfTopLevelItem(selected.first()) + 1;
}

void GridListbox::Select(int Index) {
  if (auto* item = lvListView->topLevelItem(Index - 1))
    lvListView->setCurrentItem(item);
}

Text GridListbox::List(int Index) const {
  const auto row = Rows(std::max(Index, 1));
  return row && Index >= 0 ? row->Text : ::Text();
}

Text GridListbox::Text() const {
  const auto row = Rows(ListIndex());
  return row ? row->Text : ::Text();
}

void GridListbox::SetText(TextView text) {
  const QString wanted = ToQt(text);
  for (int i = 0; i < ListCount(); ++i) {
    if (BeginsWithWords(lvListView->topLevelItem(i)->text(0), wanted))
      return Select(i + 1);
  }
}

void GridListbox::SetSorted(bool sorted) {
  sorted_ = sorted;
  if (!sorted)
    return;
  QTreeWidgetItem* selected = lvListView->selectedItems().value(0);
  auto items = lvListView->invisibleRootItem()->takeChildren();
  std::stable_sort(items.begin(), items.end(),
                   [standsBefore = GermanOrder()](const auto* a, const auto* b) {
                     return standsBefore(a->text(0), b->text(0));
                   });
  lvListView->addTopLevelItems(items);
  if (selected)
    lvListView->setCurrentItem(selected);
}

QFont GridListbox::Font() const {
  return lvListView->font();
}

void GridListbox::SetFont(const QFont& font) {
  lvListView->setFont(font);
}

bool GridListbox::Enabled() const {
  return lvListView->isEnabled();
}

void GridListbox::SetEnabled(bool enabled) {
  lvListView->setEnabled(enabled);
  foreColor_ = enabled ? savedForeColor_ : MidGray;
  backColor_ = enabled ? savedBackColor_ : SystemButtonFace;
  ApplyColors();
}

bool GridListbox::NoHeader() const {
  return lvListView->isHeaderHidden();
}

void GridListbox::SetNoHeader(bool hidden) {
  lvListView->setHeaderHidden(hidden);
}

void GridListbox::SetCaption(TextView caption) {
  caption_ = caption;
  NameList();
}

QString GridListbox::ShownCaption() const {
  return ToQt(caption_);
}

void GridListbox::ShowCaption(const QString& caption) {
  SetCaption(FromQt(caption));
}

void GridListbox::NameList() {
  lvListView->setHeaderLabel(ToQt(caption_));
  // A hidden header is never translated: then the window's title names the list.
  const QString name = NoHeader() ? window()->windowTitle() : ToQt(caption_);
  lvListView->setAccessibleName(name);
  setAccessibleName(name);
}

void GridListbox::SetForeColor(uint32_t color) {
  foreColor_ = color;
  ApplyColors();
}

void GridListbox::SetBackColor(uint32_t color) {
  backColor_ = color;
  ApplyColors();
}

void GridListbox::ApplyColors() {
  QPalette palette = lvListView->palette();
  palette.setColor(QPalette::Text, ColorOf(foreColor_));
  palette.setColor(QPalette::Base, ColorOf(backColor_));
  lvListView->setPalette(palette);
}

bool GridListbox::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return watched == lvListView && HandleKey(static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      if (watched == lvListView->viewport())
        HandleMouse(static_cast<const QMouseEvent&>(*event));
      return false;
    default:
      return false;
  }
}

bool GridListbox::HandleKey(QKeyEvent& event) {
  if (event.type() == QEvent::KeyPress)
    return HandleKeyDown(event);
  int16_t keyCode = EventCodes::KeyCode(event.key());
  int16_t shift = EventCodes::Shift(event);
  const bool known = keyCode != 0;
  if (known)
    Q_EMIT KeyUp(keyCode, shift);
  return known && keyCode == 0;
}

bool GridListbox::HandleKeyDown(QKeyEvent& event) {
  const int16_t pressed = EventCodes::KeyCode(event.key());
  int16_t keyCode = pressed;
  int16_t shift = EventCodes::Shift(event);
  if (pressed != 0)
    Q_EMIT KeyDown(keyCode, shift);
  const bool swallowed = pressed != 0 && keyCode == 0;
  const bool types = !event.text().isEmpty() && event.key() != Qt::Key_Delete;
  const auto typed = types ? static_cast<int16_t>(event.text().front().unicode()) : int16_t{0};
  int16_t keyAscii = typed;
  if (typed != 0 && !swallowed)
    Q_EMIT KeyPress(keyAscii);
  if (keyCode == pressed && keyAscii == typed)
    return false;
  const int key = keyCode == pressed ? event.key() : EventCodes::QtKey(keyCode);
  if (!swallowed && (typed == 0 || keyAscii != 0))
    event.setAccepted(lvListView->TakeKey(key, event.modifiers(), keyAscii));
  return true;
}

void GridListbox::HandleMouse(const QMouseEvent& event) {
  int16_t button = EventCodes::Button(event);
  int16_t shift = EventCodes::Shift(event);
  auto [x, y] = EventCodes::PositionOf(*this, event);
  const bool left = event.button() == Qt::LeftButton;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      Q_EMIT MouseDown(button, shift, x, y);
      break;
    case QEvent::MouseMove:
      Q_EMIT MouseMove(button, shift, x, y);
      break;
    case QEvent::MouseButtonDblClick:
      if (left)
        Q_EMIT DblClick();
      break;
    default:
      Q_EMIT MouseUp(button, shift, x, y);
      if (left && !afterDoubleClick_)
        Q_EMIT Click();
      break;
  }
  // The release that ends a double click is no click of its own.
  if (event.type() != QEvent::MouseMove)
    afterDoubleClick_ = event.type() == QEvent::MouseButtonDblClick;
}

void GridListbox::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  lvListView->setGeometry(rect());
  const int margin = WidgetTwips::ToPixelsX(WidgetTwips::ScreenOf(*this), ColumnMargin);
  lvListView->setColumnWidth(0, lvListView->width() - margin);
}

void GridListbox::showEvent(QShowEvent* event) {
  savedForeColor_ = foreColor_;
  savedBackColor_ = backColor_;
  NameList();
  QWidget::showEvent(event);
}
