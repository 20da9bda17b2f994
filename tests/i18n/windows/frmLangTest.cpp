#include "i18n/windows/frmLang.h"

#include "auxwin/Launching.h"
#include "controls/windows/GridListbox.h"
#include "platform/ProgramInfo.h"
#include "support/DialogCheck.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr TextRow Menus[] = {{u"menus", u"mnuFile", u"File", u"&Datei"},
                             {u"menus", u"miQuit", u"&Quit", u"&Beenden"}};

// A program folder with languages, and a start with one of them.
class Session {
 public:
  RecordingDesktop desktop;

  Session(const TemporaryFolder& folder, TextView name)
      : world_(folder.Folder()),
        launching_(world_.paths, desktop),
        language(Started(world_, Text(name))),
        dialog(nullptr, world_, launching_, Menus) {
    QObject::connect(&dialog, &frmLang::LanguageChanged,
                     [this, &folder](const InterfaceTexts& texts) {
                       menus = texts.menus;
                       settingsAtChange = folder.Read("orvalis.ini");
                     });
    dialog.show();
  }

  template <typename Type>
  [[nodiscard]] Type* Find(const char* name) const {
    return dialog.findChild<Type*>(QLatin1StringView(name));
  }

  [[nodiscard]] std::string LabelText(const char* name) const {
    return Find<QLabel>(name)->text().toStdString();
  }

  [[nodiscard]] GridListbox& List() const { return *Find<GridListbox>("glbLang"); }

  [[nodiscard]] std::vector<Text> Rows() const {
    std::vector<Text> rows;
    for (int row = 1; row <= List().ListCount(); ++row)
      rows.push_back(List().List(row));
    return rows;
  }

  // Selects the row with this text and presses the default button.
  void Choose(TextView text) {
    for (int row = 1; row <= List().ListCount(); ++row)
      if (List().List(row) == text)
        List().Select(row);
    QTest::keyClick(&dialog, Qt::Key_Return);
  }

 private:
  // As the start of the program chooses it.
  static const LOCAL::Language& Started(World& world, const Text& name) {
    IniOps::Snapshot files(world.cache);
    world.language.Start(files, name);
    world.language.CacheTranslationTable(files);
    return world.language;
  }

  World world_;
  Launching launching_;

 public:
  const LOCAL::Language& language;
  frmLang dialog;
  std::vector<Text> menus;
  std::string settingsAtChange;
};

constexpr const char* English =
    "[general]\r\nlanguage=English\r\nversion=2\r\nauthor=A. Writer\r\nwebsite=http://a.example\r\n"
    "email=-x\r\n[menus]\r\nmnuFile=&File\r\n[frmLang]\r\ncaption=Languages\r\ncurrentlang=Now\r\n";

}  // namespace

TEST(frmLang, KeepsWhatEveryDialogPromises) {
  const TemporaryFolder folder;
  folder.Write("LANG/English/English.lng", English);
  for (const TextView name : {u"Deutsch", u"English"}) {
    Session session(folder, name);
    session.dialog.hide();
    CheckDialog(session.dialog);
  }
}

TEST(frmLang, ListsEveryEntryOfTheRootByName) {
  const TemporaryFolder folder;
  folder.Write("LANG/z/z.lng", "[general]\r\nlanguage=  English \r\n");
  folder.Write("LANG/b/b.lng",
               "[general]\r\nlanguage=Fran\xE7"
               "ais\r\n");
  folder.Write("LANG/plain file", "[general]\r\nlanguage=No\r\n");
  folder.Write("LANG/.hidden/.hidden.lng", "[general]\r\nlanguage=Hidden\r\n");
  // No valid UTF-8, and one that Windows-1252 can't hold.
  folder.Write("LANG/\xE9t\xE9/\xE9t\xE9.lng", "[general]\r\nlanguage=Occitan\r\n");
  folder.Write("LANG/\xD0\xAF/\xD0\xAF.lng", "[general]\r\nlanguage=Russki\r\n");
  Session session(folder, u"z");
  EXPECT_EQ(session.Rows(), (std::vector<Text>{u" ?", u" Deutsch", u" English", u" Français",
                                               u" Occitan", u" Russki"}));
  EXPECT_EQ(session.List().Text(), u" English");
  EXPECT_EQ(session.List().Rows(2)->Tag, u"*");
  EXPECT_FALSE(session.List().NoHeader());
  EXPECT_EQ(session.List().Caption(), u"Available languages");
}

TEST(frmLang, ARootThatIsNoFolderListsGermanAlone) {
  const TemporaryFolder folder;
  EXPECT_EQ(Session(folder, u"Deutsch").Rows(), std::vector<Text>{u" Deutsch"});
  folder.Write("LANG", "[general]\r\n");
  EXPECT_EQ(Session(folder, u"Deutsch").Rows(), std::vector<Text>{u" Deutsch"});
  EXPECT_TRUE(LanguageList::EnumFoldersEx(folder.Path(u"LANG/"), false).empty());
}

TEST(frmLang, EnumFoldersExNamesTheFolderItselfAndItsParent) {
  const TemporaryFolder folder;
  folder.Write("LANG/B/x", "");
  folder.Write("LANG/a", "");
  EXPECT_EQ(LanguageList::EnumFoldersEx(folder.Path(u"LANG/"), false),
            (std::vector<Text>{u".", u"..", u"B", u"a", u""}));
  EXPECT_EQ(LanguageList::EnumFoldersEx(folder.Path(u"LANG/"), true)[2], folder.Path(u"LANG/B"));
}

TEST(frmLang, AClickShowsDetailsAndChangesNothing) {
  const TemporaryFolder folder;
  folder.Write("LANG/English/English.lng", English);
  Session session(folder, u"Deutsch");
  EXPECT_EQ(session.LabelText("lblVersion"), QtText::ToQt(ProgramInfo::Version).toStdString());
  EXPECT_EQ(session.LabelText("lblAuthor"), QtText::ToQt(ProgramInfo::Author).toStdString());
  Q_EMIT session.List().RowClick(*session.List().Rows(2));
  EXPECT_EQ(session.LabelText("lblCurrentLang"), "English");
  EXPECT_EQ(session.LabelText("lblVersion"), "2");
  EXPECT_EQ(session.LabelText("lblAuthor"), "A. Writer");
  QTest::mouseClick(session.Find<QLabel>("lblEMail"), Qt::LeftButton);
  QTest::mouseClick(session.Find<QLabel>("lblWebSite"), Qt::LeftButton);
  EXPECT_EQ(session.desktop.calls,
            (std::vector<std::string>{"open mailto:-x", "open http://http://a.example"}));
  QTest::keyClick(&session.dialog, Qt::Key_Escape);
  EXPECT_FALSE(session.dialog.isVisible());
  EXPECT_EQ(session.language.CurrentLanguage(), u"Deutsch");
  EXPECT_TRUE(session.menus.empty());
  EXPECT_EQ(folder.Read("orvalis.ini"), "");
}

TEST(frmLang, FourFoldersThroughStartUpAndSelect) {
  const struct {
    const char* languageFile;
    TextView started;
    TextView selectedAtStart;
    const char* caption;
    TextView chosen;
    TextView fileMenu;
  } cases[] = {
      {English, u"English", u" English", "Languages", u"English", u"&File"},
      {nullptr, u"Deutsch", u" Deutsch", "Sprache auswählen", u"Deutsch", u"File"},
      {"[general]\nlanguage=Deutsch\n[menus]\nmnuFile=X\n", u"Deutsch", u" Deutsch",
       "Sprache auswählen", u"Deutsch", u"&Datei"},
      {"[general]\nlanguage=\" English \"\n", u" English ", u"", "Choose language", u"English",
       u"File"},
  };

  for (const auto& test : cases) {
    const TemporaryFolder folder;
    folder.Write("LANG/F/readme.html", "x");
    if (test.languageFile)
      folder.Write("LANG/F/F.lng", test.languageFile);
    Session session(folder, u"F");
    const Text path = folder.Path(u"LANG/F/F.lng");
    const auto& language = session.language;
    EXPECT_EQ(language.CurrentLanguage(), test.started);
    EXPECT_EQ(language.LanguageFolder(), u"F");
    EXPECT_EQ(language.LanguageFile(), path);
    EXPECT_EQ(session.List().Text(), test.selectedAtStart);
    EXPECT_EQ(session.dialog.windowTitle().toStdString(), test.caption);

    for (int row = 1; row <= session.List().ListCount(); ++row)
      if (session.List().Rows(row)->Tag == path)
        session.List().Select(row);
    QTest::mouseClick(session.Find<QPushButton>("btnSelect"), Qt::LeftButton);
    EXPECT_FALSE(session.dialog.isVisible());
    EXPECT_EQ(language.CurrentLanguage(), test.chosen);
    EXPECT_EQ(language.LanguageFolder(), u"F");
    EXPECT_EQ(language.LanguageFile(), path);
    ASSERT_FALSE(session.menus.empty());
    EXPECT_EQ(session.menus[0], test.fileMenu);
    EXPECT_EQ(session.settingsAtChange, "[general]\r\nlanguage=F\r\n");
  }
}

TEST(frmLang, GermanBringsEveryGermanTextBack) {
  const TemporaryFolder folder;
  folder.Write("LANG/English/English.lng", English);
  folder.Write("orvalis.ini", "[general]\r\nlanguage=English\r\n");
  Session session(folder, u"English");
  session.Choose(u" Deutsch");
  EXPECT_EQ(session.language.CurrentLanguage(), u"Deutsch");
  EXPECT_EQ(session.language.LanguageFile(), u"*");
  EXPECT_EQ(session.menus, (std::vector<Text>{u"&Datei", u"&Beenden"}));
  EXPECT_EQ(session.settingsAtChange, "[general]\r\nlanguage=Deutsch\r\n");
}

TEST(frmLang, WithoutASelectionSelectLeavesEverything) {
  const TemporaryFolder folder;
  folder.Write("LANG/a/a.lng", "[general]\r\nlanguage=\" English \"\r\n");
  Session session(folder, u"a");
  ASSERT_EQ(session.List().ListIndex(), 0);
  QTest::mouseClick(session.Find<QPushButton>("btnSelect"), Qt::LeftButton);
  EXPECT_TRUE(session.dialog.isVisible());
  EXPECT_EQ(session.language.CurrentLanguage(), u" English ");
  EXPECT_TRUE(session.menus.empty());
}

TEST(frmLang, SettingsThatCantHoldTheChoiceStayAsTheyWere) {
  const TemporaryFolder folder;
  folder.Write("LANG/\xD0\xAF/\xD0\xAF.lng", "[general]\r\nlanguage=Russki\r\n");
  folder.Write("orvalis.ini", "[general]\r\nlanguage=x\r\n");
  Session session(folder, u"Deutsch");
  session.Choose(u" Russki");
  EXPECT_EQ(session.language.CurrentLanguage(), u"Russki");
  EXPECT_EQ(session.settingsAtChange, "[general]\r\nlanguage=x\r\n");
}

TEST(frmLang, FlagsThatCantBeReadAreNoFlags) {
  const TemporaryFolder folder;
  QImage red(16, 16, QImage::Format_RGB32);
  red.fill(Qt::red);
  for (const char* name : {"a", "b"})
    folder.Write(std::string("LANG/") + name + '/' + name + ".lng",
                 std::string("[general]\nlanguage=L") + name);
  ASSERT_TRUE(red.save(QString::fromStdString(folder.Native("LANG/a/a.bmp"))));
  // A picture that claims 60000 x 60000 pixels.
  folder.Write("LANG/b/b.bmp",
               std::string("BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x60\xEA\0\0\x60"
                           "\xEA\0\0\1\0\x18\0",
                           30));
  Session session(folder, u"b");
  const auto shown = [&] {
    const QImage flag = session.Find<QLabel>("imgCurrentLang")->pixmap().toImage();
    return !flag.isNull() && flag.pixelColor(8, 8) == QColor(Qt::red);
  };
  EXPECT_FALSE(shown());
  Q_EMIT session.List().RowClick(*session.List().Rows(2));
  EXPECT_TRUE(shown());
  Q_EMIT session.List().RowClick(*session.List().Rows(3));
  EXPECT_FALSE(shown());
}
