#pragma once

#include <QElapsedTimer>
#include <QTreeWidget>

#include <functional>

/// The item view inside a `GridListbox`; typed letters also find rows that begin with a blank.
class GridListView : public QTreeWidget {
  Q_OBJECT

 public:
  /// `rowReached` is told the row, from 0.
  explicit GridListView(std::function<void(int)> rowReached, QWidget* parent = nullptr);

  /// Handles a key as if it had been pressed; whether it was of use. `character` 0 is none.
  bool TakeKey(int key, Qt::KeyboardModifiers modifiers, int character);

  void keyboardSearch(const QString& search) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void TellIfMoved(const QTreeWidgetItem* before);

  std::function<void(int)> rowReached_;
  QString typed_;
  QElapsedTimer sinceTyped_;
};
