#include "auxwin/windows/frmAbout.h"

#include "auxwin/Launching.h"
#include "auxwin/windows/Hyperlink.h"
#include "controls/windows/WidgetTwips.h"
#include "i18n/TextRow.h"
#include "i18n/WindowTexts.h"
#include "mapdata/files/FileSystem.h"
#include "mapdata/world/ProgramPaths.h"
#include "mapdata/world/Settings.h"
#include "platform/ProgramInfo.h"
#include "platform/windows/WindowTitle.h"

#include <QFrame>
#include <QIcon>
#include <QPushButton>

using QtText::ToQt;
using WindowTexts::Row;

namespace {

constexpr ControlDesign AboutControls[] = {
    {.name = u"picBanner",
     .kind = ControlKind::Picture,
     .place = {120, 120, 6060, 2325},
     .text = ProgramInfo::Title},
    {.name = u"lblTitle",
     .place = {240, 2685, 5910, 360},
     .text = u"{ProgrammTitel}",
     .points = 12,
     .bold = true},
    {.name = u"lblVersion",
     .place = {225, 3120, 5910, 240},
     .text = u"{Version}",
     .points = 9.75,
     .bold = true},
    {.name = u"lblCopyright",
     .place = {225, 3465, 5910, 240},
     .text = u"{Copyright}",
     .bold = true},
    {.name = u"lblDescription", .place = {225, 3840, 5925, 540}, .bold = true},
    {.name = u"lblEMailLabel",
     .place = {225, 4485, 495, 240},
     .caption = &Row(u"frmAbout", u"email"),
     .bold = true},
    {.name = u"lblEMail",
     .place = {1095, 4485, 5100, 240},
     .text = ProgramInfo::EMail,
     .bold = true},
    {.name = u"lblWebSiteLabel",
     .place = {240, 4815, 780, 240},
     .caption = &Row(u"frmAbout", u"website"),
     .bold = true},
    {.name = u"lblWebSite",
     .place = {1095, 4815, 5100, 240},
     .text = ProgramInfo::WebSite,
     .bold = true},
    {.name = u"lblDisclaimer", .place = {240, 5280, 5820, 945}, .bold = true},
    {.name = u"lblSources", .place = {240, 6240, 5820, 1665}, .bold = true},
    {.name = u"lblThanksTo", .place = {240, 7800, 5820, 615}, .bold = true},
    {.name = u"LineGray", .kind = ControlKind::Line, .place = {0, 8595, 6240, 15}},
    {.name = u"linWhite", .kind = ControlKind::Line, .place = {-30, 8610, 6150, 15}},
    {.name = u"btnOK",
     .kind = ControlKind::Button,
     .place = {4800, 8880, 1215, 375},
     .text = u"&OK",
     .bold = true},
};

constexpr DialogDesign AboutDesign = {.name = u"frmAbout",
                                      .width = 6270,
                                      .height = 9330,
                                      .defaultButton = u"btnOK",
                                      .cancelButton = u"btnOK",
                                      .controls = AboutControls};

// Pixels between the control's edge and the picture.
constexpr int BannerFrame = 2;
constexpr int Gray = 0x808080;
constexpr int White = 0xFFFFFF;

struct Paragraph {
  TextView label;
  const TextRow& text;
};

constexpr Paragraph Paragraphs[] = {
    {u"lblDescription", Row(u"frmAbout", u"description")},
    {u"lblDisclaimer", Row(u"frmAbout", u"disclaimer")},
    {u"lblSources", Row(u"frmAbout", u"sources")},
    {u"lblThanksTo", Row(u"frmAbout", u"thanksto")},
};

void Fill(QWidget& line, int color) {
  QPalette palette;
  palette.setColor(QPalette::Window, WidgetTwips::Color(color));
  line.setPalette(palette);
}

}  // namespace

frmAbout::frmAbout(QWidget* parent, World& world, Desktop& desktop, Launching& launching)
    : Dialog(parent, AboutDesign), desktop_(desktop) {
  IniOps::Snapshot snapshot(world.cache);
  StartMusic(snapshot, world.paths);
  Hyperlink::CreateAddressLink(Label(u"lblEMail"), launching, u"mailto:");
  Hyperlink::CreateAddressLink(Label(u"lblWebSite"), launching, u"");
  ShowBanner();
  Fill(*Control<QWidget>(u"LineGray"), Gray);
  Fill(*Control<QWidget>(u"linWhite"), White);
  ShowTexts(snapshot, world.language, world.edition.text);
  // Not the first link, which Enter would open.
  Control<QPushButton>(u"btnOK")->setFocus();
}

frmAbout::~frmAbout() {
  StopMusic();
}

void frmAbout::done(int result) {
  StopMusic();
  Dialog::done(result);
}

void frmAbout::StartMusic(IniOps::Snapshot& files, const ProgramPaths& paths) {
  playMusic_ = Settings::IsYes(files.File(paths.settings), Settings::PlayMusic);
  if (!playMusic_)
    return;
  const auto music = FileSystem::Resolve(Texts::Join(paths.programFolder, u"orvalis.wav"));
  if (!music || !desktop_.LoopSound(*music))
    desktop_.Beep();
}

void frmAbout::StopMusic() {
  if (playMusic_)
    desktop_.StopSound();
  playMusic_ = false;
}

void frmAbout::ShowBanner() {
  QLabel& banner = Label(u"picBanner");
  banner.setFrameStyle(QFrame::Panel | QFrame::Sunken);
  banner.setLineWidth(BannerFrame);
  banner.setScaledContents(true);
  banner.setPixmap(
      QIcon(QStringLiteral(":/builtin/banner-about.png")).pixmap(banner.contentsRect().size()));
}

void frmAbout::ShowTexts(IniOps::Snapshot& files, const LOCAL::Language& language,
                         const Text& edition) {
  const Text caption = language.Lookup(files, Row(u"frmAbout", u"caption"));
  const Text title = Texts::Join(caption, u" ", ProgramInfo::Title);
  WindowTitle::Set(*this, language.IsGerman() ? Texts::Join(title, u" ", edition) : title);
  Label(u"lblTitle").setText(ToQt(ProgramInfo::Title));
  Label(u"lblVersion")
      .setText(ToQt(Texts::Join(u"Version: ", ProgramInfo::Version, u" ", edition)));
  Label(u"lblCopyright").setText(ToQt(ProgramInfo::Copyright));
  for (const Paragraph& paragraph : Paragraphs)
    Label(paragraph.label).setText(ToQt(language.Lookup(files, paragraph.text)));
  ApplyTexts(files, language);
}
