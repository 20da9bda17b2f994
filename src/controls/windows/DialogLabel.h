#pragma once

#include <QLabel>

/// A label of plain text that wraps within its width, between words as long as each of them fits.
class DialogLabel : public QLabel {
 public:
  explicit DialogLabel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};
