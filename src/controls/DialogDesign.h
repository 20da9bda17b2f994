#pragma once

#include "i18n/TextRow.h"
#include "platform/Text.h"

#include <span>

/// The control that stands at a place of a dialog, and the widget that it is.
enum class ControlKind {
  Label,         // QLabel: plain text, wrapped within its width
  TextField,     // QLineEdit
  TextBox,       // QPlainTextEdit; Tab leaves it
  Button,        // QPushButton
  OptionButton,  // QRadioButton
  Frame,         // QGroupBox
  ComboBox,      // QComboBox, choice only
  Picture,       // QLabel without text; the design text is what a screen reader speaks
  GridList,      // GridListbox
  Tree,          // QTreeWidget
  Line           // QFrame, one colour all over
};

/// A rectangle in twips, from the top left corner of the frame or the client area around it.
struct TwipsRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// One control of a dialog as it was designed. A width of 0 is as wide as the text.
struct ControlDesign {
  TextView name;
  ControlKind kind = ControlKind::Label;
  TwipsRect place;
  /// Shown in the current language; none for a control with texts of its own.
  const TextRow* caption = nullptr;
  TextView text = {};
  double points = 8.25;
  bool bold = false;
  /// The frame around it, which stands earlier in the table; empty for none.
  TextView frame = {};
  /// The control whose text names this one to a screen reader, where it has no text of its own.
  TextView namedBy = {};
};

/// A dialog as it was designed: what it holds, in tab order, and the two buttons that Enter and
/// Escape press; empty for none.
struct DialogDesign {
  TextView name;
  /// None for a window that is titled by what it shows.
  const TextRow* caption = nullptr;
  int width = 0;
  int height = 0;
  TextView defaultButton = {};
  TextView cancelButton = {};
  std::span<const ControlDesign> controls;
};
