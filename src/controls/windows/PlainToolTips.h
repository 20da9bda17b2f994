#pragma once

#include <QObject>

/// Shows the tooltips of all windows as they stand: names and descriptions come from files, and
/// the toolkit would take "a < b und c > d" for markup. To be installed on the application.
class PlainToolTips : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
