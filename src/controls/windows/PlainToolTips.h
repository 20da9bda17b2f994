#pragma once

#include <QObject>

/// Shows all tooltips as plain text: they come from files, and the toolkit would take "a < b und c
/// > d" for markup. To be installed on the application.
class PlainToolTips : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
