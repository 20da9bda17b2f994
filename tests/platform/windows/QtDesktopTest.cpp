#include "platform/windows/QtDesktop.h"

#include "platform/windows/PageWindow.h"
#include "support/Windows.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {

// A program search path of two scripts that write down what they are given, one argument a line.
class FakeTools : public testing::Test {
 protected:
  FakeTools() {
    const std::string log = folder.Native("log");
    Script("bin/xdg-open", "for a in \"$@\"; do echo \"<$a>\"; done >> " + log);
    Script("bin/xdg-mime",
           "echo \"$2 $3\" >> " + log + "; [ \"$3\" = text/html ] && echo b.desktop");
    qputenv("PATH", QByteArray::fromStdString(folder.Native("bin") + ":/usr/bin:/bin"));
    qputenv("HOME", QByteArray::fromStdString(folder.Native("home")));
  }

  ~FakeTools() override {
    qputenv("PATH", path_);
    qputenv("HOME", home_);
  }

  void Script(const std::string& name, const std::string& body) const {
    folder.Write(name, "#!/bin/sh\n" + body + "\n");
    std::filesystem::permissions(folder.Native(name), std::filesystem::perms::owner_all);
  }

  void ExpectWritten(const std::string& name, const std::string& lines) const {
    EXPECT_TRUE(QTest::qWaitFor([&] { return folder.Read(name) == lines; })) << folder.Read(name);
  }

  TemporaryFolder folder;
  QtDesktop desktop;

 private:
  const QByteArray path_ = qgetenv("PATH");
  const QByteArray home_ = qgetenv("HOME");
};

}  // namespace

TEST_F(FakeTools, GetOneArgumentAndNeverAnOption) {
  EXPECT_EQ(desktop.Open("--help"), Desktop::Refused);
  EXPECT_EQ(desktop.Open("http://a.example/$(touch x) 'b' \"c\";d"), Desktop::Started);
  ExpectWritten("log", "<http://a.example/$(touch x) 'b' \"c\";d>\n");
}

TEST_F(FakeTools, GetPathsThatAreNoTextAsTheyStand) {
  const std::string place = folder.Native("W\xE4lder");
  Script("W\xE4lder/tool.exe", "pwd > out");
  EXPECT_EQ(desktop.Open(place + "/a.html"), Desktop::Started);
  ExpectWritten("log", '<' + place + "/a.html>\n");
  EXPECT_EQ(desktop.StartProgram(place + "/tool.exe", place), Desktop::Started);
  ExpectWritten("W\xE4lder/out", place + '\n');
  EXPECT_EQ(desktop.StartProgram(place + "/none.exe", place), Desktop::Refused);
}

TEST_F(FakeTools, AreAskedForViewersOnce) {
  const auto hasViewers = [this] {
    return std::pair(desktop.HasViewer("text/html"),
                     desktop.HasViewer("application/vnd.ms-htmlhelp"));
  };
  EXPECT_EQ(hasViewers(), std::pair(true, false));
  const std::string asked = folder.Read("log");
  EXPECT_EQ(hasViewers(), std::pair(true, false));
  EXPECT_EQ(folder.Read("log"), asked);
  qputenv("PATH", "/nonexistent");
  EXPECT_FALSE(QtDesktop().HasViewer("text/html"));
  EXPECT_EQ(desktop.Open("http://a.example"), Desktop::Refused);
}

TEST_F(FakeTools, PdfFilesGoIntoTheDocumentsFolderOrElseHome) {
  for (const std::string place : {"home/Documents", "home"}) {
    std::filesystem::remove_all(folder.Native("home"));
    folder.Write(place + "/x", "");
    std::string chosen;
    Opened([&] { chosen = desktop.AskPdfToWrite(u"Print", u"Arvenna - Lehrer.pdf"); },
           [&](QWidget& window) {
             const auto& dialog = dynamic_cast<QFileDialog&>(window);
             auto& name = Part<QLineEdit>(dialog);
             EXPECT_EQ(dialog.directory().path().toStdString(), folder.Native(place));
             EXPECT_EQ(name.text(), u"Arvenna - Lehrer.pdf"_s);
             EXPECT_EQ(dialog.nameFilters(), QStringList(u"PDF (*.pdf)"_s));
             name.setText(u"Karte 1.2"_s);
             QTest::keyClick(&name, Qt::Key_Return);
           });
    EXPECT_EQ(chosen, folder.Native(place + "/Karte 1.2.pdf"));
  }
}

TEST(QtDesktop, EveryGermanIsDeu) {
  EXPECT_EQ(QtDesktop().UserLanguage(), u"deu");
}

TEST(QtDesktop, SoundThatCannotBePlayedTroublesNobody) {
  const TemporaryFolder folder;
  folder.Write("broken.wav", "RIFF");
  QtDesktop desktop;
  desktop.StopSound();
  for (const char* name : {"broken.wav", "none.wav"}) {
    EXPECT_FALSE(desktop.LoopSound(folder.Native(name)));
    // The file is read while events are handled.
    QTest::qWait(100);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << name;
  }
  desktop.StopSound();
}

namespace {

class Pages : public testing::Test {
 protected:
  // The page of that name in a window.
  PageWindow& Open(const std::string& name) {
    return window_.emplace(nullptr, folder.Native(name));
  }

  QTextBrowser& Browser() { return Part<QTextBrowser>(*window_); }

  std::string PlainText() { return Browser().toPlainText().toStdString(); }

  TemporaryFolder folder;

 private:
  std::optional<PageWindow> window_;
};

}  // namespace

TEST_F(Pages, OfBothEncodingsAreShownAndTitledByThemselves) {
  folder.Write("utf8.html", "<html><head><title>Hilfe für alle</title></head><p>Größe</p></html>");
  folder.Write("old.html",
               "<p>Gr\xF6\xDF"
               "e</p>");
  EXPECT_EQ(TitleOf(Open("utf8.html")), "Hilfe für alle");
  EXPECT_EQ(PlainText(), "Größe");
  EXPECT_EQ(TitleOf(Open("old.html")), "old.html");
  EXPECT_EQ(PlainText(), "Größe");
  Open("none.html");
  EXPECT_EQ(PlainText(), "");
}

TEST_F(Pages, BeyondTheLimitsArePlainText) {
  std::string page = "<title>Seite</title>";
  for (int i = 0; i < 20'000; ++i)
    page += "<b>x ";
  folder.Write("page.html", page);
  EXPECT_EQ(TitleOf(Open("page.html")), "page.html");
  EXPECT_EQ(PlainText(), page);
}

TEST_F(Pages, ReadOnlyWhatLiesBesideThem) {
  folder.Write("secret.txt", "x");
  folder.Write("docs/page.html", "<p>a");
  folder.Write("docs/pic.txt", "picture");
  Open("docs/page.html");
  const auto read = [this](const QString& name) {
    return Browser().loadResource(QTextDocument::ImageResource, QUrl(name)).toByteArray();
  };
  for (const auto& name : {u"pic.txt"_s, u"PIC.txt"_s})
    EXPECT_EQ(read(name), QByteArray("picture"));
  for (const auto& name :
       {u"../secret.txt"_s, u"/etc/hostname"_s, u"file:///etc/hostname"_s, u"http://a.example/x"_s})
    EXPECT_TRUE(read(name).isEmpty());
}

TEST_F(Pages, LinkToTheirOwnPlacesOnly) {
  const QByteArray lines = QByteArray("<p>line").repeated(200);
  folder.Write("page.html",
               "<p><a href='#end'>x</a>" + lines.toStdString() + "<a name='end'>end</a>");
  PageWindow& window = Open("page.html");
  window.show();
  const std::string before = PlainText();
  Q_EMIT Browser().anchorClicked(QUrl(u"http://a.example/"_s));
  EXPECT_EQ(Browser().verticalScrollBar()->value(), 0);
  Q_EMIT Browser().anchorClicked(QUrl(u"#end"_s));
  EXPECT_GT(Browser().verticalScrollBar()->value(), 0);
  EXPECT_EQ(PlainText(), before);
  QTest::keyClick(&Browser(), Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}
