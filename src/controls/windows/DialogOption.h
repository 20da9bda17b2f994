#pragma once

#include <QRadioButton>

/// An option button whose text wraps between words where its width asks for it.
class DialogOption : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
};
