#include "controls/windows/Dialog.h"

#include "controls/AccessKey.h"
#include "controls/windows/DialogLayout.h"
#include "controls/windows/GridListbox.h"
#include "controls/windows/MakeControl.h"
#include "controls/windows/WidgetTwips.h"
#include "platform/windows/WindowTitle.h"

#include <QAbstractButton>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

using WidgetTwips::ToPixelsX;
using WidgetTwips::ToPixelsY;

namespace {

QRect ToPixels(const QWidget& widget, const TwipsRect& twips) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  return {ToPixelsX(screen, twips.left), ToPixelsY(screen, twips.top),
          ToPixelsX(screen, twips.width), ToPixelsY(screen, twips.height)};
}

}  // namespace

Dialog::Dialog(QWidget* parent, const DialogDesign& design)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      design_(design) {
  setModal(true);
  setObjectName(QtText::ToQt(design.name));
  setFixedSize(ToPixels(*this, {0, 0, design.width, design.height}).size());
  CreateControls();
  SetUpButtons();
}

void Dialog::CreateControls() {
  for (const ControlDesign& control : design_.controls) {
    auto* frame = control.frame.empty() ? this : Control<QWidget>(control.frame);
    QWidget* made = MakeControl(control, frame);
    controls_.push_back({made, &control, ToPixels(*this, control.place)});
    made->setGeometry(controls_.back().place);
    if (control.kind == ControlKind::Frame)
      made->installEventFilter(this);
  }
}

void Dialog::EndWithout(TextView control) const {
  qFatal("%s has no such control: %s", qUtf8Printable(objectName()),
         qUtf8Printable(QtText::ToQt(control)));
}

void Dialog::SetUpButtons() {
  const bool hasDefault = !design_.defaultButton.empty();
  // Without a default button, Enter in a list would press the first one that is left so.
  for (auto* button : findChildren<QPushButton*>())
    button->setAutoDefault(hasDefault);
  if (hasDefault)
    Control<QPushButton>(design_.defaultButton)->setDefault(true);
  if (!design_.cancelButton.empty())
    connect(Control<QPushButton>(design_.cancelButton), &QPushButton::clicked, this,
            &Dialog::reject);
}

bool Dialog::event(QEvent* event) {
  // Sent when the text of a control changes.
  if (event->type() == QEvent::LayoutRequest && isVisible())
    FitTexts();
  return QDialog::event(event);
}

bool Dialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LayoutRequest && isVisible())
    FitTexts();
  return QDialog::eventFilter(watched, event);
}

void Dialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (enter && button && !button->autoDefault())
    button->click();
  else
    QDialog::keyPressEvent(event);
}

void Dialog::showEvent(QShowEvent* event) {
  FitTexts();
  QDialog::showEvent(event);
}

void Dialog::FitTexts() {
  std::vector<DialogLayout::Designed> designed;
  for (const Placed& placed : controls_) {
    QFont font = placed.control->font();
    font.setPointSizeF(placed.design->points);
    designed.push_back({placed.control, placed.place, font});
  }
  const auto places = DialogLayout::Arrange(designed);
  for (size_t i = 0; i < places.size(); ++i) {
    QWidget& control = *controls_[i].control;
    control.setGeometry(places[i].rectangle);
    // Setting a font asks for the next fitting, which must come to an end.
    if (control.font().pointSizeF() != places[i].font.pointSizeF())
      control.setFont(places[i].font);
  }
  NameControls();
}

void Dialog::ApplyTexts(IniOps::Snapshot& files, const LOCAL::Language& language) {
  if (design_.caption)
    WindowTitle::Set(*this, language.Lookup(files, *design_.caption));
  for (const Placed& placed : controls_)
    if (placed.design->caption)
      SetCaption(placed.design->name, language.Lookup(files, *placed.design->caption));
}

void Dialog::SetCaption(TextView name, TextView caption) {
  auto* control = Control<QWidget>(name);
  if (auto* label = qobject_cast<QLabel*>(control)) {
    label->setBuddy(NamedBy(name));
    label->setText(QtText::ToQt(label->buddy() ? Text(caption) : AccessKey::Without(caption)));
  } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
    button->setText(QtText::ToQt(caption));
  } else if (auto* frame = qobject_cast<QGroupBox*>(control)) {
    frame->setTitle(QtText::ToQt(caption));
  } else if (auto* list = qobject_cast<GridListbox*>(control)) {
    list->SetCaption(caption);
  }
}

QWidget* Dialog::NamedBy(TextView label) const {
  for (const Placed& placed : controls_)
    if (placed.design->namedBy == label)
      return placed.control;
  return nullptr;
}

void Dialog::NameControls() {
  for (const Placed& placed : controls_) {
    if (placed.design->namedBy.empty())
      continue;
    const auto* label = Control<QLabel>(placed.design->namedBy);
    const Text text = QtText::FromQt(label->text());
    placed.control->setAccessibleName(
        QtText::ToQt(Texts::Trim(label->buddy() ? AccessKey::Without(text) : text)));
  }
}
