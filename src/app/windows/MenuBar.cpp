#include "app/windows/MenuBar.h"

#include "platform/ProgramInfo.h"
#include "platform/windows/QtText.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>

#include <algorithm>
#include <array>

using Kind = MenuRow::Kind;
using QtText::ToQt;

namespace {

constexpr size_t Levels = 4;

QAction* DividerLine(QWidget* menu) {
  auto* line = new QAction(menu);
  line->setSeparator(true);
  return line;
}

}  // namespace

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
  setObjectName(QStringLiteral("menuBar"));
  setAccessibleName(ToQt(ProgramInfo::Title));
  // The menu that rows of the next level go into.
  std::array<QWidget*, Levels> open = {this};
  for (const MenuRow& row : MenuTable::Rows()) {
    const auto level = static_cast<size_t>(row.level);
    if (row.divided)
      open[level]->addAction(DividerLine(open[level]));
    QAction* action = MakeAction(row);
    open[level]->addAction(action);
    if (row.kind == Kind::Menu)
      open[level + 1] = action->menu();
    actions_.push_back(action);
  }
}

QAction* MenuBar::MakeAction(const MenuRow& row) {
  const QString name = ToQt(row.name);
  QAction* action = nullptr;
  if (row.kind == Kind::Menu) {
    auto* menu = new QMenu(this);
    menu->setObjectName(name);
    action = menu->menuAction();
    connect(action, &QAction::changed, menu,
            [menu] { menu->setAccessibleName(menu->title().remove(u'&')); });
  } else {
    action = new QAction(this);
    action->setShortcut(QKeySequence::fromString(ToQt(row.shortcut)));
  }
  action->setObjectName(name);
  action->setText(ToQt(row.caption.german));
  action->setEnabled(row.enabled);
  if (row.kind == Kind::Category)
    connect(action, &QAction::triggered, this, [this, &row] { Q_EMIT CategoryChosen(row); });
  else if (row.kind == Kind::Command)
    connect(action, &QAction::triggered, this, [this, &row] { Q_EMIT CommandChosen(row); });
  return action;
}

// The toolkit goes on from one menu to the next with the same access key only while Alt is pressed
// anew each time.
void MenuBar::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~(Qt::AltModifier | Qt::ShiftModifier)) == 0;
  QAction* const next = plain ? NextWithKey(event->text()) : nullptr;
  if (next && next->menu())
    setActiveAction(next);
  else
    QMenuBar::keyPressEvent(event);
}

// Behind the menu that is active now, from the left again after the last one.
QAction* MenuBar::NextWithKey(const QString& key) const {
  QAction* first = nullptr;
  bool behind = activeAction() == nullptr;
  for (QAction* action : actions()) {
    const bool reached = action->isVisible() && action->isEnabled() && !key.isEmpty() &&
                         action->text().contains(u'&' + key, Qt::CaseInsensitive);
    if (reached && behind)
      return action;
    if (reached && !first)
      first = action;
    behind = behind || action == activeAction();
  }
  return first;
}

void MenuBar::SetCaptions(std::span<const Text> captions) {
  const auto rows = MenuTable::Rows();
  size_t next = 0;
  for (size_t i = 0; i < rows.size() && next < captions.size(); ++i)
    if (rows[i].kind != Kind::BarDivider)
      actions_[i]->setText(ToQt(captions[next++]));
}

void MenuBar::SetEnabled(TextView name, bool enabled) {
  if (QAction* action = Find(name))
    action->setEnabled(enabled);
}

void MenuBar::SetShown(TextView name, bool shown) {
  if (QAction* action = Find(name))
    action->setVisible(shown);
}

Text MenuBar::Heading(const MenuRow& category) const {
  const auto rows = MenuTable::Rows();
  const auto regionMenu = std::find_if(
      rows.begin(), rows.end(), [&](const MenuRow& row) { return row.region == category.region; });
  const auto caption = [this](TextView name) { return QtText::FromQt(Find(name)->text()); };
  return Texts::Join(caption(regionMenu->name), u": ", caption(category.name));
}

QAction* MenuBar::Find(TextView name) const {
  const auto rows = MenuTable::Rows();
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [name](const MenuRow& entry) { return entry.name == name; });
  return row == rows.end() ? nullptr : actions_[static_cast<size_t>(row - rows.begin())];
}
