#include "controls/windows/Dialog.h"

#include "controls/windows/MakeControl.h"
#include "controls/windows/TextFit.h"
#include "controls/windows/WidgetTwips.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPushButton>

using WidgetTwips::ToPixelsX;
using WidgetTwips::ToPixelsY;

namespace {

QRect ToPixels(const QWidget& widget, const TwipsRect& twips) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  return {ToPixelsX(screen, twips.left), ToPixelsY(screen, twips.top),
          ToPixelsX(screen, twips.width), ToPixelsY(screen, twips.height)};
}

QString WithoutAccessKey(QString caption) {
  return caption.remove(u'&');
}

}  // namespace

Dialog::Dialog(QWidget* parent, const DialogDesign& design)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      design_(design) {
  setModal(true);
  setObjectName(QtText::ToQt(design.name));
  setWindowTitle(QtText::ToQt(design.caption));
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

void Dialog::SetUpButtons() {
  const auto* byEnter = Control<QPushButton>(design_.defaultButton);
  for (auto* button : findChildren<QPushButton*>()) {
    // Without a default button, Enter in a list would press the first one that is left so.
    button->setAutoDefault(!design_.defaultButton.empty());
    button->setDefault(button == byEnter && !design_.defaultButton.empty());
  }
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
  for (const Placed& placed : controls_)
    placed.control->setGeometry(placed.place);
  for (const Placed& placed : controls_) {
    QFont font = placed.control->font();
    font.setPointSizeF(placed.design->points);
    const TextFit::Place fit = TextFit::Fit(*placed.control, placed.place, font);
    placed.control->setGeometry(fit.rectangle);
    // Setting a font asks for the next fitting, which must come to an end.
    if (placed.control->font().pointSizeF() != fit.font.pointSizeF())
      placed.control->setFont(fit.font);
  }
  NameControls();
}

void Dialog::NameControls() {
  for (const Placed& placed : controls_) {
    if (!placed.design->namedBy.empty())
      placed.control->setAccessibleName(
          WithoutAccessKey(TextFit::TextOf(*Control<QWidget>(placed.design->namedBy))).trimmed());
  }
}
