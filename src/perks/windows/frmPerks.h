#pragma once

#include "app/World.h"
#include "controls/windows/Dialog.h"
#include "perks/PerkTree.h"

class QPushButton;
class QTreeWidget;

/// The perk viewer: what can be learned in a region. It closes once a perk's teachers were shown.
class frmPerks : public Dialog {
  Q_OBJECT

 public:
  /// `perksData` is the path of the region's entity data file.
  frmPerks(QWidget* parent, const Text& perksData, World& world);

 Q_SIGNALS:
  /// Section `category` of the data file is wanted on the picture, all names shown.
  void TeachersChosen(const Text& picture, const Text& dataFile, const Text& category,
                      const Text& heading);

 private:
  void Fill(const std::vector<PerkTree::Node>& nodes);
  void btnShow_Click();

  const Text PerksData;
  World& world_;

  QTreeWidget* tvPerks;
  QPushButton* btnShow;
  QPushButton* btnAbort;
};
