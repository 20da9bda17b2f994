#include "search/windows/frmFind.h"

#include "i18n/WindowTexts.h"
#include "search/Names.h"
#include "search/windows/NameSuggestions.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using QtText::FromQt;
using QtText::ToQt;
using Search::Mode;
using WindowTexts::Row;

namespace {

constexpr ControlDesign Controls[] = {
    {.name = u"txtFind",
     .kind = ControlKind::TextField,
     .place = {1320, 240, 4575, 330},
     .namedBy = u"lblFind"},
    {.name = u"lblFind", .place = {120, 308, 1005, 195}, .caption = &Row(u"frmFind", u"searchfor")},
    {.name = u"fraOptions",
     .kind = ControlKind::Frame,
     .place = {120, 700, 4095, 1095},
     .caption = &Row(u"frmFind", u"options")},
    {.name = u"rbNamesOnly",
     .kind = ControlKind::OptionButton,
     .place = {120, 360, 2175, 255},
     .caption = &Row(u"frmFind", u"searchinnames"),
     .frame = u"fraOptions"},
    {.name = u"rbDescsOnly",
     .kind = ControlKind::OptionButton,
     .place = {120, 720, 2535, 255},
     .caption = &Row(u"frmFind", u"searchindescriptions"),
     .frame = u"fraOptions"},
    {.name = u"btnFind",
     .kind = ControlKind::Button,
     .place = {4560, 810, 1335, 375},
     .caption = &Row(u"frmFind", u"buttonfind")},
    {.name = u"btnAbort",
     .kind = ControlKind::Button,
     .place = {4560, 1440, 1335, 375},
     .caption = &Row(u"frmFind", u"buttoncancel")},
};

constexpr DialogDesign WindowDesign = {.name = u"frmFind",
                                       .caption = &Row(u"frmFind", u"caption"),
                                       .width = 6030,
                                       .height = 1935,
                                       .defaultButton = u"btnFind",
                                       .cancelButton = u"btnAbort",
                                       .controls = Controls};

}  // namespace

frmFind::frmFind(QWidget* parent, World& world, Search::State& state)
    : Dialog(parent, WindowDesign),
      world_(world),
      state_(state),
      lblFind(Control<QLabel>(u"lblFind")),
      txtFind(Control<QLineEdit>(u"txtFind")),
      fraOptions(Control<QGroupBox>(u"fraOptions")),
      rbNamesOnly(Control<QRadioButton>(u"rbNamesOnly")),
      rbDescsOnly(Control<QRadioButton>(u"rbDescsOnly")),
      btnFind(Control<QPushButton>(u"btnFind")),
      btnAbort(Control<QPushButton>(u"btnAbort")) {
  LoadState();
  new NameSuggestions(*txtFind, [this] {
    IniOps::Snapshot files(world_.cache);
    return Search::AllNames(files, world_.language, world_.paths);
  });
  connect(txtFind, &QLineEdit::textChanged, this, &frmFind::txtFind_Change);
  connect(rbNamesOnly, &QRadioButton::toggled, this,
          [this](bool chosen) { ChooseMode(Mode::Names, chosen); });
  connect(rbDescsOnly, &QRadioButton::toggled, this,
          [this](bool chosen) { ChooseMode(Mode::Descriptions, chosen); });
  connect(btnFind, &QPushButton::clicked, this, &frmFind::btnFind_Click);
  IniOps::Snapshot snapshot(world.cache);
  ApplyTexts(snapshot, world.language);
}

void frmFind::LoadState() {
  txtFind->setText(ToQt(state_.SearchTerm));
  txtFind->selectAll();
  txtFind->setFocus();
  txtFind_Change();
  (state_.SearchMode == Mode::Names ? rbNamesOnly : rbDescsOnly)->setChecked(true);
}

void frmFind::txtFind_Change() {
  btnFind->setEnabled(!Texts::Trim(FromQt(txtFind->text())).empty());
}

// At once, since the choice also holds when the dialog is cancelled.
void frmFind::ChooseMode(Mode mode, bool chosen) {
  if (chosen)
    state_.SearchMode = mode;
}

void frmFind::btnFind_Click() {
  btnFind->setEnabled(false);
  Q_EMIT SearchStarted();
  IniOps::Snapshot files(world_.cache);
  result_ = Search::FindFirst(state_, files, world_, FromQt(txtFind->text()));
  accept();
}
