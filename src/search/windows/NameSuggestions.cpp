#include "search/windows/NameSuggestions.h"

#include "controls/windows/GermanOrder.h"
#include "platform/windows/QtText.h"
#include "search/Folding.h"
#include "search/Names.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace {

constexpr int MaximumVisibleRows = 12;

}  // namespace

NameSuggestions::NameSuggestions(QLineEdit& box, std::function<std::vector<Text>()> names)
    : QObject(&box), box_(box), names_(std::move(names)), list_(new QCompleter(&offered_, this)) {
  // Not the box's own completer, which would open with every letter.
  list_->setWidget(&box);
  list_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  list_->setMaxVisibleItems(MaximumVisibleRows);
  list_->popup()->setFont(box.font());
  connect(list_, qOverload<const QString&>(&QCompleter::activated), &box, &QLineEdit::setText);
  connect(&box, &QLineEdit::textEdited, this, [this] {
    if (list_->popup()->isVisible())
      Offer();
  });
  box.installEventFilter(this);
}

bool NameSuggestions::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress)
    return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool down =
      key.key() == Qt::Key_Down && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (!down || list_->popup()->isVisible())
    return false;
  Offer();
  return true;
}

void NameSuggestions::Offer() {
  if (!known_)
    known_ = names_();
  QStringList rows;
  for (const Text& name : *known_)
    if (Search::Holds(name, QtText::FromQt(box_.text())))
      rows.append(QtText::ToQt(name));
  std::stable_sort(rows.begin(), rows.end(), GermanOrder());
  offered_.setStringList(rows);
  if (rows.isEmpty())
    return list_->popup()->hide();
  list_->complete();
  list_->popup()->setCurrentIndex(list_->completionModel()->index(0, 0));
}
