#include "mapdata/windows/frmInfo.h"

#include "i18n/WindowTexts.h"
#include "mapdata/files/ProfileFile.h"
#include "mapdata/world/InfoFile.h"
#include "mapdata/world/Portraits.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/windows/PictureReader.h"
#include "platform/windows/WindowTitle.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>

using QtText::ToQt;
using WindowTexts::Row;

namespace {

constexpr TextView FallbackPicture = u":/builtin/fallback.jpg";

constexpr ControlDesign Controls[] = {
    {.name = u"lblName",
     .place = {1800, 120, 4935, 255},
     .text = u"<name>",
     .points = 12,
     .bold = true},
    {.name = u"picPortrait",
     .kind = ControlKind::Picture,
     .place = {120, 120, 1575, 1575},
     .namedBy = u"lblName"},
    {.name = u"txtInfo",
     .kind = ControlKind::TextBox,
     .place = {1800, 480, 4815, 3855},
     .text = u"<beschreibung>\n",
     .points = 9.75,
     .namedBy = u"lblName"},
    {.name = u"btnClose",
     .kind = ControlKind::Button,
     .place = {2880, 4560, 1335, 375},
     .caption = &Row(u"frmInfo", u"buttonclose")},
    {.name = u"imgBackup", .kind = ControlKind::Picture, .place = {600, 3720, 495, 495}},
};

constexpr DialogDesign WindowDesign = {.name = u"frmInfo",
                                       .width = 6780,
                                       .height = 5040,
                                       .defaultButton = u"btnClose",
                                       .cancelButton = u"btnClose",
                                       .controls = Controls};

}  // namespace

frmInfo::frmInfo(QWidget* parent, World& world, const Text& infoEntityName)
    : Dialog(parent, WindowDesign),
      lblName(Control<QLabel>(u"lblName")),
      picPortrait(Control<QLabel>(u"picPortrait")),
      txtInfo(Control<QPlainTextEdit>(u"txtInfo")),
      btnClose(Control<QPushButton>(u"btnClose")),
      imgBackup(Control<QLabel>(u"imgBackup")) {
  const LOCAL::Language& language = world.language;
  IniOps::Snapshot snapshot(world.cache);
  const Text name(Texts::Trim(infoEntityName));
  const Text key = language.Key(name);
  const auto keyOf = [&language](TextView shown) { return language.Key(shown); };
  const Text description = InfoFile::ReadRedirected(snapshot.File(language.InfoPath()), key, keyOf);
  imgBackup->hide();
  imgBackup->setPixmap(QPixmap::fromImage(PictureReader::Read(FallbackPicture)));
  txtInfo->setReadOnly(true);
  txtInfo->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  QPalette buttonFace = txtInfo->palette();
  buttonFace.setColor(QPalette::Base, buttonFace.color(QPalette::Button));
  txtInfo->setPalette(buttonFace);
  txtInfo->setPlainText(ToQt(InfoFile::WithLineBreaks(description)));
  ShowPortrait(snapshot, world.paths, key);
  lblName->setText(ToQt(infoEntityName));
  WindowTitle::Set(*this, name);
  ApplyTexts(snapshot, language);
}

void frmInfo::ShowPortrait(IniOps::Snapshot& files, const ProgramPaths& paths, const Text& key) {
  const ProfileFile& list = files.File(Portraits::ListPath(paths.picturesFolder));
  const QImage portrait =
      PictureReader::Read(Portraits::PicturePath(list, paths.picturesFolder, key));
  picPortrait->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  picPortrait->setPixmap(portrait.isNull() ? imgBackup->pixmap() : QPixmap::fromImage(portrait));
}
