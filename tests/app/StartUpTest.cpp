#include "app/StartUp.h"

#include "app/Context.h"
#include "platform/ProgramInfo.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr std::array<const char*, 5> Regions = {"arvenna", "skaldor", "sarrakh", "ostrakh",
                                                "ancestors"};

void WriteRegions(const TemporaryFolder& folder) {
  for (const std::string region : Regions) {
    folder.Write(region + ".data", "x");
    folder.Write(region + ".jpg", "x");
  }
}

}  // namespace

TEST(StartUp, NamesTheEdition) {
  struct {
    std::string special;
    Text edition;
  } const cases[] = {
      {"", u""},
      {"NoExtras= YES \r\n", u"Lite"},
      {"NoLang=yes\r\n", u" "},
      {"NoExtras=yes\r\nNoLang=Yes\r\nLocalizedString= English \r\n", u"Lite English"},
      {"NoExtras=1\r\nNoLang=ja\r\nLocalizedString=English\r\n", u""},
  };

  RecordingDesktop desktop;
  for (const auto& test : cases) {
    const TemporaryFolder folder;
    folder.Write("orvalis.ini", "[special]\r\n" + test.special);
    EXPECT_EQ(StartUp::Caption(Context(folder.Folder(), desktop).edition),
              Texts::Join(u"Orvalis ", ProgramInfo::Version, u" ", test.edition))
        << test.special;
  }
}

TEST(StartUp, NamesTheFirstMissingFileAndOnlyThat) {
  const TemporaryFolder folder;
  RecordingDesktop desktop;
  const Context context(folder.Folder(), desktop);
  WriteRegions(folder);
  EXPECT_FALSE(StartUp::MissingFile(context.paths)) << "descriptions are not required";
  folder.Write("arvenna.jpg", "");
  EXPECT_EQ(StartUp::MissingFile(context.paths), folder.Path(u"arvenna.jpg"));
  std::filesystem::remove(folder.Native("ostrakh.data"));
  EXPECT_EQ(StartUp::MissingFile(context.paths), folder.Path(u"ostrakh.data"));
  folder.Write("OSTRAKH.Data", "x");
  EXPECT_EQ(StartUp::MissingFile(context.paths), folder.Path(u"arvenna.jpg"));
}

TEST(StartUp, TellsOfAMissingFileInTheChosenLanguage) {
  const TemporaryFolder folder;
  folder.Write("orvalis.ini", "[folders]\r\nlang=sprachen\r\n[general]\r\nlanguage= Test \r\n");
  const auto message = [&] {
    RecordingDesktop desktop;
    Context context(folder.Folder(), desktop);
    IniOps::Snapshot files(context.files);
    const Text chosen = StartUp::ChosenLanguage(files, context.paths);
    return StartUp::FileNotFound(files, context.paths, chosen, u"/x/arvenna.data");
  };
  EXPECT_EQ(message().caption, u"Fehler");
  EXPECT_EQ(message().text,
            u"Die folgende Datei fehlt: /x/arvenna.data\r\n"
            u"Das Programm kann nicht fortgesetzt werden.");
  folder.Write("sprachen/Test/Test.lng",
               "[general]\r\nlanguage=Other\r\n[ui]\r\nFileNotFound=%s\\nis gone (%s)\r\n");
  EXPECT_EQ(message().caption, u"");
  EXPECT_EQ(message().text, u"/x/arvenna.data\r\nis gone (/x/arvenna.data)");
}

TEST(StartUp, TakesFoldersFromTheSettings) {
  const TemporaryFolder folder;
  folder.Write("orvalis.ini", "[folders]\r\npics=Bilder\r\nextras=\r\n");
  RecordingDesktop desktop;
  const Context context(folder.Folder(), desktop);
  EXPECT_EQ(context.paths.picturesFolder, folder.Path(u"Bilder/"));
  EXPECT_EQ(context.paths.extrasFolder, folder.Path(u"EXTRAS/"));
  EXPECT_EQ(context.paths.languageRoot, folder.Path(u"LANG/"));
  EXPECT_EQ(context.paths.programFolder, folder.Path(u"")) << "folders end with a separator";
  EXPECT_EQ(context.paths.regions[4].picture, folder.Path(u"ancestors.jpg"));
}
