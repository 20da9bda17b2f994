#pragma once

#include "platform/Text.h"

#include <QObject>
#include <QStringListModel>

#include <functional>
#include <optional>
#include <vector>

class QCompleter;
class QLineEdit;

/// The names that a text box offers when Down is pressed in it: those that hold what is typed,
/// whatever its case and accents. Enter or a click fills the box and does nothing else.
class NameSuggestions : public QObject {
  Q_OBJECT

 public:
  /// `names` gives all names there are; it is asked at the first use.
  NameSuggestions(QLineEdit& box, std::function<std::vector<Text>()> names);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Offer();

  QLineEdit& box_;
  std::function<std::vector<Text>()> names_;
  std::optional<std::vector<Text>> known_;
  QStringListModel offered_;
  QCompleter* list_;
};
