#include "app/ProgramTexts.h"

#include "platform/ProgramInfo.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

void WriteRegions(const TemporaryFolder& folder) {
  for (const RegionRow& region : Regions)
    for (const TextView extension : {u".data", u".jpg"})
      folder.Write(NativePath::ToBytes(Texts::Join(region.stem, extension)), "x");
}

}  // namespace

TEST(ProgramTexts, NamesTheEdition) {
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

  for (const auto& test : cases) {
    const TemporaryFolder folder;
    folder.Write("orvalis.ini", "[special]\r\n" + test.special);
    EXPECT_EQ(ProgramTexts::Caption(World(folder.Folder()).edition),
              Texts::Join(u"Orvalis ", ProgramInfo::Version, u" ", test.edition))
        << test.special;
  }
}

TEST(World, NamesTheFirstMissingFileAndOnlyThat) {
  const TemporaryFolder folder;
  const World world(folder.Folder());
  WriteRegions(folder);
  EXPECT_FALSE(world.MissingFile()) << "descriptions are not required";
  folder.Write("arvenna.jpg", "");
  EXPECT_EQ(world.MissingFile(), folder.Path(u"arvenna.jpg"));
  std::filesystem::remove(folder.Native("ostrakh.data"));
  EXPECT_EQ(world.MissingFile(), folder.Path(u"ostrakh.data"));
  folder.Write("OSTRAKH.Data", "x");
  EXPECT_EQ(world.MissingFile(), folder.Path(u"arvenna.jpg"));
}

TEST(ProgramTexts, TellsOfAMissingFileInTheChosenLanguage) {
  const TemporaryFolder folder;
  folder.Write("orvalis.ini", "[folders]\r\nlang=sprachen\r\n[general]\r\nlanguage= Test \r\n");
  const auto message = [&] {
    World world(folder.Folder());
    const Text chosen = world.ChosenLanguage();
    EXPECT_TRUE(world.language.IsGerman()) << "opening chooses no language";
    return ProgramTexts::FileNotFound(world, chosen, u"/x/arvenna.data");
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

TEST(World, TakesFoldersFromTheSettings) {
  const TemporaryFolder folder;
  folder.Write("orvalis.ini", "[folders]\r\npics=Bilder\r\nextras=\r\n");
  const World world(folder.Folder());
  EXPECT_EQ(world.paths.picturesFolder, folder.Path(u"Bilder/"));
  EXPECT_EQ(world.paths.extrasFolder, folder.Path(u"EXTRAS/"));
  EXPECT_EQ(world.paths.languageRoot, folder.Path(u"LANG/"));
  EXPECT_EQ(world.paths.programFolder, folder.Path(u"")) << "folders end with a separator";
  EXPECT_EQ(world.paths.Of(Region::Ancestors).picture, folder.Path(u"ancestors.jpg"));
}
