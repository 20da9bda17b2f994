#include "auxwin/windows/frmPrint.h"

#include "controls/windows/PrintableWidget.h"
#include "controls/windows/WidgetTwips.h"
#include "support/TestWorld.h"
#include "support/Windows.h"

#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QProcess>
#include <QRadioButton>
#include <QRegularExpression>

namespace {

constexpr int DotsPerInch = 96;
constexpr double TwipsPerDot = 1440.0 / DotsPerInch;

class Print : public testing::Test, protected TestWorld {
 protected:
  Print() { desktop.fileToWrite = folder.Native("map.pdf"); }

  std::unique_ptr<frmPrint> Open(const Twips2Pixel_Module::Twips& size = {9000, 6000}) {
    return std::make_unique<frmPrint>(nullptr, world, desktop,
                                      Printout{[size] { return size; },
                                               [this, size](QPainter& painter) {
                                                 ++painted;
                                                 PaintMap(painter, size);
                                               },
                                               [] { return Text(u" Arvenna: Lehrer "); }});
  }

  // Blue all over, a red square in each corner.
  static void PaintMap(QPainter& painter, const Twips2Pixel_Module::Twips& twips) {
    const auto screen = WidgetTwips::ScreenOf(QWidget());
    const int width = WidgetTwips::ToPixelsX(screen, twips.x);
    const int height = WidgetTwips::ToPixelsY(screen, twips.y);
    const int side = WidgetTwips::ToPixelsX(screen, Corner);
    painter.fillRect(-100, -100, width + 200, height + 200, Qt::blue);
    for (const int x : {0, width - side}) {
      for (const int y : {0, height - side})
        painter.fillRect(x, y, side, side, Qt::red);
    }
  }

  // What a program of the PDF tools writes.
  static QString Output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
  }

  [[nodiscard]] QString File() const { return QString::fromStdString(desktop.fileToWrite); }

  // The printed page at 96 dots per inch.
  [[nodiscard]] QImage OnlyPage() const {
    EXPECT_TRUE(
        QRegularExpression(u"Pages: +1\n"_s).match(Output(u"pdfinfo"_s, {File()})).hasMatch());
    const QString page = QString::fromStdString(folder.Native("page"));
    Output(u"pdftoppm"_s,
           {u"-r"_s, QString::number(DotsPerInch), u"-png"_s, u"-singlefile"_s, File(), page});
    return QImage(page + u".png"_s);
  }

  static constexpr int Corner = 600;
  int painted = 0;
};

// The rectangle of all pixels that are blue or red.
QRect Inked(const QImage& page) {
  QRect inked;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      if (page.pixelColor(x, y).green() < 128)
        inked |= QRect(x, y, 1, 1);
    }
  }
  return inked;
}

}  // namespace

TEST_F(Print, PutsTheWholeMapInItsSizeOnOneLandscapePage) {
  const auto window = Open();
  EXPECT_EQ(Part<QComboBox>(*window).currentText(), u"PDF"_s);
  EXPECT_TRUE(Part<QRadioButton>(*window, "rbQuerformat").isChecked());
  window->show();
  Press(*window, "btnPrint");
  EXPECT_FALSE(window->isVisible());
  const QImage page = OnlyPage();
  ASSERT_FALSE(page.isNull());
  EXPECT_GT(page.width(), page.height());
  const QRect map = Inked(page);
  EXPECT_NEAR(map.width(), 9000 / TwipsPerDot, 2);
  EXPECT_NEAR(map.height(), 6000 / TwipsPerDot, 2);
  const int inside = static_cast<int>(Corner / TwipsPerDot / 2);
  EXPECT_GT(page.pixelColor(map.topLeft() + QPoint(inside, inside)).red(), 200);
  EXPECT_GT(page.pixelColor(map.bottomRight() - QPoint(inside, inside)).red(), 200);
  EXPECT_GT(page.pixelColor(map.center()).blue(), 200);
}

TEST_F(Print, NamesArePrintedAsTextWhereTheyStandOnScreen) {
  QWidget map;
  map.resize(600, 400);
  QLabel name(u"Fischmarkt"_s, &map);
  name.setFont(WidgetTwips::Font(9.75, true));
  name.move(300, 200);
  Twips2Pixel_Module::Twips size;
  frmPrint window(nullptr, world, desktop,
                  {[&size] { return size; },
                   [&map](QPainter& painter) { PrintableWidget::Paint(map, painter, {}); }});
  // What is printed is as large as it is when Print is pressed.
  size = {9000, 6000};
  Press(window, "btnPrint");
  const QString found = Output(u"pdftotext"_s, {u"-bbox"_s, File(), u"-"_s});
  ASSERT_TRUE(found.contains(u">Fischmarkt<"_s)) << found.toStdString();
  const auto number = [&found](const QString& attribute) {
    return found.section(attribute + u"=\""_s, -1).section(u'"', 0, 0).toDouble();
  };
  const double pointsPerPixel = 72 / (1440 / WidgetTwips::ScreenOf(map).twipsPerPixelX);
  EXPECT_NEAR(number(u"xMax"_s) - number(u"xMin"_s), name.sizeHint().width() * pointsPerPixel, 3);
}

TEST_F(Print, AMapLargerThanThePageGetsSmaller) {
  const auto window = Open({30000, 20000});
  Part<QRadioButton>(*window, "rbHochformat").setChecked(true);
  Press(*window, "btnPrint");
  const QImage page = OnlyPage();
  ASSERT_FALSE(page.isNull());
  EXPECT_LT(page.width(), page.height());
  const QRect map = Inked(page);
  EXPECT_GT(map.width(), page.width() * 8 / 10);
  EXPECT_NEAR(static_cast<double>(map.width()) / map.height(), 1.5, 0.02);
  EXPECT_GT(page.pixelColor(map.topLeft() + QPoint(4, 4)).red(), 200);
  EXPECT_GT(page.pixelColor(map.bottomRight() - QPoint(4, 4)).red(), 200);
}

TEST_F(Print, NothingIsPrintedWithoutFileOrPrinter) {
  desktop.fileToWrite.clear();
  auto window = Open();
  window->show();
  Press(*window, "btnPrint");
  EXPECT_FALSE(window->isVisible());
  ExpectCalls({"ask Arvenna - Lehrer.pdf"});
  desktop.fileToWrite = folder.Native("no/such/folder/map.pdf");
  Press(*Open(), "btnPrint");
  desktop.printers = {u"Gone since"};
  window = Open();
  window->show();
  Press(*window, "btnPrint");
  EXPECT_FALSE(window->isVisible());
  Press(*Open(), "btnCancel");
  EXPECT_EQ(painted, 0);
}

TEST_F(Print, OffersTheInstalledPrintersInTheSystemsOrder) {
  desktop.printers = {u"Zweiter Stock", u"Archiv"};
  const auto window = Open();
  const auto& cboPrinters = Part<QComboBox>(*window, "cboPrinters");
  ASSERT_EQ(cboPrinters.count(), 2);
  EXPECT_EQ(cboPrinters.itemText(0), u"Zweiter Stock"_s);
  EXPECT_EQ(cboPrinters.currentIndex(), 0);
  SpeakEnglish(u"");
  EXPECT_EQ(TextOf(*Open(), "rbQuerformat"), "Landscape");
}
