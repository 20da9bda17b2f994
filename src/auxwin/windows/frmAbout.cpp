#include "auxwin/windows/frmAbout.h"

#include "auxwin/windows/Hyperlink.h"
#include "controls/windows/WidgetTwips.h"
#include "mapdata/files/FileSystem.h"
#include "mapdata/world/Settings.h"
#include "platform/ProgramInfo.h"

#include <QIcon>
#include <QPushButton>

using QtText::ToQt;

namespace {

constexpr TextView Disclaimer =
    u"Nutzungsbedingungen: Die Karten von Orvalis sind kostenlos und dürfen nur zu "
    u"nichtkommerziellen Zwecken verwendet werden. Ihre Veröffentlichung auf anderen Webseiten ist "
    u"nur mit Erlaubnis der Autoren gestattet. Anfragen bitte an die oben genannte E-Mail-Adresse.";

constexpr TextView Sources =
    u"Quellen: Die Angaben auf den Karten stammen von den Seiten der Gemeinschaft, dem "
    u"Duskhold-Archiv, der Kartenstube, dem Lagerfeuer und Wanderers Rast, sowie aus den "
    u"Reisetagebüchern vieler Spieler, die Höhlen vermessen, Truhen gezählt und Lehrer nach "
    u"ihrem Können gefragt haben. Ihnen allen gebührt Dank.";

constexpr TextView ThanksTo =
    u"Dank für Tests und Hilfe an Ansgar Riedweg, Friederike Halm, Jorin Kesselbach, Mathis "
    u"Ohlendorf, Svea Brandlechner und Tilda Wiesengrund.";

constexpr ControlDesign Controls[] = {
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
    {.name = u"lblDescription",
     .place = {225, 3840, 5925, 540},
     .text = u"{Beschreibung}",
     .bold = true},
    {.name = u"lblEMailLabel", .place = {225, 4485, 495, 240}, .text = u"eMail:", .bold = true},
    {.name = u"lblEMail",
     .place = {1095, 4485, 5100, 240},
     .text = ProgramInfo::EMail,
     .bold = true},
    {.name = u"lblWebSiteLabel", .place = {240, 4815, 780, 240}, .text = u"WebSite:", .bold = true},
    {.name = u"lblWebSite",
     .place = {1095, 4815, 5100, 240},
     .text = ProgramInfo::WebSite,
     .bold = true},
    {.name = u"lblDisclaimer", .place = {240, 5280, 5820, 945}, .text = Disclaimer, .bold = true},
    {.name = u"lblSources", .place = {240, 6240, 5820, 1665}, .text = Sources, .bold = true},
    {.name = u"lblThanksTo", .place = {240, 7800, 5820, 615}, .text = ThanksTo, .bold = true},
    {.name = u"LineGray", .kind = ControlKind::Line, .place = {0, 8595, 6240, 15}},
    {.name = u"linWhite", .kind = ControlKind::Line, .place = {-30, 8610, 6150, 15}},
    {.name = u"btnOK",
     .kind = ControlKind::Button,
     .place = {4800, 8880, 1215, 375},
     .text = u"&OK",
     .bold = true},
};

constexpr DialogDesign WindowDesign = {.name = u"frmAbout",
                                       .caption = u"Über...",
                                       .width = 6270,
                                       .height = 9330,
                                       .defaultButton = u"btnOK",
                                       .cancelButton = u"btnOK",
                                       .controls = Controls};

// Pixels between the control's edge and the picture.
constexpr int BannerFrame = 2;
constexpr int Gray = 0x808080;
constexpr int White = 0xFFFFFF;

// The labels that a language file has texts for.
struct Translated {
  TextView label;
  TextView key;
};

constexpr Translated TranslatedLabels[] = {
    {u"lblDescription", u"description"}, {u"lblEMailLabel", u"email"},
    {u"lblWebSiteLabel", u"website"},    {u"lblDisclaimer", u"disclaimer"},
    {u"lblSources", u"sources"},         {u"lblThanksTo", u"thanksto"},
};

void Fill(QWidget& line, int color) {
  QPalette palette;
  palette.setColor(QPalette::Window, WidgetTwips::Color(color));
  line.setPalette(palette);
}

}  // namespace

frmAbout::frmAbout(QWidget* parent, World& world, Desktop& desktop, Launching& launching)
    : Dialog(parent, WindowDesign), desktop_(desktop) {
  IniOps::Snapshot snapshot(world.cache);
  StartMusic(snapshot, world.paths);
  Hyperlink::CreateAddressLink(Label(u"lblEMail"), launching, u"mailto:");
  Hyperlink::CreateAddressLink(Label(u"lblWebSite"), launching, u"");
  ShowBanner();
  Fill(*Control<QWidget>(u"LineGray"), Gray);
  Fill(*Control<QWidget>(u"linWhite"), White);
  applyTexts(snapshot, world.language, world.edition.text);
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

void frmAbout::applyTexts(IniOps::Snapshot& files, const LOCAL::Language& language,
                          const Text& edition) {
  setWindowTitle(ToQt(Texts::Join(u"Über ", ProgramInfo::Title, u" ", edition)));
  Label(u"lblTitle").setText(ToQt(ProgramInfo::Title));
  Label(u"lblVersion")
      .setText(ToQt(Texts::Join(u"Version: ", ProgramInfo::Version, u" ", edition)));
  Label(u"lblCopyright").setText(ToQt(ProgramInfo::Copyright));
  Label(u"lblDescription").setText(ToQt(ProgramInfo::Description));
  if (!language.IsGerman())
    ShowTranslation(files, language);
}

void frmAbout::ShowTranslation(IniOps::Snapshot& files, const LOCAL::Language& language) {
  const auto text = [&](TextView key) {
    return files.IniRead(language.LanguageFile(), u"frmAbout", key, u"");
  };
  setWindowTitle(ToQt(Texts::Join(text(u"caption"), u" ", ProgramInfo::Title)));
  for (const Translated& translated : TranslatedLabels)
    Label(translated.label).setText(ToQt(text(translated.key)));
}
