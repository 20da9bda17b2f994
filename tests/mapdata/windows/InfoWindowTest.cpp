#include "mapdata/windows/frmInfo.h"

#include "platform/Windows1252.h"
#include "support/DialogCheck.h"
#include "support/English.h"
#include "support/TemporaryFolder.h"

#include <QBuffer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using QtText::ToQt;

namespace {

std::string Picture(const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::darkRed);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "bmp");
  return bytes.toStdString();
}

class InfoWindow : public testing::Test {
 protected:
  InfoWindow() {
    Write("info.data",
          u"[info]\r\nHändler Mara=Eine Händlerin.\\n\\nSie <b>feilscht</b> & lacht.\r\n"
          u"Mara=# Händler Mara \r\nRing=#Kreis\r\nKreis=#Ring\r\n");
    folder.Write("PICS/klein.bmp", Picture({20, 10}));
    folder.Write("PICS/riesig.bmp", Picture({600, 700}));
    folder.Write("oben.bmp", Picture({7, 7}));
    Write("PICS/pic.ini",
          u"[pics]\r\nHändler Mara=KLEIN.BMP\r\nRiese=riesig.bmp\r\nFehlt=none.bmp\r\n"
          u"Ordner=.\r\nOben=..\\oben.bmp\r\n");
  }

  void Write(const std::string& name, TextView text) const {
    folder.Write(name, *Windows1252::Encode(text));
  }

  void UseEnglish() {
    SpeakEnglish(folder, world.language,
                 u"[entities]\r\nHändler=Merchant\r\n[frmInfo]\r\nbuttonclose=&Done\r\n");
    IniOps::Snapshot files(world.cache);
    world.language.CacheTranslationTable(files);
  }

  [[nodiscard]] QString Description(const Text& name) {
    const frmInfo window(nullptr, world, name);
    return window.findChild<QPlainTextEdit*>(QStringLiteral("txtInfo"))->toPlainText();
  }

  [[nodiscard]] QSize Portrait(const Text& name) {
    const frmInfo window(nullptr, world, name);
    return window.findChild<QLabel*>(QStringLiteral("picPortrait"))->pixmap().size();
  }

  [[nodiscard]] QSize Fallback() {
    const frmInfo window(nullptr, world, u"x");
    return window.findChild<QLabel*>(QStringLiteral("imgBackup"))->pixmap().size();
  }

  TemporaryFolder folder;
  World world{folder.Folder()};
};

}  // namespace

TEST_F(InfoWindow, ShowsNameDescriptionAndLineBreaks) {
  frmInfo window(nullptr, world, u" Händler Mara ");
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Händler Mara"));
  EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("lblName"))->text(),
            QStringLiteral(" Händler Mara "));
  auto* txtInfo = window.findChild<QPlainTextEdit*>(QStringLiteral("txtInfo"));
  EXPECT_EQ(txtInfo->toPlainText(),
            QStringLiteral("Eine Händlerin.\n\nSie <b>feilscht</b> & lacht."));
  EXPECT_TRUE(txtInfo->isReadOnly());
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(txtInfo->hasFocus());
  QTest::keyClick(txtInfo, Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(InfoWindow, FollowsOneRedirectOnly) {
  EXPECT_TRUE(Description(u"Mara").startsWith(QStringLiteral("Eine Händlerin.")));
  EXPECT_EQ(Description(u"Ring"), QStringLiteral("#Ring"));
  EXPECT_EQ(Description(u"Niemand"), QString());
}

TEST_F(InfoWindow, PortraitsKeepTheirSizeAndTheirBox) {
  EXPECT_EQ(Portrait(u"händler mara"), QSize(20, 10));
  EXPECT_EQ(Portrait(u"Oben"), QSize(7, 7));
  for (const TextView name : {u"Fehlt", u"Ordner", u"Niemand"})
    EXPECT_EQ(Portrait(Text(name)), Fallback()) << ToQt(name).toStdString();
  frmInfo window(nullptr, world, u"Riese");
  window.show();
  const auto* box = window.findChild<QLabel*>(QStringLiteral("picPortrait"));
  EXPECT_EQ(box->pixmap().size(), QSize(600, 700));
  EXPECT_FALSE(box->hasScaledContents());
  EXPECT_LT(box->geometry().right(),
            window.findChild<QPlainTextEdit*>(QStringLiteral("txtInfo"))->x());
}

TEST_F(InfoWindow, ReadsTheLanguagesOwnFileUnderTheGermanKey) {
  UseEnglish();
  EXPECT_TRUE(Description(u"Merchant Mara").startsWith(QStringLiteral("Eine Händlerin.")));
  EXPECT_EQ(Portrait(u"Merchant Mara"), QSize(20, 10));
  Write("LANG/English/info.data", u"[info]\r\nHändler Mara=A merchant.\r\nMara=#Merchant Mara\r\n");
  EXPECT_EQ(Description(u"Merchant Mara"), QStringLiteral("A merchant."));
  EXPECT_EQ(Description(u"Mara"), QStringLiteral("A merchant."));
  EXPECT_EQ(Description(u"Ring"), QString());
  const frmInfo window(nullptr, world, u"Merchant Mara");
  EXPECT_EQ(window.findChild<QPushButton*>(QStringLiteral("btnClose"))->text(),
            QStringLiteral("&Done"));
}

TEST_F(InfoWindow, KeepsWhatEveryDialogPromises) {
  Write("info.data", u"[info]\r\nRiese=" + Text(2000, u'a') + u"\r\n");
  for (const Text& name : {Text(u"Händler Mara"), Text(u"Riese"),
                           Text(u"Der sehr ehrenwerte Hofmeister und Schatzmeister von Arvenna")}) {
    frmInfo window(nullptr, world, name);
    CheckDialog(window);
  }
}
