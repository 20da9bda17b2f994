#include "auxwin/Launching.h"

#include "auxwin/Addresses.h"
#include "auxwin/Documents.h"
#include "auxwin/WebCommands.h"
#include "support/TestWorld.h"

using Addresses::Kind;

namespace {

class Documented : public testing::Test, protected TestWorld {
 protected:
  // What a click on the command for help opens.
  void ExpectHelp(const std::vector<std::string>& calls) {
    commands.miHelp_Click();
    ExpectCalls(calls);
  }

  void ExpectReadMe(const std::vector<std::string>& calls) {
    commands.miReadMe_Click();
    ExpectCalls(calls);
  }

  WebCommands commands{world, launching};
};

}  // namespace

TEST(Addresses, OnlyTheWebMailAndPathsPass) {
  const struct {
    const char* what;
    Text uri;
    Kind kind;
    std::string address;
  } table[] = {
      {"as it stands", u"http://a.example/b?c=%20d#e", Kind::Web, "http://a.example/b?c=%20d#e"},
      {"letter case", u"HTTPS://A.example", Kind::Web, "HTTPS://A.example"},
      {"blanks around", u"  www.a.example ", Kind::Web, "http://www.a.example"},
      {"blank inside", u"http://a.example/ --new-window", Kind::Web,
       "http://a.example/%20--new-window"},
      {"quotes and shell signs", u"http://a.example/\"`<|>\\", Kind::Web,
       "http://a.example/%22%60%3C%7C%3E%5C"},
      {"line break", u"http://a.example/\r\nx", Kind::Web, "http://a.example/%0D%0Ax"},
      {"umlaut", u"http://a.example/ä", Kind::Web, "http://a.example/%C3%A4"},
      {"scheme behind the first", u"http://javascript:x", Kind::Web, "http://javascript:x"},
      {"mail", u"mailto:kart.en+1@a.example", Kind::Mail, "mailto:kart.en+1@a.example"},
      {"mail with headers", u"mailto:a@b.example?attach=/etc/passwd&bcc=c", Kind::Mail,
       "mailto:a@b.example%3Fattach%3D%2Fetc%2Fpasswd%26bcc%3Dc"},
      {"mail to nobody", u"mailto:", Kind::Refused, ""},
      {"option", u"-x", Kind::Refused, ""},
      {"option in quotes", u"\"--help\"", Kind::Refused, ""},
      {"script in capitals", u" JavaScript:alert(1)", Kind::Refused, ""},
      {"file address", u"file:///etc/passwd", Kind::Refused, ""},
      {"web without host", u"http://", Kind::Refused, ""},
      {"web without slashes", u"http:a", Kind::Refused, ""},
      {"blanks", u"   ", Kind::Refused, ""},
  };

  for (const auto& row : table) {
    const Addresses::Target target = Addresses::Classify(row.uri);
    EXPECT_EQ(target.kind, row.kind) << row.what;
    EXPECT_EQ(target.address, row.address) << row.what;
  }
  EXPECT_EQ(Addresses::Classify(u"\"/a b/c.chm\"").path, u"/a b/c.chm");
  EXPECT_EQ(Addresses::Classify(u"/a/\"b\".chm").path, u"/a/\"b\".chm");
}

TEST(Documents, TheTextBetweenTheFirstTwoPointsChoosesTheViewer) {
  using Documents::Viewer;
  EXPECT_EQ(Documents::ViewerOf(u"cheatlist.html"), Viewer::Page);
  EXPECT_EQ(Documents::ViewerOf(u"Spellbook. CHM "), Viewer::Shell);
  EXPECT_EQ(Documents::ViewerOf(u"tool.exe"), Viewer::Program);
  EXPECT_EQ(Documents::ViewerOf(u"a.html.exe"), Viewer::Page);
  EXPECT_EQ(Documents::ViewerOf(u"html"), Viewer::None);
}

TEST_F(Documented, HelpFallsBackByTheResultOfOpening) {
  folder.Write("orvalis.chm", "x");
  folder.Write("LANG/English/orvalis.chm", "x");
  desktop.viewers.insert("application/vnd.ms-htmlhelp");
  ExpectHelp({"open " + folder.Native("orvalis.chm")});
  Choose(u"English");
  ExpectHelp({"open " + folder.Native("LANG/English/orvalis.chm")});
  desktop.result = Desktop::Refused;
  ExpectHelp({"open " + folder.Native("LANG/English/orvalis.chm"),
              "open " + folder.Native("orvalis.chm")});
  desktop.result = Desktop::Started;
  Choose(u"Français");
  ExpectHelp({"open " + folder.Native("orvalis.chm")});
}

TEST_F(Documented, AHelpFileIsItsPageWhereNothingShowsHelpFiles) {
  folder.Write("orvalis.html", "<p>Hilfe");
  folder.Write("LANG/English/orvalis.chm", "x");
  Choose(u"English");
  ExpectHelp({"open " + folder.Native("orvalis.html")});
  folder.Write("LANG/English/orvalis.html", "<p>Help");
  ExpectHelp({"open " + folder.Native("LANG/English/orvalis.html")});
  desktop.viewers.clear();
  ExpectHelp({"page " + folder.Native("LANG/English/orvalis.html")});
}

TEST_F(Documented, ReadMeIsChosenByWhatExists) {
  folder.Write("README.HTML", "<p>Lies mich");
  ExpectReadMe({"open " + folder.Native("README.HTML")});
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(folder.Native(".")));
  Choose(u"English");
  folder.Write("LANG/English/readme.html", "");
  ExpectReadMe({"open " + folder.Native("README.HTML")});
  std::filesystem::remove(folder.Native("LANG/English/readme.html"));
  std::filesystem::create_directory(folder.Native("LANG/English/readme.html"));
  ExpectReadMe({"open " + folder.Native("README.HTML")});
  std::filesystem::remove(folder.Native("LANG/English/readme.html"));
  folder.Write("LANG/English/readme.html", "<p>Read me");
  ExpectReadMe({"open " + folder.Native("LANG/English/readme.html")});
  std::filesystem::remove(folder.Native("README.HTML"));
  Choose(u"Deutsch");
  ExpectReadMe({});
}

TEST_F(Documented, NothingOutsideItsFoldersIsOpened) {
  folder.Write("prog/orvalis.chm", "x");
  folder.Write("LANG/English/readme.html", "x");
  folder.Write("secret.html", "x");
  ProgramPaths paths = world.paths;
  paths.programFolder = folder.Path(u"prog/");
  Launching below(paths, desktop);
  const auto open = [&](TextView name) { return below.ShellExec(folder.Path(name)); };
  for (const TextView outside :
       {u"secret.html", u"prog/../secret.html", u"LANG\\English\\..\\..\\secret.html"})
    EXPECT_EQ(open(outside), Desktop::Refused);
  for (const TextView outside : {u"LANG/../secret.html", u"prog/..\\secret.html"})
    EXPECT_EQ(below.ShowPage(folder.Path(outside)), Desktop::Refused);
  EXPECT_EQ(below.StartProgram(folder.Path(u"secret.html")), Desktop::Refused);
  EXPECT_EQ(open(u"prog/none\\..\\..\\secret.html"), Desktop::FileMissing);
  EXPECT_EQ(below.ShellExec(u"orvalis.chm"), Desktop::FileMissing);
  EXPECT_TRUE(desktop.calls.empty());
  EXPECT_EQ(open(u"LANG\\english\\readme.html"), Desktop::Started);
  std::filesystem::create_symlink(folder.Native("secret.html"), folder.Native("prog/linked.html"));
  EXPECT_EQ(open(u"prog/linked.html"), Desktop::Started);
}

TEST_F(Documented, AddressesComeFromTheSettingsReadAtEachClick) {
  commands.OpenWebSite(u"miUpdateOrvalis");
  ExpectCalls({"open http://www.orvalis.example/download/"});
  folder.Write(
      "orvalis.ini",
      "[urls]\r\ntranlatorsdk= www.kit.example \r\nduskholdpatch=\"  \"\r\nDownload=-x\r\n");
  commands.OpenWebSite(u"miDownloadTranslatorSDK");
  ExpectCalls({"open http://www.kit.example"});
  commands.OpenWebSite(u"miUpdate");
  ExpectCalls({"open http://www.duskhold.example/patches/"});
  commands.OpenWebSite(u"miUpdateOrvalis");
  ExpectCalls({});
  commands.OpenWebSite(u"miQuit");
  ExpectCalls({});
  commands.OpenWebSite(u"miFanSiteC");
  ExpectCalls({"open http://www.kartenstube.example/"});
}
