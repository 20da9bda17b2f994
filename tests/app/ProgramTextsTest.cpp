#include "app/ProgramTexts.h"

#include "platform/ProgramInfo.h"
#include "support/TestWorld.h"

namespace {

class OpenedWorld : public testing::Test, protected TestWorld {};

}  // namespace

TEST_F(OpenedWorld, NamesTheEdition) {
  const std::pair<std::string, TextView> cases[] = {
      {"NoExtras= YES \r\n", u"Lite"},
      {"NoLang=yes\r\n", u" "},
      {"NoExtras=yes\r\nNoLang=Yes\r\nLocalizedString= English \r\n", u"Lite English"},
      {"NoExtras=1\r\nNoLang=ja\r\nLocalizedString=English\r\n", u""},
  };

  for (const auto& [special, edition] : cases) {
    folder.Write("orvalis.ini", "[special]\r\n" + special);
    EXPECT_EQ(ProgramTexts::Caption(World(folder.Folder()).edition),
              Texts::Join(u"Orvalis ", ProgramInfo::Version, u" ", edition))
        << special;
  }
}

TEST_F(OpenedWorld, NamesTheFirstMissingFileAndOnlyThat) {
  for (const RegionRow& region : Regions)
    for (const TextView extension : {u".data", u".jpg"})
      Write(NativePath::ToBytes(Texts::Join(region.stem, extension)), u"x");
  EXPECT_FALSE(world.MissingFile()) << "descriptions are not required";
  folder.Write("arvenna.jpg", "");
  EXPECT_EQ(world.MissingFile(), folder.Path(u"arvenna.jpg"));
  std::filesystem::remove(folder.Native("ostrakh.data"));
  EXPECT_EQ(world.MissingFile(), folder.Path(u"ostrakh.data"));
  folder.Write("OSTRAKH.Data", "x");
  EXPECT_EQ(world.MissingFile(), folder.Path(u"arvenna.jpg"));
}

TEST_F(OpenedWorld, TellsOfAMissingFileInTheChosenLanguage) {
  folder.Write("orvalis.ini", "[folders]\r\nlang=sprachen\r\n[general]\r\nlanguage= Test \r\n");
  const auto message = [&] {
    World opened(folder.Folder());
    const Text chosen = opened.ChosenLanguage();
    EXPECT_TRUE(opened.language.IsGerman()) << "opening chooses no language";
    return ProgramTexts::FileNotFound(opened, chosen, u"/x/arvenna.data");
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

TEST_F(OpenedWorld, TakesFoldersFromTheSettings) {
  folder.Write("orvalis.ini", "[folders]\r\npics=Bilder\r\nextras=\r\n");
  const auto paths = World(folder.Folder()).paths;
  EXPECT_EQ(paths.picturesFolder, folder.Path(u"Bilder/"));
  EXPECT_EQ(paths.extrasFolder, folder.Path(u"EXTRAS/"));
  EXPECT_EQ(paths.languageRoot, folder.Path(u"LANG/"));
  EXPECT_EQ(paths.programFolder, folder.Path(u"")) << "folders end with a separator";
  EXPECT_EQ(paths.Of(Region::Ancestors).picture, folder.Path(u"ancestors.jpg"));
}
