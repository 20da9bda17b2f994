#include "auxwin/windows/frmPrint.h"

#include "auxwin/windows/WindowFixture.h"
#include "controls/windows/PrintableWidget.h"
#include "controls/windows/WidgetTwips.h"
#include "support/DialogCheck.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int DotsPerInch = 96;
constexpr double TwipsPerDot = 1440.0 / DotsPerInch;

class Print : public WindowFixture {
 protected:
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

  void Press(frmPrint& window, const char* button) {
    window.findChild<QPushButton*>(QString::fromLatin1(button))->click();
  }

  // The first page of the printed file at 96 dots per inch; a null image if there is none.
  [[nodiscard]] QImage Page() const {
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QString::number(DotsPerInch), QStringLiteral("-png"),
                       QStringLiteral("-singlefile"), QString::fromStdString(desktop.fileToWrite),
                       QString::fromStdString(folder.Native("page"))});
    return QImage(QString::fromStdString(folder.Native("page.png")));
  }

  [[nodiscard]] int Pages() const {
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {QString::fromStdString(desktop.fileToWrite)});
    info.waitForFinished();
    const QString text = QString::fromUtf8(info.readAllStandardOutput());
    return text.mid(text.indexOf(QStringLiteral("Pages:")) + 6, 20).section(u'\n', 0, 0).toInt();
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
  desktop.fileToWrite = folder.Native("map.pdf");
  const auto window = Open();
  EXPECT_EQ(window->findChild<QComboBox*>()->currentText(), QStringLiteral("PDF"));
  EXPECT_TRUE(window->findChild<QRadioButton*>(QStringLiteral("rbQuerformat"))->isChecked());
  window->show();
  Press(*window, "btnPrint");
  EXPECT_FALSE(window->isVisible());
  const QImage page = Page();
  ASSERT_FALSE(page.isNull());
  EXPECT_EQ(Pages(), 1);
  EXPECT_GT(page.width(), page.height());
  const QRect map = Inked(page);
  EXPECT_NEAR(map.width(), 9000 / TwipsPerDot, 2);
  EXPECT_NEAR(map.height(), 6000 / TwipsPerDot, 2);
  const int inside = static_cast<int>(Corner / TwipsPerDot / 2);
  for (const QPoint& corner :
       {map.topLeft() + QPoint(inside, inside), map.topRight() + QPoint(-inside, inside),
        map.bottomLeft() + QPoint(inside, -inside), map.bottomRight() + QPoint(-inside, -inside)})
    EXPECT_GT(page.pixelColor(corner).red(), 200);
  EXPECT_GT(page.pixelColor(map.center()).blue(), 200);
}

TEST_F(Print, NamesArePrintedAsTextWhereTheyStandOnScreen) {
  desktop.fileToWrite = folder.Native("map.pdf");
  QWidget map;
  map.resize(600, 400);
  QLabel name(QStringLiteral("Fischmarkt"), &map);
  name.setFont(WidgetTwips::Font(9.75, true));
  name.move(300, 200);
  Twips2Pixel_Module::Twips size;
  frmPrint window(nullptr, world, desktop,
                  {[&size] { return size; },
                   [&map](QPainter& painter) { PrintableWidget::Paint(map, painter, {}); }});
  // What is printed is as large as it is when Print is pressed.
  size = {9000, 6000};
  Press(window, "btnPrint");
  QProcess words;
  words.start(
      QStringLiteral("pdftotext"),
      {QStringLiteral("-bbox"), QString::fromStdString(desktop.fileToWrite), QStringLiteral("-")});
  words.waitForFinished();
  const QString found = QString::fromUtf8(words.readAllStandardOutput());
  ASSERT_TRUE(found.contains(QStringLiteral(">Fischmarkt<"))) << found.toStdString();
  const auto number = [&found](const QString& attribute) {
    return found.section(attribute + QStringLiteral("=\""), -1).section(u'"', 0, 0).toDouble();
  };
  const double pointsPerPixel = 72 / (1440 / WidgetTwips::ScreenOf(map).twipsPerPixelX);
  EXPECT_NEAR(number(QStringLiteral("xMax")) - number(QStringLiteral("xMin")),
              name.sizeHint().width() * pointsPerPixel, 3);
}

TEST_F(Print, AMapLargerThanThePageGetsSmaller) {
  desktop.fileToWrite = folder.Native("map.pdf");
  const auto window = Open({30000, 20000});
  window->findChild<QRadioButton*>(QStringLiteral("rbHochformat"))->setChecked(true);
  Press(*window, "btnPrint");
  const QImage page = Page();
  ASSERT_FALSE(page.isNull());
  EXPECT_EQ(Pages(), 1);
  EXPECT_LT(page.width(), page.height());
  const QRect map = Inked(page);
  EXPECT_GT(map.width(), page.width() * 8 / 10);
  EXPECT_NEAR(static_cast<double>(map.width()) / map.height(), 1.5, 0.02);
  EXPECT_GT(page.pixelColor(map.topLeft() + QPoint(4, 4)).red(), 200);
  EXPECT_GT(page.pixelColor(map.bottomRight() - QPoint(4, 4)).red(), 200);
}

TEST_F(Print, NothingIsPrintedWithoutFileOrPrinter) {
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
  const auto* cboPrinters = window->findChild<QComboBox*>(QStringLiteral("cboPrinters"));
  ASSERT_EQ(cboPrinters->count(), 2);
  EXPECT_EQ(cboPrinters->itemText(0), QStringLiteral("Zweiter Stock"));
  EXPECT_EQ(cboPrinters->currentIndex(), 0);
}

TEST_F(Print, KeepsWhatEveryDialogPromises) {
  CheckDialog(*Open());
  UseEnglish(u"");
  const auto english = Open();
  EXPECT_EQ(english->windowTitle(), QStringLiteral("Print"));
  EXPECT_EQ(english->findChild<QRadioButton*>(QStringLiteral("rbQuerformat"))->text(),
            QStringLiteral("Landscape"));
  CheckDialog(*english);
  UseEnglish(
      u"[frmPrint]\r\ncaption=Imprimer\r\nlabel=Imprimantes\r\noptionlandscape=Pa&ysage\r\n"
      u"buttonprint=&Imprimer la carte\r\nbuttoncancel=&Annuler\r\n");
  CheckTexts(*Open());
}
