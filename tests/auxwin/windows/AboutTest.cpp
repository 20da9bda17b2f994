#include "auxwin/windows/frmAbout.h"

#include "platform/ProgramInfo.h"
#include "support/TestWorld.h"
#include "support/Windows.h"

namespace {

class About : public testing::Test, protected TestWorld {
 protected:
  About() { folder.Write("orvalis.wav", "music"); }

  std::unique_ptr<frmAbout> Open() {
    return std::make_unique<frmAbout>(nullptr, world, desktop, launching);
  }

  [[nodiscard]] std::string Loop() const { return "loop " + folder.Native("orvalis.wav"); }
};

}  // namespace

TEST_F(About, MusicPlaysFromLoadingToClosing) {
  auto window = Open();
  ExpectCalls({Loop()});
  ShowActive(*window);
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(window->isVisible());
  ExpectCalls({"stop"});
  window.reset();
  ExpectCalls({});
  Open().reset();
  ExpectCalls({Loop(), "stop"});
}

TEST_F(About, OnlyYesPlaysAndOnlyWhatPlayedIsStopped) {
  const std::pair<const char*, bool> table[] = {
      {"PlayMusic=\"  YES  \"", true}, {"PlayMusic=", true}, {"PlayMusic=1", false}};

  for (const auto& [setting, plays] : table) {
    folder.Write("orvalis.ini", std::string("[special]\r\n") + setting + "\r\n");
    auto window = Open();
    folder.Write("orvalis.ini", plays ? "[special]\r\nPlayMusic=no\r\n" : "");
    window->show();
    window->close();
    ExpectCalls(plays ? std::vector<std::string>{Loop(), "stop"} : std::vector<std::string>{});
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
  folder.Write("orvalis.ini", "[special]\r\nNoExtras=yes\r\n");
  World reduced(folder.Folder());
  const frmAbout german(nullptr, reduced, desktop, launching);
  EXPECT_EQ(TitleOf(german), "Über Orvalis Lite");
  EXPECT_EQ(TextOf(german, "lblVersion"),
            "Version: " + NativePath::ToBytes(ProgramInfo::Version) + " Lite");
  EXPECT_EQ(TextOf(german, "lblTitle"), "Orvalis");
  SpeakEnglish(u"[frmAbout]\r\ncaption=About\r\nsources=Travellers & books\r\n");
  const auto english = Open();
  EXPECT_EQ(TitleOf(*english), "About Orvalis");
  EXPECT_EQ(TextOf(*english, "lblSources"), "Travellers & books");
  EXPECT_EQ(TextOf(*english, "lblThanksTo"), "") << "a missing translation";
  EXPECT_NE(TextOf(*english, "lblEMail"), "");
}

TEST_F(About, LinksOpenMailAndWebSite) {
  folder.Write("orvalis.ini", "[special]\r\nPlayMusic=no\r\n");
  const auto window = Open();
  window->show();
  QTest::mouseClick(&Part(*window, "lblEMail"), Qt::LeftButton);
  QTest::keyClick(&Part(*window, "lblWebSite"), Qt::Key_Return);
  ExpectCalls({"open mailto:kartografen@orvalis.example", "open http://www.orvalis.example"});
  EXPECT_TRUE(window->isVisible());
}
