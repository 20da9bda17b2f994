#include "support/DialogCheck.h"

#include "controls/windows/Dialog.h"
#include "controls/windows/TextFit.h"
#include "controls/windows/WidgetTwips.h"
#include "platform/NativePath.h"
#include "support/Windows.h"

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <set>

#include <gtest/gtest.h>

namespace {

std::string NameOf(const ControlDesign& design) {
  return NativePath::ToBytes(design.name);
}

QWidget& Find(const Dialog& dialog, const ControlDesign& design) {
  return Part(dialog, NameOf(design).c_str());
}

bool TakesKeys(ControlKind kind) {
  return kind != ControlKind::Label && kind != ControlKind::Frame && kind != ControlKind::Picture &&
         kind != ControlKind::Line;
}

void CheckPlace(const Dialog& dialog, const ControlDesign& design) {
  const auto screen = WidgetTwips::ScreenOf(dialog);
  const QRect place = Find(dialog, design).geometry();
  EXPECT_EQ(place.left(), WidgetTwips::ToPixelsX(screen, design.place.left)) << NameOf(design);
  EXPECT_EQ(place.top(), WidgetTwips::ToPixelsY(screen, design.place.top)) << NameOf(design);
  EXPECT_GE(place.width(), WidgetTwips::ToPixelsX(screen, design.place.width)) << NameOf(design);
  EXPECT_GE(place.height(), WidgetTwips::ToPixelsY(screen, design.place.height)) << NameOf(design);
}

void CheckText(const QWidget& control) {
  if (TextFit::TextOf(control).isEmpty())
    return;
  const QSize needed = TextFit::Needed(control, control.font(), control.width());
  const std::string what =
      control.objectName().toStdString() + ": " + TextFit::TextOf(control).toStdString();
  EXPECT_LE(needed.width(), control.width()) << "clipped: " << what;
  EXPECT_LE(needed.height(), control.height()) << "clipped: " << what;
  EXPECT_TRUE(control.parentWidget()->rect().contains(QRect(control.pos(), needed)))
      << "outside: " << what;
}

void CheckSpokenName(QWidget& control) {
  const auto* interface = QAccessible::queryAccessibleInterface(&control);
  ASSERT_NE(interface, nullptr) << control.objectName().toStdString();
  const bool emptyText = qobject_cast<QLabel*>(&control) && TextFit::TextOf(control).isEmpty();
  EXPECT_TRUE(emptyText || !interface->text(QAccessible::Name).trimmed().isEmpty())
      << "no name to speak: " << control.objectName().toStdString();
}

// The rectangle that the letters of a label take, which may be less than its own; of other
// controls their own.
QRect Covered(const QWidget& control) {
  return qobject_cast<const QLabel*>(&control)
             ? QRect(control.pos(), TextFit::Needed(control, control.font(), control.width()))
             : control.geometry();
}

// Two pixels are what the closest designs share.
void CheckOverlaps(const Dialog& dialog) {
  constexpr int shared = 2;
  for (const ControlDesign& one : dialog.Design().controls) {
    for (const ControlDesign& other : dialog.Design().controls) {
      const QWidget& a = Find(dialog, one);
      const QWidget& b = Find(dialog, other);
      if (&a >= &b || a.parentWidget() != b.parentWidget() || !a.isVisible() || !b.isVisible() ||
          one.kind == ControlKind::Picture || other.kind == ControlKind::Picture)
        continue;
      const QRect common = Covered(a) & Covered(b);
      EXPECT_TRUE(common.width() <= shared || common.height() <= 0)
          << NameOf(one) << " over " << NameOf(other);
    }
  }
}

// Every widget that Tab comes to, and its parents: the list inside a control stands for it.
std::set<const QWidget*> Reached(Dialog& dialog) {
  std::set<const QWidget*> reached;
  for (int presses = 0; presses < 2 * static_cast<int>(dialog.Design().controls.size());
       ++presses) {
    for (const QWidget* at = dialog.focusWidget(); at && at != &dialog; at = at->parentWidget())
      reached.insert(at);
    QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, Qt::Key_Tab);
  }
  return reached;
}

bool ChosenWithArrows(const QWidget& control) {
  const auto* option = qobject_cast<const QRadioButton*>(&control);
  return option && !option->isChecked();
}

void CheckKeyboard(Dialog& dialog) {
  const auto reached = Reached(dialog);
  for (const ControlDesign& design : dialog.Design().controls) {
    const QWidget& control = Find(dialog, design);
    if (control.isVisible() && control.isEnabled() && !ChosenWithArrows(control) &&
        (TakesKeys(design.kind) || control.focusPolicy() != Qt::NoFocus)) {
      EXPECT_TRUE(reached.contains(&control)) << "not reached with Tab: " << NameOf(design);
    }
  }
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible()) << "still open after Escape";
}

}  // namespace

void CheckTexts(Dialog& dialog) {
  dialog.show();
  const auto screen = WidgetTwips::ScreenOf(dialog);
  EXPECT_EQ(dialog.size(), QSize(WidgetTwips::ToPixelsX(screen, dialog.Design().width),
                                 WidgetTwips::ToPixelsY(screen, dialog.Design().height)));
  for (const ControlDesign& design : dialog.Design().controls) {
    QWidget& control = Find(dialog, design);
    if (!control.isVisible() || design.kind == ControlKind::Line)
      continue;
    CheckText(control);
    CheckSpokenName(control);
  }
  CheckOverlaps(dialog);
}

void CheckDialog(Dialog& dialog) {
  ShowActive(dialog);
  EXPECT_FALSE(dialog.objectName().isEmpty());
  EXPECT_FALSE(dialog.windowTitle().trimmed().isEmpty());
  CheckTexts(dialog);
  for (const ControlDesign& design : dialog.Design().controls)
    CheckPlace(dialog, design);
  CheckKeyboard(dialog);
}
