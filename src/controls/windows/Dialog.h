#pragma once

#include "controls/DialogDesign.h"
#include "platform/windows/QtText.h"

#include <QDialog>

#include <vector>

/// The base of all dialogs: modal, with a client area fixed in twips, made from a design table.
///
/// Texts may be set at any time; what doesn't fit as it was designed is arranged anew.
class Dialog : public QDialog {
  Q_OBJECT

 public:
  /// `design` and what it points to must outlive the dialog.
  Dialog(QWidget* parent, const DialogDesign& design);

  /// The design that the dialog was made from.
  [[nodiscard]] const DialogDesign& Design() const { return design_; }

 protected:
  /// The control of that name in the design; its kind must be that of `Type`.
  template <typename Type>
  [[nodiscard]] Type* Control(TextView name) const {
    return findChild<Type*>(QtText::ToQt(name));
  }

  /// Sets the caption of a label, button or frame of the design. "&" stands before the letter of
  /// the access key; a label that names no control has none.
  void SetCaption(TextView name, TextView caption);

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct Placed {
    QWidget* control = nullptr;
    const ControlDesign* design = nullptr;
    QRect place;
  };

  void CreateControls();
  void SetUpButtons();
  void FitTexts();
  void NameControls();
  [[nodiscard]] QWidget* NamedBy(TextView label) const;

  const DialogDesign& design_;
  std::vector<Placed> controls_;
};
