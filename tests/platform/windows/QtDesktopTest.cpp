#include "platform/windows/QtDesktop.h"

#include "platform/windows/PageWindow.h"
#include "support/TemporaryFolder.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

// A program search path of two scripts that write down what they are given, one argument a line.
class FakeTools {
 public:
  FakeTools() {
    const std::string log = folder.Native("log");
    Script("xdg-open", "for a in \"$@\"; do echo \"<$a>\"; done >> " + log);
    Script("xdg-mime", "echo \"$2 $3\" >> " + log + "; [ \"$3\" = text/html ] && echo b.desktop");
    path_ = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.Native("bin") + ":/usr/bin:/bin"));
  }

  ~FakeTools() { qputenv("PATH", path_); }

  [[nodiscard]] bool Logged(const std::string& lines) const {
    return QTest::qWaitFor([&] { return folder.Read("log") == lines; });
  }

  TemporaryFolder folder;

 private:
  void Script(const std::string& name, const std::string& body) const {
    folder.Write("bin/" + name, "#!/bin/sh\n" + body + "\n");
    std::filesystem::permissions(folder.Native("bin/" + name), std::filesystem::perms::owner_all);
  }

  QByteArray path_;
};

}  // namespace

TEST(QtDesktop, HandsOverOneArgumentAndNeverAnOption) {
  const FakeTools tools;
  QtDesktop desktop;
  EXPECT_EQ(desktop.Open("--help"), Desktop::Refused);
  EXPECT_EQ(desktop.Open("http://a.example/$(touch x) 'b' \"c\";d"), Desktop::Started);
  EXPECT_TRUE(tools.Logged("<http://a.example/$(touch x) 'b' \"c\";d>\n"))
      << tools.folder.Read("log");
}

TEST(QtDesktop, PathsThatAreNoTextAreHandedOverAsTheyStand) {
  const FakeTools tools;
  QtDesktop desktop;
  const std::string folder = tools.folder.Native("W\xE4lder");
  std::filesystem::create_directory(folder);
  EXPECT_EQ(desktop.Open(folder + "/a.html"), Desktop::Started);
  EXPECT_TRUE(tools.Logged('<' + folder + "/a.html>\n")) << tools.folder.Read("log");
  tools.folder.Write("W\xE4lder/tool.exe", "#!/bin/sh\npwd > out\n");
  std::filesystem::permissions(folder + "/tool.exe", std::filesystem::perms::owner_all);
  EXPECT_EQ(desktop.StartProgram(folder + "/tool.exe", folder), Desktop::Started);
  EXPECT_TRUE(QTest::qWaitFor([&] { return tools.folder.Read("W\xE4lder/out") == folder + '\n'; }));
  EXPECT_EQ(desktop.StartProgram(folder + "/none.exe", folder), Desktop::Refused);
}

TEST(QtDesktop, AsksTheDesktopForViewers) {
  const FakeTools tools;
  QtDesktop desktop;
  EXPECT_TRUE(desktop.HasViewer("text/html"));
  EXPECT_FALSE(desktop.HasViewer("application/vnd.ms-htmlhelp"));
  const std::string asked = tools.folder.Read("log");
  EXPECT_TRUE(desktop.HasViewer("text/html"));
  EXPECT_FALSE(desktop.HasViewer("application/vnd.ms-htmlhelp"));
  EXPECT_EQ(tools.folder.Read("log"), asked) << "asked once";
  qputenv("PATH", "/nonexistent");
  EXPECT_FALSE(QtDesktop().HasViewer("text/html"));
  EXPECT_EQ(desktop.Open("http://a.example"), Desktop::Refused);
}

namespace {

// What the file dialog offers before it is answered with this name, and what comes of it.
struct Asked {
  QString folder;
  QString name;
  QStringList filters;
  std::string result;
};

Asked AskForPdf(const QString& answer) {
  Asked asked;
  QTimer::singleShot(100, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    auto* name = dialog->findChild<QLineEdit*>();
    asked.folder = dialog->directory().path();
    asked.name = name->text();
    asked.filters = dialog->nameFilters();
    name->setText(answer);
    QTest::keyClick(name, Qt::Key_Return);
  });
  asked.result = QtDesktop().AskPdfToWrite(u"Print", u"Arvenna - Lehrer.pdf");
  return asked;
}

}  // namespace

TEST(QtDesktop, AsksForPdfFilesInTheDocumentsFolderOrElseAtHome) {
  const TemporaryFolder folder;
  folder.Write("Documents/x", "");
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", QByteArray::fromStdString(folder.Native("")).chopped(1));
  const Asked documents = AskForPdf(QStringLiteral("Karte"));
  EXPECT_EQ(documents.folder.toStdString(), folder.Native("Documents"));
  EXPECT_EQ(documents.name, QStringLiteral("Arvenna - Lehrer.pdf"));
  EXPECT_EQ(documents.filters, QStringList(QStringLiteral("PDF (*.pdf)")));
  EXPECT_EQ(documents.result, folder.Native("Documents/Karte.pdf"));
  std::filesystem::remove_all(folder.Native("Documents"));
  const Asked atHome = AskForPdf(QStringLiteral("Karte 1.2"));
  EXPECT_EQ(atHome.folder.toStdString() + '/', folder.Native(""));
  EXPECT_EQ(atHome.result, folder.Native("Karte 1.2.pdf"));
  qputenv("HOME", home);
}

TEST(QtDesktop, EveryGermanIsDeu) {
  QtDesktop desktop;
  EXPECT_EQ(desktop.UserLanguage(), u"deu");
}

TEST(QtDesktop, SoundThatCannotBePlayedTroublesNobody) {
  const TemporaryFolder folder;
  folder.Write("broken.wav", "RIFF");
  QtDesktop desktop;
  desktop.StopSound();
  for (const char* name : {"broken.wav", "none.wav"}) {
    desktop.LoopSound(folder.Native(name));
    // The file is read while events are handled.
    QTest::qWait(100);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << name;
  }
  desktop.StopSound();
  desktop.StopSound();
}

TEST(PageWindow, ShowsPagesOfBothEncodingsTitledByThemselves) {
  const TemporaryFolder folder;
  folder.Write("utf8.html", "<html><head><title>Hilfe für alle</title></head><p>Größe</p></html>");
  folder.Write("old.html",
               "<p>Gr\xF6\xDF"
               "e</p>");
  const PageWindow page(nullptr, folder.Native("utf8.html"));
  EXPECT_EQ(page.windowTitle(), QStringLiteral("Hilfe für alle"));
  EXPECT_EQ(page.findChild<QTextBrowser*>()->toPlainText(), QStringLiteral("Größe"));
  const PageWindow old(nullptr, folder.Native("old.html"));
  EXPECT_EQ(old.windowTitle(), QStringLiteral("old.html"));
  EXPECT_EQ(old.findChild<QTextBrowser*>()->toPlainText(), QStringLiteral("Größe"));
  const PageWindow none(nullptr, folder.Native("none.html"));
  EXPECT_EQ(none.findChild<QTextBrowser*>()->toPlainText(), QString());
}

TEST(PageWindow, APageBeyondTheLimitsIsPlainText) {
  const TemporaryFolder folder;
  std::string page = "<title>Seite</title>";
  for (int i = 0; i < 20'000; ++i)
    page += "<b>x ";
  folder.Write("page.html", page);
  const PageWindow window(nullptr, folder.Native("page.html"));
  EXPECT_EQ(window.findChild<QTextBrowser*>()->toPlainText().toStdString(), page);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("page.html"));
}

TEST(PageWindow, ReadsOnlyWhatLiesBesideThePage) {
  const TemporaryFolder folder;
  folder.Write("secret.txt", "x");
  folder.Write("docs/page.html", "<p>a");
  folder.Write("docs/pic.txt", "picture");
  const PageWindow page(nullptr, folder.Native("docs/page.html"));
  auto* browser = page.findChild<QTextBrowser*>();
  const auto read = [browser](const QString& name) {
    return browser->loadResource(QTextDocument::ImageResource, QUrl(name)).toByteArray();
  };
  EXPECT_EQ(read(QStringLiteral("pic.txt")), QByteArray("picture"));
  EXPECT_EQ(read(QStringLiteral("PIC.txt")), QByteArray("picture"));
  EXPECT_TRUE(read(QStringLiteral("../secret.txt")).isEmpty());
  EXPECT_TRUE(read(QStringLiteral("/etc/hostname")).isEmpty());
  EXPECT_TRUE(read(QStringLiteral("file:///etc/hostname")).isEmpty());
  EXPECT_TRUE(read(QStringLiteral("http://a.example/x")).isEmpty());
}

TEST(PageWindow, LinksLeadToPlacesOfThePageOnly) {
  const TemporaryFolder folder;
  QByteArray page("<p><a href='#end'>x</a>");
  page += QByteArray("<p>line").repeated(200) + "<p><a name='end'>end</a>";
  folder.Write("page.html", page.toStdString());
  PageWindow window(nullptr, folder.Native("page.html"));
  window.show();
  auto* browser = window.findChild<QTextBrowser*>();
  const QString before = browser->toPlainText();
  Q_EMIT browser->anchorClicked(QUrl(QStringLiteral("http://a.example/")));
  EXPECT_EQ(browser->verticalScrollBar()->value(), 0);
  Q_EMIT browser->anchorClicked(QUrl(QStringLiteral("#end")));
  EXPECT_GT(browser->verticalScrollBar()->value(), 0);
  EXPECT_EQ(browser->toPlainText(), before);
  QTest::keyClick(browser, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}
