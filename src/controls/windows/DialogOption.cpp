#include "controls/windows/DialogOption.h"

#include "controls/windows/TextFit.h"

#include <QStyleOptionButton>

// Styles draw the lines of a text, but make none.
void DialogOption::initStyleOption(QStyleOptionButton* option) const {
  QRadioButton::initStyleOption(option);
  option->text = TextFit::Lines(*this, font(), width());
}
