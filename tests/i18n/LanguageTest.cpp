#include "i18n/InterfaceTexts.h"
#include "i18n/LanguageList.h"
#include "i18n/Registry_Module.h"
#include "support/TestWorld.h"

namespace {

constexpr TextRow MenuRows[] = {{u"menus", u"mnuFile", u"File", u"&Datei"},
                                {u"menus", u"miQuit", u"&Quit", u"&Beenden"}};

class Languages : public testing::Test, protected TestWorld {
 protected:
  // The texts of the main window in the language of the moment.
  InterfaceTexts Translated() {
    IniOps::Snapshot files(world.cache);
    return Translate_UI(files, language, MenuRows);
  }

  LOCAL::Language& language = world.language;
};

}  // namespace

TEST_F(Languages, ThreeStatesDiffer) {
  folder.Write("LANG/Without/readme.html", "x");
  Write("LANG/Claims/Claims.lng", u"[general]\r\nLANGUAGE=Deutsch\r\n");
  Write("LANG/Small/Small.lng", u"[general]\r\nlanguage=deutsch\r\n");
  Write("LANG/Sound/Sound.lng", u"[general]\r\nlanguage=English\r\n");
  Write("LANG/Blanks/Blanks.lng", u"[general]\r\nlanguage=\" English \"\r\n");

  const struct {
    TextView folder, started, chosen;
  } cases[] = {
      {u"Sound", u"English", u"English"},  {u"Without", u"Deutsch", u"Deutsch"},
      {u"Claims", u"Deutsch", u"Deutsch"}, {u"Blanks", u" English ", u"English"},
      {u"Small", u"deutsch", u"deutsch"},
  };

  for (const auto& test : cases) {
    const auto expect = [&](TextView name, TextView folderName, const Text& file) {
      EXPECT_EQ(language.CurrentLanguage(), name);
      EXPECT_EQ(language.LanguageFolder(), folderName);
      EXPECT_EQ(language.LanguageFile(), file);
    };
    const Text path = folder.Path(Texts::Join(u"LANG/", test.folder, u"/", test.folder, u".lng"));
    Start(test.folder);
    expect(test.started, test.folder, path);
    Choose(LOCAL::German);
    expect(u"Deutsch", u"Deutsch", u"*");
    Choose(test.folder);
    expect(test.chosen, test.folder, path);
  }
}

TEST_F(Languages, DescriptionsStandUnderTheDeclaredName) {
  Write("LANG/en/en.lng", u"[general]\r\nlanguage=English\r\n");
  Write("LANG/en/info.data", u"[info]\r\n");
  Start(u"en");
  EXPECT_EQ(language.InfoPath(), folder.Path(u"info.data"));
  Write("LANG/English/info.data", u"[info]\r\n");
  EXPECT_EQ(language.InfoPath(), folder.Path(u"LANG/English/info.data"));
}

TEST_F(Languages, AreOfferedWhereGermanMeetsAnotherSystem) {
  EXPECT_FALSE(language.IsToBeOffered(u" DEU "));
  EXPECT_TRUE(language.IsToBeOffered(u"eng"));
  EXPECT_TRUE(language.IsToBeOffered(u""));
  SpeakEnglish(u"");
  EXPECT_FALSE(language.IsToBeOffered(u"eng"));
}

TEST_F(Languages, AreListedByTheEntriesOfTheirFolder) {
  const Text root = folder.Path(u"LANG/");
  EXPECT_TRUE(LanguageList::EnumFoldersEx(root, false).empty());
  folder.Write("LANG/B/x", "");
  folder.Write("LANG/a", "");
  EXPECT_EQ(LanguageList::EnumFoldersEx(root, false),
            (std::vector<Text>{u".", u"..", u"B", u"a", u""}));
  EXPECT_EQ(LanguageList::EnumFoldersEx(root, true)[2], folder.Path(u"LANG/B"));
}

TEST(Language, TheRegistryHoldsOneValue) {
  using Registry_Module::ReadRegistryValue;
  constexpr TextView key = u"HKEY_CURRENT_USER\\Control Panel\\International\\";
  EXPECT_EQ(ReadRegistryValue(key, u"sLanguage", u"deu"), u"deu");
  EXPECT_EQ(ReadRegistryValue(key, u"sCountry", u"deu"), u"");
}

TEST_F(Languages, AMissingOrEmptyTextIsEnglishNeverGerman) {
  SpeakEnglish(
      u"[Menus]\r\nMNUFILE=&Fichier\r\nmiQuit=\r\n"
      u"[ui]\r\nComboBoxPrompt=   -- Choisir %s --\r\n");
  const InterfaceTexts french = Translated();
  EXPECT_EQ(french.menus, (std::vector<Text>{u"&Fichier", u"&Quit"}));
  EXPECT_EQ(french.prompt, u"   -- Choisir %s --");
  EXPECT_EQ(french.infoToolTip, u"Displays informations about selected entity.");
  EXPECT_EQ(RestoreGerman(MenuRows).menus, (std::vector<Text>{u"&Datei", u"&Beenden"}));
  EXPECT_EQ(french.spokenPrompt, u"Choisir s");
  EXPECT_EQ(Translate_UI_DE().spokenPrompt, u"Bitte Auswählen");
  EXPECT_EQ(RestoreGerman(MenuRows).prompt, u"  ------------ Bitte Auswählen ------------");
  EXPECT_TRUE(Translate_UI_DE().menus.empty());
  SpeakEnglish(u"[ui]\r\nComboBoxPrompt====\r\n");
  EXPECT_EQ(Translated().prompt, u"   ===");
  EXPECT_EQ(Translated().spokenPrompt, u"Please select") << "signs alone can't be spoken";
}

TEST_F(Languages, WithoutANameAreGermanByNameAlone) {
  for (const auto& [lines, file] : {std::pair(u"mnuFile=X\r\nlanguage=Y\r\n", u"File"),
                                    std::pair(u"[menus]\r\nmnuFile=Menu\r\n", u"Menu")}) {
    Write("LANG/x/x.lng", lines);
    Start(u"x");
    EXPECT_EQ(language.CurrentLanguage(), u"Deutsch");
    EXPECT_EQ(Translated().menus[0], file);
  }
}
