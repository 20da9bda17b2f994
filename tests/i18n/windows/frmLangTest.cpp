#include "i18n/windows/frmLang.h"

#include "platform/ProgramInfo.h"
#include "support/TestWorld.h"
#include "support/Windows.h"

#include <QLabel>

namespace {

constexpr TextRow Menus[] = {{u"menus", u"mnuFile", u"File", u"&Datei"},
                             {u"menus", u"miQuit", u"&Quit", u"&Beenden"}};
constexpr TextView English =
    u"version=2\r\nauthor=A. Writer\r\nwebsite=http://a.example\r\nemail=-x\r\n"
    u"[menus]\r\nmnuFile=&File\r\n[frmLang]\r\ncaption=Languages\r\ncurrentlang=Now\r\n";

class Languages : public testing::Test, protected TestWorld {
 protected:
  // Writes a language that declares this name into the folder of another.
  void WriteLanguage(const std::string& folderName, TextView declared) const {
    Write("LANG/" + folderName + "/" + folderName + ".lng",
          Texts::Join(u"[general]\r\nlanguage=", declared, u"\r\n"));
  }

  frmLang& Open() {
    dialog.emplace(nullptr, world, launching, Menus);
    QObject::connect(&*dialog, &frmLang::LanguageChanged, [this](const InterfaceTexts& texts) {
      menus = texts.menus;
      settingsAtChange = folder.Read("orvalis.ini");
    });
    dialog->show();
    return *dialog;
  }

  GridListbox& List() { return Part<GridListbox>(*dialog, "glbLang"); }

  void Click(int row) { Q_EMIT List().RowClick(*List().Rows(row)); }

  // Selects the row with this text and presses the default button.
  void Select(TextView text) {
    List().SetText(text);
    QTest::keyClick(&*dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
  }

  std::optional<frmLang> dialog;
  std::vector<Text> menus;
  std::string settingsAtChange;
};

}  // namespace

TEST_F(Languages, AreListedByNameWhateverStandsInTheirFolder) {
  WriteLanguage("z", u"  English ");
  WriteLanguage("b", u"Français");
  folder.Write("LANG/plain file", "[general]\r\nlanguage=No\r\n");
  WriteLanguage(".hidden", u"Hidden");
  // No valid UTF-8, and one that Windows-1252 can't hold.
  WriteLanguage("\xE9t\xE9", u"Occitan");
  WriteLanguage("\xD0\xAF", u"Russki");
  Start(u"z");
  Open();
  EXPECT_EQ(RowsOf(List()), (std::vector<Text>{u" ?", u" Deutsch", u" English", u" Français",
                                               u" Occitan", u" Russki"}));
  EXPECT_EQ(List().Text(), u" English");
  EXPECT_EQ(List().Rows(2)->Tag, u"*");
  EXPECT_FALSE(List().NoHeader());
  EXPECT_EQ(List().Caption(), u"Available languages");
}

TEST_F(Languages, AreGermanAloneWhereTheirFolderIsNone) {
  folder.Write("LANG", "[general]\r\n");
  Open();
  EXPECT_EQ(RowsOf(List()), std::vector<Text>{u" Deutsch"});
}

TEST_F(Languages, AClickShowsDetailsAndChangesNothing) {
  SpeakEnglish(English);
  Choose(LOCAL::German);
  Open();
  EXPECT_EQ(TitleOf(*dialog), "Sprache auswählen");
  EXPECT_EQ(TextOf(*dialog, "lblVersion"), NativePath::ToBytes(ProgramInfo::Version));
  EXPECT_EQ(TextOf(*dialog, "lblAuthor"), NativePath::ToBytes(ProgramInfo::Author));
  Click(2);
  EXPECT_EQ(TextOf(*dialog, "lblCurrentLang"), "English");
  EXPECT_EQ(TextOf(*dialog, "lblVersion"), "2");
  EXPECT_EQ(TextOf(*dialog, "lblAuthor"), "A. Writer");
  QTest::mouseClick(&Part(*dialog, "lblEMail"), Qt::LeftButton);
  QTest::mouseClick(&Part(*dialog, "lblWebSite"), Qt::LeftButton);
  ExpectCalls({"open mailto:-x", "open http://http://a.example"});
  QTest::keyClick(&*dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_TRUE(world.language.IsGerman());
  EXPECT_TRUE(menus.empty());
  EXPECT_EQ(folder.Read("orvalis.ini"), "");
}

TEST_F(Languages, AChosenOneIsStoredBeforeItIsTold) {
  WriteLanguage("F", u"\" English \"");
  folder.Write("LANG/None/readme.html", "x");
  Open();
  Select(u" English");
  EXPECT_EQ(world.language.CurrentLanguage(), u"English");
  EXPECT_EQ(menus, (std::vector<Text>{u"File", u"&Quit"}));
  EXPECT_EQ(settingsAtChange, "[general]\r\nlanguage=F\r\n");
  EXPECT_EQ(TitleOf(Open()), "Choose language");
  Select(u" ?");
  EXPECT_TRUE(world.language.IsGerman());
  EXPECT_EQ(menus, (std::vector<Text>{u"File", u"&Quit"})) << "German by name, without a text";
  EXPECT_EQ(settingsAtChange, "[general]\r\nlanguage=None\r\n");
  SpeakEnglish(English);
  EXPECT_EQ(TitleOf(Open()), "Languages");
  Select(u" Deutsch");
  EXPECT_EQ(world.language.LanguageFile(), u"*");
  EXPECT_EQ(menus, (std::vector<Text>{u"&Datei", u"&Beenden"}));
  EXPECT_EQ(settingsAtChange, "[general]\r\nlanguage=Deutsch\r\n");
}

TEST_F(Languages, WithoutASelectionSelectLeavesEverything) {
  WriteLanguage("a", u"\" English \"");
  Start(u"a");
  Open();
  ASSERT_EQ(List().ListIndex(), 0);
  Press(*dialog, "btnSelect");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(world.language.CurrentLanguage(), u" English ");
  EXPECT_TRUE(menus.empty());
}

TEST_F(Languages, SettingsThatCantHoldTheChoiceStayAsTheyWere) {
  WriteLanguage("\xD0\xAF", u"Russki");
  folder.Write("orvalis.ini", "[general]\r\nlanguage=x\r\n");
  Open();
  Select(u" Russki");
  EXPECT_EQ(world.language.CurrentLanguage(), u"Russki");
  EXPECT_EQ(settingsAtChange, "[general]\r\nlanguage=x\r\n");
}

TEST_F(Languages, FlagsThatCantBeReadAreNoFlags) {
  WriteLanguage("a", u"La");
  WriteLanguage("b", u"Lb");
  Paint(folder, "LANG/a/a.bmp", Qt::red, {16, 16}, "BMP");
  folder.Write("LANG/b/b.bmp", "BM");
  Start(u"b");
  Open();
  const auto shown = [&] {
    const QImage flag = Part<QLabel>(*dialog, "imgCurrentLang").pixmap().toImage();
    return !flag.isNull() && flag.pixelColor(8, 8) == QColor(Qt::red);
  };
  EXPECT_FALSE(shown());
  Click(2);
  EXPECT_TRUE(shown());
  Click(3);
  EXPECT_FALSE(shown());
}
