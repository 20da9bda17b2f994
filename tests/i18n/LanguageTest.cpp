#include "i18n/InterfaceTexts.h"
#include "i18n/Registry_Module.h"
#include "support/StartedLanguage.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

using IniOps::Snapshot;

namespace {

constexpr TextRow MenuRows[] = {{u"menus", u"mnuFile", u"File", u"&Datei"},
                                {u"menus", u"miQuit", u"&Quit", u"&Beenden"}};

// Start-up with a folder name in the settings; the files are as the start finds them.
class Started {
 public:
  Started(const TemporaryFolder& folder, TextView name)
      : language(files, folder.Path(u"LANG/"), Text(name)) {}

 private:
  IniOps::Cache cache_;

 public:
  Snapshot files{cache_};
  StartedLanguage language;
};

}  // namespace

TEST(Language, ThreeStatesDiffer) {
  const TemporaryFolder folder;
  folder.Write("LANG/Sound/Sound.lng", "[general]\r\nlanguage=English\r\n");
  folder.Write("LANG/Without/readme.html", "x");
  folder.Write("LANG/Claims/Claims.lng", "[general]\r\nLANGUAGE=Deutsch\r\n");
  folder.Write("LANG/Blanks/Blanks.lng", "[general]\r\nlanguage=\" English \"\r\n");
  folder.Write("LANG/Small/Small.lng", "[general]\r\nlanguage=deutsch\r\n");

  const struct {
    TextView folder;
    TextView started;
    TextView chosen;
  } cases[] = {
      {u"Sound", u"English", u"English"},  {u"Without", u"Deutsch", u"Deutsch"},
      {u"Claims", u"Deutsch", u"Deutsch"}, {u"Blanks", u" English ", u"English"},
      {u"Small", u"deutsch", u"deutsch"},
  };

  for (const auto& test : cases) {
    const Text path = folder.Path(Texts::Join(u"LANG/", test.folder, u"/", test.folder, u".lng"));
    Started start(folder, test.folder);
    LOCAL::Language& language = start.language;
    EXPECT_EQ(language.CurrentLanguage(), test.started);
    EXPECT_EQ(language.LanguageFolder(), test.folder);
    EXPECT_EQ(language.LanguageFile(), path);

    language.Choose(start.files, Text(LOCAL::BuiltIn));
    EXPECT_EQ(language.CurrentLanguage(), u"Deutsch");
    EXPECT_EQ(language.LanguageFolder(), u"Deutsch");
    EXPECT_EQ(language.LanguageFile(), u"*");
    language.Choose(start.files, path);
    language.CacheTranslationTable(start.files);
    EXPECT_EQ(language.CurrentLanguage(), test.chosen);
    EXPECT_EQ(language.LanguageFolder(), test.folder);
    EXPECT_EQ(language.LanguageFile(), path);
  }
}

TEST(Language, DescriptionsStandUnderTheDeclaredName) {
  const TemporaryFolder folder;
  folder.Write("LANG/en/en.lng", "[general]\r\nlanguage=English\r\n");
  folder.Write("LANG/en/info.data", "[info]\r\n");
  EXPECT_EQ(Started(folder, u"en").language.InfoPath(), folder.Path(u"LANG/info.data"));
  folder.Write("LANG/English/info.data", "[info]\r\n");
  EXPECT_EQ(Started(folder, u"en").language.InfoPath(), folder.Path(u"LANG/English/info.data"));
}

TEST(Language, IsOfferedWhereGermanMeetsAnotherSystem) {
  const TemporaryFolder folder;
  folder.Write("LANG/en/en.lng", "[general]\r\nlanguage=English\r\n");
  const auto offered = [&](TextView language, TextView system) {
    return Started(folder, language).language.IsToBeOffered(system);
  };
  EXPECT_FALSE(offered(u"Deutsch", u" DEU "));
  EXPECT_TRUE(offered(u"Deutsch", u"eng"));
  EXPECT_TRUE(offered(u"Deutsch", u""));
  EXPECT_FALSE(offered(u"en", u"eng"));
}

TEST(Language, TheRegistryHoldsOneValue) {
  using Registry_Module::ReadRegistryValue;
  EXPECT_EQ(
      ReadRegistryValue(u"HKEY_CURRENT_USER\\Control Panel\\International\\", u"sLanguage", u"deu"),
      u"deu");
  EXPECT_EQ(
      ReadRegistryValue(u"HKEY_CURRENT_USER\\Control Panel\\International\\", u"sCountry", u"deu"),
      u"");
}

TEST(InterfaceTexts, AMissingOrEmptyEntryIsEnglishNeverGerman) {
  const TemporaryFolder folder;
  folder.Write("LANG/fr/fr.lng",
               "[general]\r\nlanguage=Fran\xE7"
               "ais\r\n[Menus]\r\nMNUFILE=&Fichier\r\nmiQuit=\r\n"
               "[ui]\r\nComboBoxPrompt=   -- Choisir %s --\r\n");
  Started start(folder, u"fr");
  const InterfaceTexts french = Translate_UI(start.files, start.language, MenuRows);
  EXPECT_EQ(french.menus, (std::vector<Text>{u"&Fichier", u"&Quit"}));
  EXPECT_EQ(french.prompt, u"   -- Choisir %s --");
  EXPECT_EQ(french.infoToolTip, u"Displays informations about selected entity.");
  EXPECT_EQ(RestoreGerman(MenuRows).menus, (std::vector<Text>{u"&Datei", u"&Beenden"}));
  EXPECT_EQ(french.spokenPrompt, u"Choisir s");
  EXPECT_EQ(Translate_UI_DE().spokenPrompt, u"Bitte Auswählen");
  EXPECT_EQ(RestoreGerman(MenuRows).prompt, u"  ------------ Bitte Auswählen ------------");
  EXPECT_TRUE(Translate_UI_DE().menus.empty());
}

TEST(InterfaceTexts, BadFilesGiveDefaults) {
  const struct {
    const char* name;
    std::string bytes;
    Text file;
  } cases[] = {
      {"without sections", "mnuFile=X\r\nlanguage=Y\r\n", u"File"},
      {"without a name", "[menus]\r\nmnuFile=Menu\r\n", u"Menu"},
      {"UTF-8", "\xEF\xBB\xBF[menus]\nmnuFile=Men\xC3\xBC\n", u"MenÃ¼"},
      {"10 MB of one line", "[menus]\nx=" + std::string(10'000'000, 'x') + "\nmnuFile=Menu",
       u"Menu"},
      {"a long value", "[menus]\nmnuFile=" + std::string(5000, 'x'), Text(2047, u'x')},
      {"10 MB of keys",
       [] {
         std::string keys = "[menus]\n";
         for (int i = 0; keys.size() < 10'000'000; ++i)
           keys += "key" + std::to_string(i) + "=value\n";
         return keys + "mnuFile=Menu";
       }(),
       u"Menu"},
      {"NUL bytes", std::string("[menus]\n\0\0=\0\nmnuFile=Menu", 25), u"Menu"},
  };

  for (const auto& test : cases) {
    const TemporaryFolder folder;
    folder.Write("LANG/x/x.lng", test.bytes);
    Started start(folder, u"x");
    EXPECT_EQ(start.language.CurrentLanguage(), u"Deutsch") << test.name;
    EXPECT_EQ(Translate_UI(start.files, start.language, MenuRows).menus[0], test.file) << test.name;
  }
}

TEST(InterfaceTexts, APromptOfSignsAloneIsSpokenAsTheBuiltInOne) {
  const TemporaryFolder folder;
  folder.Write("LANG/Signs/Signs.lng",
               "[general]\r\nlanguage=Signs\r\n[ui]\r\nComboBoxPrompt====\r\n");
  Started start(folder, u"Signs");
  const InterfaceTexts texts = Translate_UI(start.files, start.language, MenuRows);
  EXPECT_EQ(texts.prompt, u"   ===");
  EXPECT_EQ(texts.spokenPrompt, u"Please select");
}
