#include "i18n/windows/frmLang.h"

#include "auxwin/Launching.h"
#include "auxwin/windows/Hyperlink.h"
#include "i18n/WindowTexts.h"
#include "platform/windows/PictureReader.h"

#include <QLabel>
#include <QPixmap>
#include <QPushButton>

using QtText::ToQt;
using WindowTexts::Row;

namespace {

constexpr ControlDesign Bold(TextView name, TwipsRect place, const TextRow* caption,
                             TextView text = {}) {
  return {.name = name,
          .place = place,
          .caption = caption,
          .text = text,
          .points = 9.75,
          .bold = true,
          .frame = u"fraMetaData"};
}

constexpr ControlDesign Regular(TextView name, TwipsRect place, TextView text) {
  return {.name = name, .place = place, .text = text, .points = 9.75, .frame = u"fraMetaData"};
}

constexpr ControlDesign Controls[] = {
    {.name = u"glbLang",
     .kind = ControlKind::GridList,
     .place = {120, 120, 4335, 4575},
     .caption = &Row(u"frmLang", u"availablelangs"),
     .points = 9.75},
    {.name = u"btnSelect",
     .kind = ControlKind::Button,
     .place = {2040, 7200, 1095, 375},
     .caption = &Row(u"frmLang", u"buttonselect")},
    {.name = u"btnAbort",
     .kind = ControlKind::Button,
     .place = {3360, 7200, 1095, 375},
     .caption = &Row(u"frmLang", u"buttoncancel")},
    {.name = u"fraMetaData",
     .kind = ControlKind::Frame,
     .place = {120, 4800, 4335, 2295},
     .caption = &Row(u"frmLang", u"currentlang")},
    {.name = u"imgCurrentLang",
     .kind = ControlKind::Picture,
     .place = {120, 360, 240, 240},
     .frame = u"fraMetaData",
     .namedBy = u"lblCurrentLang"},
    {.name = u"lblCurrentLang",
     .place = {480, 360, 3720, 300},
     .text = u"<current lang>",
     .points = 12,
     .bold = true,
     .frame = u"fraMetaData"},
    Bold(u"lblVersionCaption", {120, 840, 960, 240}, nullptr, u"Version:"),
    Regular(u"lblVersion", {1200, 840, 0, 240}, u"<version>"),
    Bold(u"lblAuthorCaption", {120, 1200, 960, 240}, &Row(u"frmLang", u"author")),
    Regular(u"lblAuthor", {1200, 1200, 0, 240}, u"<author>"),
    Bold(u"lblEMailLabel", {120, 1560, 960, 240}, &Row(u"frmLang", u"email")),
    Regular(u"lblEMail", {1200, 1560, 0, 240}, u"<email>"),
    Bold(u"lblWebSiteLabel", {120, 1890, 960, 240}, &Row(u"frmLang", u"website")),
    Regular(u"lblWebSite", {1200, 1890, 0, 240}, u"<url>"),
    {.name = u"imgLangGerman", .kind = ControlKind::Picture, .place = {120, 7200, 240, 240}},
    {.name = u"imgNoFlag", .kind = ControlKind::Picture, .place = {480, 7200, 240, 240}},
};

constexpr DialogDesign LanguageDesign = {.name = u"frmLang",
                                         .caption = &Row(u"frmLang", u"caption"),
                                         .width = 4590,
                                         .height = 7695,
                                         .defaultButton = u"btnSelect",
                                         .cancelButton = u"btnAbort",
                                         .controls = Controls};

// Null if the file can't be read.
QPixmap ReadFlag(TextView file) {
  return QPixmap::fromImage(PictureReader::Read(file));
}

}  // namespace

frmLang::frmLang(QWidget* parent, World& world, Launching& launching,
                 std::span<const TextRow> menus)
    : Dialog(parent, LanguageDesign),
      paths_(world.paths),
      language_(world.language),
      cache_(world.cache),
      menus_(menus),
      glbLang(Control<GridListbox>(u"glbLang")),
      imgCurrentLang(Control<QLabel>(u"imgCurrentLang")),
      lblCurrentLang(Control<QLabel>(u"lblCurrentLang")),
      lblVersion(Control<QLabel>(u"lblVersion")),
      lblAuthor(Control<QLabel>(u"lblAuthor")),
      lblEMail(Control<QLabel>(u"lblEMail")),
      lblWebSite(Control<QLabel>(u"lblWebSite")),
      imgLangGerman(Control<QLabel>(u"imgLangGerman")),
      imgNoFlag(Control<QLabel>(u"imgNoFlag")),
      btnSelect(Control<QPushButton>(u"btnSelect")) {
  Hyperlink::CreateAddressLink(*lblEMail, launching, u"mailto:");
  Hyperlink::CreateAddressLink(*lblWebSite, launching, u"http://");
  imgLangGerman->hide();
  imgLangGerman->setPixmap(ReadFlag(u":/builtin/flag-de.png"));
  imgNoFlag->hide();
  imgNoFlag->setPixmap(ReadFlag(u":/builtin/flag-none.png"));
  IniOps::Snapshot snapshot(cache_);
  FillList(snapshot);
  const bool german = language_.IsGerman();
  ShowDetails(LanguageList::ReadDetails(snapshot,
                                        german ? Text(LOCAL::BuiltIn) : language_.LanguageFile()));
  ShowFlag(german ? imgLangGerman->pixmap()
                  : Flag(LOCAL::FileOfLanguage(language_.LanguageRoot(), language_.LanguageFolder(),
                                               u".bmp")));
  ApplyTexts(snapshot, language_);
  connect(glbLang, &GridListbox::RowClick, this, &frmLang::glbLang_RowClick);
  connect(glbLang, &GridListbox::DblClick, this, &frmLang::btnSelect_Click);
  connect(btnSelect, &QPushButton::clicked, this, &frmLang::btnSelect_Click);
}

void frmLang::ShowFlag(const QPixmap& flag) {
  imgCurrentLang->setPixmap(GridListbox::Sized(flag, devicePixelRatio()));
}

void frmLang::FillList(IniOps::Snapshot& snapshot) {
  glbLang->SetNoHeader(false);
  glbLang->SetSorted(true);
  glbLang->AddItem(Texts::Join(u" ", LOCAL::German), imgLangGerman->pixmap(), LOCAL::BuiltIn);
  for (const auto& entry : LanguageList::Read(snapshot, language_.LanguageRoot()))
    glbLang->AddItem(Texts::Join(u" ", entry.name), Flag(entry.flag), entry.file);
  for (int row = 1; row <= glbLang->ListCount(); ++row)
    if (Texts::Trim(glbLang->List(row)) == language_.CurrentLanguage())
      glbLang->Select(row);
}

void frmLang::ShowDetails(const LanguageList::Details& details) {
  lblCurrentLang->setText(ToQt(details.language));
  lblVersion->setText(ToQt(details.version));
  lblAuthor->setText(ToQt(details.author));
  lblWebSite->setText(ToQt(details.website));
  lblEMail->setText(ToQt(details.email));
}

// The flag in the file; the picture for none if it can't be read.
QPixmap frmLang::Flag(TextView file) const {
  const QPixmap flag = ReadFlag(file);
  return flag.isNull() ? imgNoFlag->pixmap() : flag;
}

void frmLang::glbLang_RowClick(const GridListbox::Row& Item) {
  IniOps::Snapshot snapshot(cache_);
  ShowDetails(LanguageList::ReadDetails(snapshot, Item.Tag));
  ShowFlag(Item.Tag == LOCAL::BuiltIn ? imgLangGerman->pixmap()
                                      : Flag(LanguageList::FlagOf(Item.Tag)));
}

void frmLang::btnSelect_Click() {
  const auto row = glbLang->Rows(glbLang->ListIndex());
  if (!row)
    return;
  IniOps::Snapshot snapshot(cache_);
  const InterfaceTexts texts =
      LanguageList::Select(snapshot, language_, paths_.settings, row->Tag, menus_);
  Q_EMIT LanguageChanged(texts);
  accept();
}
