#include "perks/windows/frmPerks.h"

#include "i18n/TextRow.h"
#include "i18n/WindowTexts.h"
#include "platform/windows/WindowTitle.h"

#include <QFile>
#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItem>

#include <map>

using QtText::FromQt;
using QtText::ToQt;
using WindowTexts::Row;

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int PictureSize = 16;

constexpr ControlDesign Controls[] = {
    {.name = u"tvPerks", .kind = ControlKind::Tree, .place = {120, 120, 5655, 7335}},
    {.name = u"btnShow",
     .kind = ControlKind::Button,
     .place = {2880, 7680, 1335, 375},
     .caption = &Row(u"frmPerks", u"ButtonShow")},
    {.name = u"btnAbort",
     .kind = ControlKind::Button,
     .place = {4440, 7680, 1335, 375},
     .caption = &Row(u"frmPerks", u"ButtonCancel")},
};

constexpr DialogDesign WindowDesign = {.name = u"frmPerks",
                                       .width = 5895,
                                       .height = 8145,
                                       .defaultButton = u"btnAbort",
                                       .cancelButton = u"btnAbort",
                                       .controls = Controls};

// Without a picture an icon would search for one under the suffixes of all formats.
QIcon PictureOf(int number) {
  const auto file = QStringLiteral(":/builtin/perk-%1.png").arg(number);
  return QFile::exists(file) ? QIcon(file) : QIcon();
}

PerkTree::Lookup LookupIn(IniOps::Snapshot& files, const LOCAL::Language& language) {
  return [&files, &language](const TextRow& row) { return language.Lookup(files, row); };
}

}  // namespace

frmPerks::frmPerks(QWidget* parent, const Text& perksData, World& world)
    : Dialog(parent, WindowDesign),
      PerksData(perksData),
      world_(world),
      tvPerks(Control<QTreeWidget>(u"tvPerks")),
      btnShow(Control<QPushButton>(u"btnShow")),
      btnAbort(Control<QPushButton>(u"btnAbort")) {
  IniOps::Snapshot snapshot(world.cache);
  const auto lookup = LookupIn(snapshot, world.language);
  const Text name = PerkTree::PerkRegion(PerksData);
  const PerkTree::Region region = {name,
                                   world.language.Shown(world.language.NameFile(snapshot), name)};
  tvPerks->header()->hide();
  tvPerks->setIconSize({PictureSize, PictureSize});
  Fill(PerkTree::Build(snapshot.IniSectionNames(PerksData), region, lookup));
  const Text caption = PerkTree::WindowCaption(region, lookup);
  WindowTitle::Set(*this, caption);
  tvPerks->setAccessibleName(ToQt(caption));
  ApplyTexts(snapshot, world.language);
  connect(btnShow, &QPushButton::clicked, this, &frmPerks::btnShow_Click);
  connect(tvPerks, &QTreeWidget::itemDoubleClicked, this, &frmPerks::btnShow_Click);
}

void frmPerks::Fill(const std::vector<PerkTree::Node>& nodes) {
  std::map<Text, QTreeWidgetItem*> parents = {{{}, tvPerks->invisibleRootItem()}};
  std::map<int, QIcon> ilPerks;
  QFont bold = tvPerks->font();
  bold.setBold(true);
  for (const PerkTree::Node& node : nodes) {
    auto* item = new QTreeWidgetItem(parents.at(node.parent), {ToQt(node.caption)});
    item->setData(0, KeyRole, ToQt(node.key));
    item->setIcon(0, ilPerks.try_emplace(node.picture, PictureOf(node.picture)).first->second);
    if (node.bold)
      item->setFont(0, bold);
    parents.emplace(node.key, item);
  }
  tvPerks->expandAll();
}

void frmPerks::btnShow_Click() {
  const auto selected = tvPerks->selectedItems();
  if (selected.isEmpty())
    return;
  const Text key = FromQt(selected.front()->data(0, KeyRole).toString());
  if (!PerkTree::IsPerk(key))
    return;
  IniOps::Snapshot files(world_.cache);
  const Text heading = PerkTree::MapHeading(PerksData, FromQt(selected.front()->text(0)),
                                            LookupIn(files, world_.language));
  Q_EMIT TeachersChosen(PerkTree::PicturePath(PerksData), PerksData, key, heading);
  accept();
}
