#include "controls/windows/GridListView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTreeWidgetItem>

#include <algorithm>
#include <utility>

GridListView::GridListView(std::function<void(int)> rowReached, QWidget* parent)
    : QTreeWidget(parent), rowReached_(std::move(rowReached)) {}

bool GridListView::TakeKey(int key, Qt::KeyboardModifiers modifiers, int character) {
  const QString text =
      character == 0 ? QString() : QString(QChar(static_cast<char16_t>(character)));
  QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  keyPressEvent(&event);
  return event.isAccepted();
}

void GridListView::keyboardSearch(const QString& search) {
  const bool goesOn =
      sinceTyped_.isValid() && sinceTyped_.elapsed() <= QApplication::keyboardInputInterval();
  typed_ = goesOn && typed_ != search ? typed_ + search : search;
  sinceTyped_.restart();
  // A single letter moves on from the selected row, a longer beginning may stay on it.
  const int current = indexOfTopLevelItem(currentItem());
  const int first = typed_.size() > 1 ? std::max(current, 0) : current + 1;
  for (int i = 0; i < topLevelItemCount(); ++i) {
    auto* item = topLevelItem((first + i) % topLevelItemCount());
    if (item->text(0).trimmed().startsWith(typed_, Qt::CaseInsensitive))
      return setCurrentItem(item);
  }
}

void GridListView::keyPressEvent(QKeyEvent* event) {
  const QTreeWidgetItem* before = currentItem();
  QTreeWidget::keyPressEvent(event);
  TellIfMoved(before);
  // The toolkit makes the first row current without selecting it; Home then does nothing.
  if (event->key() == Qt::Key_Home && currentItem() && selectedItems().isEmpty()) {
    currentItem()->setSelected(true);
    rowReached_(indexOfTopLevelItem(currentItem()));
  }
}

void GridListView::mousePressEvent(QMouseEvent* event) {
  QTreeWidget::mousePressEvent(event);
  if (auto* item = itemAt(event->pos()))
    rowReached_(indexOfTopLevelItem(item));
}

void GridListView::mouseMoveEvent(QMouseEvent* event) {
  const QTreeWidgetItem* before = currentItem();
  QTreeWidget::mouseMoveEvent(event);
  TellIfMoved(before);
}

void GridListView::TellIfMoved(const QTreeWidgetItem* before) {
  if (currentItem() && currentItem() != before)
    rowReached_(indexOfTopLevelItem(currentItem()));
}
