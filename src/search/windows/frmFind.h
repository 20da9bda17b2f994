#pragma once

#include "app/World.h"
#include "controls/windows/Dialog.h"
#include "search/Search.h"

#include <optional>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// The search dialog: asks for the term and what to search in, and searches. It closes with the
/// search, whatever that found.
class frmFind : public Dialog {
  Q_OBJECT

 public:
  frmFind(QWidget* parent, World& world, Search::State& state);

  /// What the search found; none while it did not run.
  [[nodiscard]] const std::optional<Search::Outcome>& Result() const { return result_; }

 Q_SIGNALS:
  /// The search begins.
  void SearchStarted();

 private:
  void LoadState();
  void txtFind_Change();
  void ChooseMode(Search::Mode mode, bool chosen);
  void btnFind_Click();

  World& world_;
  Search::State& state_;
  std::optional<Search::Outcome> result_;

  QLabel* lblFind;
  QLineEdit* txtFind;
  QGroupBox* fraOptions;
  QRadioButton* rbNamesOnly;
  QRadioButton* rbDescsOnly;
  QPushButton* btnFind;
  QPushButton* btnAbort;
};
