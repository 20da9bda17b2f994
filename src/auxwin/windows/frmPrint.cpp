#include "auxwin/windows/frmPrint.h"

#include "auxwin/PrintName.h"
#include "i18n/WindowTexts.h"

#include "controls/windows/WidgetTwips.h"
#include "platform/ProgramInfo.h"

#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLinearGradient>
#include <QPageLayout>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <string>
#include <utility>

using QtText::ToQt;
using WindowTexts::Row;

namespace {

constexpr TextView PdfEntry = u"PDF";
// As a part of the banner's width.
constexpr double FadeWidth = 0.1;
// Pixels of the picture.
constexpr QSize BannerSize(150, 158);

constexpr ControlDesign PrintControls[] = {
    {.name = u"imgBanner",
     .kind = ControlKind::Picture,
     .place = {0, 0, 2235, 2325},
     .text = ProgramInfo::Title},
    {.name = u"lblPrinters",
     .place = {1785, 240, 735, 255},
     .caption = &Row(u"frmPrint", u"label")},
    {.name = u"cboPrinters",
     .kind = ControlKind::ComboBox,
     .place = {2520, 210, 2775, 315},
     .namedBy = u"lblPrinters"},
    {.name = u"rbQuerformat",
     .kind = ControlKind::OptionButton,
     .place = {2520, 840, 1335, 375},
     .caption = &Row(u"frmPrint", u"optionlandscape")},
    {.name = u"rbHochformat",
     .kind = ControlKind::OptionButton,
     .place = {3840, 840, 1335, 375},
     .caption = &Row(u"frmPrint", u"optionportrait")},
    {.name = u"btnPrint",
     .kind = ControlKind::Button,
     .place = {2520, 1920, 1335, 375},
     .caption = &Row(u"frmPrint", u"buttonprint")},
    {.name = u"btnCancel",
     .kind = ControlKind::Button,
     .place = {4080, 1920, 1335, 375},
     .caption = &Row(u"frmPrint", u"buttoncancel")},
};

constexpr DialogDesign PrintDesign = {.name = u"frmPrint",
                                      .caption = &Row(u"frmPrint", u"caption"),
                                      .width = 5475,
                                      .height = 2415,
                                      .defaultButton = {},
                                      .cancelButton = u"btnCancel",
                                      .controls = PrintControls};

}  // namespace

frmPrint::frmPrint(QWidget* parent, World& world, Desktop& desktop, Printout printout)
    : Dialog(parent, PrintDesign),
      desktop_(desktop),
      printout_(std::move(printout)),
      imgBanner(Control<QLabel>(u"imgBanner")),
      lblPrinters(Control<QLabel>(u"lblPrinters")),
      cboPrinters(Control<QComboBox>(u"cboPrinters")),
      rbQuerformat(Control<QRadioButton>(u"rbQuerformat")),
      rbHochformat(Control<QRadioButton>(u"rbHochformat")),
      btnPrint(Control<QPushButton>(u"btnPrint")),
      btnCancel(Control<QPushButton>(u"btnCancel")) {
  ShowBanner();
  FillPrinters();
  rbQuerformat->setChecked(true);
  IniOps::Snapshot snapshot(world.cache);
  ApplyTexts(snapshot, world.language);
  caption_ = world.language.Lookup(snapshot, *Design().caption);
  connect(btnPrint, &QPushButton::clicked, this, &frmPrint::btnPrint_Click);
}

// The first label overlaps the banner's right edge: the picture fades out before it.
void frmPrint::ShowBanner() {
  // A picture without an alpha channel would fade to black.
  QImage banner = QIcon(QStringLiteral(":/builtin/banner-print.png"))
                      .pixmap(BannerSize)
                      .toImage()
                      .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  imgBanner->setScaledContents(true);
  if (!banner.isNull()) {
    const QRectF place({}, banner.deviceIndependentSize());
    const double end = static_cast<double>(lblPrinters->x()) / imgBanner->width();
    QLinearGradient fade(place.topLeft(), place.topRight());
    fade.setColorAt(end - FadeWidth, Qt::black);
    fade.setColorAt(end, Qt::transparent);
    QPainter painter(&banner);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(place, fade);
  }
  imgBanner->setPixmap(QPixmap::fromImage(banner));
}

void frmPrint::FillPrinters() {
  for (const Text& printer : desktop_.Printers())
    cboPrinters->addItem(ToQt(printer));
  toFile_ = cboPrinters->count() == 0;
  if (toFile_)
    cboPrinters->addItem(ToQt(PdfEntry));
  cboPrinters->setCurrentIndex(0);
}

void frmPrint::btnPrint_Click() {
  QPrinter printer;
  if (ChoosePrinter(printer))
    PrintOn(printer);
  accept();
}

// False if the printer has gone since the list was filled, or no file was named.
bool frmPrint::ChoosePrinter(QPrinter& printer) {
  if (!toFile_) {
    printer.setPrinterName(cboPrinters->currentText());
    return printer.outputFormat() == QPrinter::NativeFormat &&
           printer.printerName() == cboPrinters->currentText();
  }
  const std::string file = desktop_.AskPdfToWrite(caption_, PrintName::Of(printout_.heading()));
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QFile::decodeName(QByteArray::fromStdString(file)));
  return !file.empty();
}

void frmPrint::PrintOn(QPrinter& printer) const {
  const auto screen = WidgetTwips::ScreenOf(*this);
  // At the screen's resolution a point is as many units as on screen, so that the layout fits.
  // Texts and outlines are printed sharp at any resolution.
  printer.setResolution(
      Twips2Pixel_Module::Round(Twips2Pixel_Module::TwipsPerInch / screen.twipsPerPixelX));
  printer.setPageOrientation(rbQuerformat->isChecked() ? QPageLayout::Landscape
                                                       : QPageLayout::Portrait);
  // Queues that say nothing about colour would get a grey map.
  printer.setColorMode(QPrinter::Color);
  printer.setDocName(ToQt(ProgramInfo::Title));
  QPainter painter;
  if (!painter.begin(&printer))
    return;
  const auto size = printout_.size();
  const QSizeF map(WidgetTwips::ToPixelsX(screen, size.x), WidgetTwips::ToPixelsY(screen, size.y));
  const QSizeF page = printer.pageRect(QPrinter::DevicePixel).size();
  const double scale = std::min({1.0, page.width() / map.width(), page.height() / map.height()});
  painter.translate((page.width() - scale * map.width()) / 2,
                    (page.height() - scale * map.height()) / 2);
  painter.scale(scale, scale);
  painter.setClipRect(QRectF({}, map));
  printout_.paint(painter);
}
