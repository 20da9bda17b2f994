#include "auxwin/windows/frmAbout.h"

#include "auxwin/windows/WindowFixture.h"
#include "platform/ProgramInfo.h"
#include "platform/windows/QtText.h"
#include "support/DialogCheck.h"

#include <QLabel>
#include <QTest>

namespace {

class About : public WindowFixture {
 protected:
  About() { folder.Write("orvalis.wav", "music"); }

  std::unique_ptr<frmAbout> Open() {
    return std::make_unique<frmAbout>(nullptr, world, desktop, launching);
  }

  static QLabel& Label(const frmAbout& window, const char* name) {
    return *window.findChild<QLabel*>(QString::fromLatin1(name));
  }

  static QString Version() {
    return QStringLiteral("Version: ") + QtText::ToQt(ProgramInfo::Version);
  }

  [[nodiscard]] std::string Loop() const { return "loop " + folder.Native("orvalis.wav"); }
};

constexpr TextView EnglishTexts =
    u"[frmAbout]\r\ncaption=About\r\ndescription=Interactive maps\r\nemail=E-mail address:\r\n"
    u"website=Website:\r\ndisclaimer=Free of charge.\r\nsources=Travellers & books\r\n"
    u"thanksto=Everybody\r\n";

}  // namespace

TEST_F(About, MusicPlaysFromLoadingToClosing) {
  auto window = Open();
  ExpectCalls({Loop()});
  window->show();
  window->reject();
  ExpectCalls({"stop"});
  window.reset();
  ExpectCalls({});
  window = Open();
  window.reset();
  ExpectCalls({Loop(), "stop"});
}

TEST_F(About, OnlyYesPlaysAndOnlyWhatPlayedIsStopped) {
  const struct {
    const char* setting;
    bool plays;
  } table[] = {{"PlayMusic=\"  YES  \"", true}, {"PlayMusic=Yes", true}, {"PlayMusic=", true},
               {"PlayMusic=no", false},         {"PlayMusic=1", false},  {"PlayMusic=ja", false}};

  for (const auto& row : table) {
    folder.Write("orvalis.ini", std::string("[special]\r\n") + row.setting + "\r\n");
    auto window = Open();
    folder.Write("orvalis.ini", row.plays ? "[special]\r\nPlayMusic=no\r\n" : "");
    window->show();
    window->close();
    ExpectCalls(row.plays ? std::vector<std::string>{Loop(), "stop"} : std::vector<std::string>{});
  }
}

TEST_F(About, MusicThatIsMissingOrBrokenRingsTheBellOnce) {
  desktop.isPlayable = false;
  Open().reset();
  ExpectCalls({Loop(), "beep", "stop"});
  std::filesystem::remove(folder.Native("orvalis.wav"));
  Open().reset();
  ExpectCalls({"beep", "stop"});
}

TEST_F(About, NamesProgramVersionAndEdition) {
  const auto whole = Open();
  EXPECT_EQ(whole->windowTitle(), QStringLiteral("Über Orvalis "));
  EXPECT_EQ(Label(*whole, "lblVersion").text(), Version() + u' ');
  EXPECT_EQ(Label(*whole, "lblTitle").text(), QStringLiteral("Orvalis"));
  folder.Write("orvalis.ini", "[special]\r\nNoExtras=yes\r\n");
  World reduced(folder.Folder());
  const frmAbout german(nullptr, reduced, desktop, launching);
  EXPECT_EQ(german.windowTitle(), QStringLiteral("Über Orvalis Lite"));
  SpeakEnglish(folder, reduced.language, EnglishTexts);
  const frmAbout english(nullptr, reduced, desktop, launching);
  EXPECT_EQ(english.windowTitle(), QStringLiteral("About Orvalis"));
  EXPECT_EQ(Label(english, "lblVersion").text(), Version() + QStringLiteral(" Lite"));
  EXPECT_EQ(Label(english, "lblSources").text(), QStringLiteral("Travellers & books"));
}

TEST_F(About, MissingTranslationsAreEmptyTexts) {
  UseEnglish(u"");
  const auto window = Open();
  EXPECT_EQ(window->windowTitle(), QStringLiteral(" Orvalis"));
  EXPECT_EQ(Label(*window, "lblThanksTo").text(), QString());
  EXPECT_FALSE(Label(*window, "lblEMail").text().isEmpty());
}

TEST_F(About, LinksOpenMailAndWebSite) {
  folder.Write("orvalis.ini", "[special]\r\nPlayMusic=no\r\n");
  const auto window = Open();
  window->show();
  QTest::mouseClick(&Label(*window, "lblEMail"), Qt::LeftButton);
  QTest::keyClick(&Label(*window, "lblWebSite"), Qt::Key_Return);
  ExpectCalls({"open mailto:kartografen@orvalis.example", "open http://www.orvalis.example"});
  EXPECT_TRUE(window->isVisible());
}

TEST_F(About, EnterClosesItAtOnce) {
  const auto window = Open();
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(window->isVisible());
  ExpectCalls({Loop(), "stop"});
}

TEST_F(About, KeepsWhatEveryDialogPromises) {
  CheckDialog(*Open());
  UseEnglish(EnglishTexts);
  CheckTexts(*Open());
}
