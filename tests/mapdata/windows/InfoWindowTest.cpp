#include "mapdata/windows/frmInfo.h"

#include "support/DialogCheck.h"
#include "support/TestWorld.h"
#include "support/Windows.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace {

class InfoWindow : public testing::Test, protected TestWorld {
 protected:
  InfoWindow() {
    Write("info.data",
          u"[info]\r\nHändler Mara=Eine Händlerin.\\n\\nSie <b>feilscht</b> & lacht.\r\n"
          u"Ring=Gold\r\n");
    Write("PICS/pic.ini",
          u"[pics]\r\nHändler Mara=KLEIN.BMP\r\nRiese=riesig.bmp\r\nFehlt=none.bmp\r\n"
          u"Ordner=.\r\nOben=..\\oben.bmp\r\n");
    Paint(folder, "PICS/klein.bmp", Qt::darkRed, {20, 10});
    Paint(folder, "PICS/riesig.bmp", Qt::darkRed, {600, 700});
    Paint(folder, "oben.bmp", Qt::darkRed, {7, 7});
  }

  std::string Description(const Text& name) {
    return Part<QPlainTextEdit>(frmInfo(nullptr, world, name), "txtInfo")
        .toPlainText()
        .toStdString();
  }

  // The size of a picture in the window about the name.
  QSize Picture(const Text& name, const char* label = "picPortrait") {
    return Part<QLabel>(frmInfo(nullptr, world, name), label).pixmap().size();
  }
};

}  // namespace

TEST_F(InfoWindow, ShowsNameDescriptionAndLineBreaks) {
  frmInfo window(nullptr, world, u" Händler Mara ");
  EXPECT_EQ(TitleOf(window), "Händler Mara");
  EXPECT_EQ(TextOf(window, "lblName"), " Händler Mara ");
  auto& txtInfo = Part<QPlainTextEdit>(window, "txtInfo");
  EXPECT_EQ(txtInfo.toPlainText(), u"Eine Händlerin.\n\nSie <b>feilscht</b> & lacht."_s);
  EXPECT_TRUE(txtInfo.isReadOnly());
  ShowActive(window);
  EXPECT_TRUE(txtInfo.hasFocus());
  QTest::keyClick(&txtInfo, Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(InfoWindow, PortraitsKeepTheirSizeAndTheirBox) {
  EXPECT_EQ(Picture(u"händler mara"), QSize(20, 10));
  EXPECT_EQ(Picture(u"Oben"), QSize(7, 7));
  for (const TextView name : {u"Fehlt", u"Ordner", u"Niemand"})
    EXPECT_EQ(Picture(Text(name)), Picture(u"x", "imgBackup")) << NativePath::ToBytes(name);
  frmInfo window(nullptr, world, u"Riese");
  window.show();
  const auto& box = Part<QLabel>(window, "picPortrait");
  EXPECT_EQ(box.pixmap().size(), QSize(600, 700));
  EXPECT_FALSE(box.hasScaledContents());
  EXPECT_LT(box.geometry().right(), Part(window, "txtInfo").x());
}

TEST_F(InfoWindow, ReadsTheLanguagesOwnFileUnderTheGermanKey) {
  SpeakEnglish(u"[entities]\r\nHändler=Merchant\r\n[frmInfo]\r\nbuttonclose=&Done\r\n");
  EXPECT_TRUE(Description(u"Merchant Mara").starts_with("Eine Händlerin."));
  EXPECT_EQ(Picture(u"Merchant Mara"), QSize(20, 10));
  Write("LANG/English/info.data", u"[info]\r\nHändler Mara=A merchant.\r\nMara=#Merchant Mara\r\n");
  EXPECT_EQ(Description(u"Merchant Mara"), "A merchant.");
  EXPECT_EQ(Description(u"Mara"), "A merchant.");
  EXPECT_EQ(Description(u"Ring"), "");
  EXPECT_EQ(TextOf(frmInfo(nullptr, world, u"Merchant Mara"), "btnClose"), "&Done");
}

TEST_F(InfoWindow, KeepsWhatEveryDialogPromises) {
  Write("info.data", u"[info]\r\nRiese=" + Text(2000, u'a') + u"\r\n");
  for (const Text& name : {Text(u"Händler Mara"), Text(u"Riese"),
                           Text(u"Der sehr ehrenwerte Hofmeister und Schatzmeister von Arvenna")}) {
    frmInfo window(nullptr, world, name);
    CheckDialog(window);
  }
}
