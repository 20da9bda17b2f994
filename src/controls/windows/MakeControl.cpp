#include "controls/windows/MakeControl.h"

#include "controls/windows/DialogLabel.h"
#include "controls/windows/DialogOption.h"
#include "controls/windows/GridListbox.h"
#include "controls/windows/WidgetTwips.h"
#include "platform/windows/QtText.h"

#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace {

QWidget* MakeLabel(const QString& text, QWidget* parent) {
  auto* label = new DialogLabel(parent);
  label->setText(text);
  return label;
}

QWidget* MakeTextBox(const QString& text, QWidget* parent) {
  auto* box = new QPlainTextEdit(text, parent);
  box->setTabChangesFocus(true);
  return box;
}

QWidget* MakePicture(const QString& spoken, QWidget* parent) {
  auto* picture = new QLabel(parent);
  picture->setAccessibleName(spoken);
  return picture;
}

QWidget* MakeLine(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setAutoFillBackground(true);
  return line;
}

QWidget* MakeOfKind(ControlKind kind, const QString& text, QWidget* parent) {
  switch (kind) {
    case ControlKind::Label:
      return MakeLabel(text, parent);
    case ControlKind::TextField:
      return new QLineEdit(text, parent);
    case ControlKind::TextBox:
      return MakeTextBox(text, parent);
    case ControlKind::Button:
      return new QPushButton(text, parent);
    case ControlKind::OptionButton:
      return new DialogOption(text, parent);
    case ControlKind::Frame:
      return new QGroupBox(text, parent);
    case ControlKind::ComboBox:
      return new QComboBox(parent);
    case ControlKind::Picture:
      return MakePicture(text, parent);
    case ControlKind::GridList:
      return new GridListbox(parent);
    case ControlKind::Tree:
      return new QTreeWidget(parent);
    case ControlKind::Line:
      return MakeLine(parent);
  }
  return nullptr;
}

}  // namespace

QWidget* MakeControl(const ControlDesign& design, QWidget* parent) {
  QWidget* control = MakeOfKind(design.kind, QtText::ToQt(design.text), parent);
  control->setObjectName(QtText::ToQt(design.name));
  control->setFont(WidgetTwips::Font(design.points, design.bold));
  return control;
}
