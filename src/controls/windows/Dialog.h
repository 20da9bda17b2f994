#pragma once

#include "controls/DialogDesign.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "platform/Text.h"
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
  /// The control of that name in the design, which must be there and of the kind of `Type`: the
  /// program ends with a message if it isn't.
  template <typename Type>
  [[nodiscard]] Type* Control(TextView name) const {
    auto* const control = findChild<Type*>(QtText::ToQt(name));
    if (!control)
      EndWithout(name);
    return control;
  }

  /// Shows the captions of the design in that language.
  void ApplyTexts(IniOps::Snapshot& files, const LOCAL::Language& language);

  /// Sets the caption of a label, button, frame or grid list of the design. "&" stands before the
  /// letter of the access key; a label that names no control has none.
  void SetCaption(TextView name, TextView caption);

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  [[noreturn]] void EndWithout(TextView control) const;

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
