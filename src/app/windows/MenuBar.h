#pragma once

#include "app/MenuTable.h"
#include "platform/Text.h"

#include <QMenuBar>

#include <span>
#include <vector>

class QMenu;

/// The menu bar, made from the menu table with German captions; object names are the rows' names.
class MenuBar : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(QWidget* parent = nullptr);

  /// Sets the captions, one for each of `MenuTable::Captions`; without any all stay.
  void SetCaptions(std::span<const Text> captions);

  /// A disabled command's shortcut does nothing; an unknown name changes nothing.
  void SetEnabled(TextView name, bool enabled);

  /// A hidden command's shortcut does nothing; an unknown name changes nothing.
  void SetShown(TextView name, bool shown);

  /// The map's heading for a category: its region's and its command's caption, with their "&".
  [[nodiscard]] Text Heading(const MenuRow& category) const;

 Q_SIGNALS:
  /// The user chose this row of the menu table.
  void CategoryChosen(const MenuRow& row);
  void CommandChosen(const MenuRow& row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QAction* NextWithKey(const QString& key) const;
  QAction* MakeAction(const MenuRow& row);
  [[nodiscard]] QAction* Find(TextView name) const;

  // The action of each row of the table.
  std::vector<QAction*> actions_;
};
