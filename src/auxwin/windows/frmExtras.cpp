#include "auxwin/windows/frmExtras.h"

#include "auxwin/Documents.h"
#include "auxwin/ExtrasTable.h"
#include "controls/windows/GridListbox.h"
#include "i18n/WindowTexts.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>

using WindowTexts::Row;

namespace {

constexpr int PictureSize = 16;

constexpr ControlDesign ExtrasControls[] = {
    {.name = u"glbExtras",
     .kind = ControlKind::GridList,
     .place = {0, 0, 4335, 4575},
     .points = 9.75},
    {.name = u"btnSelect",
     .kind = ControlKind::Button,
     .place = {1800, 4680, 1095, 375},
     .caption = &Row(u"frmExtras", u"btnSelect")},
    {.name = u"btnAbort",
     .kind = ControlKind::Button,
     .place = {3120, 4680, 1095, 375},
     .caption = &Row(u"frmExtras", u"btnCancel")},
    {.name = u"imgList", .kind = ControlKind::Picture, .place = {120, 4680, 240, 240}},
};

constexpr DialogDesign ExtrasDesign = {.name = u"frmExtras",
                                       .caption = &Row(u"frmExtras", u"caption"),
                                       .width = 4335,
                                       .height = 5145,
                                       .defaultButton = u"btnSelect",
                                       .cancelButton = u"btnAbort",
                                       .controls = ExtrasControls};

}  // namespace

frmExtras::frmExtras(QWidget* parent, World& world, Launching& launching)
    : Dialog(parent, ExtrasDesign),
      paths_(world.paths),
      language_(world.language),
      launching_(launching),
      glbExtras(Control<GridListbox>(u"glbExtras")),
      btnSelect(Control<QPushButton>(u"btnSelect")),
      btnAbort(Control<QPushButton>(u"btnAbort")),
      imgList(Control<QLabel>(u"imgList")) {
  imgList->hide();
  imgList->setPixmap(QIcon(QStringLiteral(":/builtin/document.png")).pixmap(PictureSize));
  glbExtras->SetSorted(true);
  glbExtras->SetCaption(u"Vorhandene Extras");
  IniOps::Snapshot snapshot(world.cache);
  ApplyTexts(snapshot, language_);
  FillList(snapshot);
  connect(btnSelect, &QPushButton::clicked, this, &frmExtras::btnSelect_Click);
  connect(glbExtras, &GridListbox::DblClick, this, &frmExtras::btnSelect_Click);
}

void frmExtras::FillList(IniOps::Snapshot& files) {
  for (const Extra& extra : ExtrasTable)
    Add(language_.Lookup(files, extra.name), extra.file);
}

void frmExtras::Add(TextView name, TextView File) {
  glbExtras->AddItem(name, imgList->pixmap(), File);
}

void frmExtras::btnSelect_Click() {
  const auto row = glbExtras->Rows(glbExtras->ListIndex());
  if (!row)
    return;
  const Text file = Texts::Lower(Texts::Trim(row->Tag));
  switch (Documents::ViewerOf(row->Tag)) {
    case Documents::Viewer::Program:
      return Show_EXE(file);
    case Documents::Viewer::Page:
      return Show_HTML(file);
    case Documents::Viewer::Shell:
      return Show_CHM(file);
    case Documents::Viewer::None:
      return;
  }
}

Text frmExtras::Copy(TextView File) const {
  return Documents::Choose(language_, File, Texts::Join(paths_.extrasFolder, File));
}

void frmExtras::Show_EXE(TextView File) {
  launching_.StartProgram(Copy(File));
}

void frmExtras::Show_HTML(TextView File) {
  launching_.ShowPage(Copy(File));
}

void frmExtras::Show_CHM(TextView File) {
  launching_.ShellExec(Documents::Quoted(Copy(File)));
}
