#include "mapdata/files/FileSystem.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

TEST(FileSystem, FindsWhatOtherSystemsWouldFind) {
  const TemporaryFolder folder;
  folder.Write("Pics/Wolf.JPG", "x");
  folder.Write("a\\b/c", "x");
  folder.Write("pics2/J\xE4ger.jpg", "x");
  const auto native = [&](TextView path) {
    return FileSystem::Resolve(folder.Path(path)).value_or("none").substr(folder.Native("").size());
  };
  EXPECT_EQ(native(u"PICS/wolf.jpg"), "Pics/Wolf.JPG");
  EXPECT_EQ(native(u"pics\\WOLF.jpg"), "Pics/Wolf.JPG");
  EXPECT_EQ(native(u"A\\B/C"), "a\\b/c") << "a name may hold the other separator";
  EXPECT_EQ(native(u"PICS2/JÄGER.jpg"), "pics2/J\xE4ger.jpg");
  EXPECT_FALSE(FileSystem::Resolve(folder.Path(u"pics/bear.jpg")));
  EXPECT_FALSE(FileSystem::Resolve(folder.Path(Text(u"pics2\0x", 7)))) << "not cut at a NUL";
  folder.Write("pics/wolf.jpg", "x");
  EXPECT_EQ(native(u"pics/wolf.jpg"), "pics/wolf.jpg") << "the exact name first";
  EXPECT_EQ(native(u"PICS/wolf.jpg"), "Pics/Wolf.JPG") << "then the first in byte order";
}

TEST(FileSystem, WorksBelowAFolderWhoseNameIsNoUtf8) {
  const TemporaryFolder folder;
  folder.Write("\xFF data/a.ini", "x");
  const Text inside = Texts::Join(NativePath::FromBytes(folder.Native("\xFF data")), u"/A.ini");
  EXPECT_TRUE(FileSystem::FileExists(inside));
  EXPECT_EQ(FileSystem::ResolveForWriting(Texts::Join(inside, u".new")),
            folder.Native("\xFF data/A.ini.new"));
}

TEST(FileSystem, CountsOnlyFilesWithContentAsExisting) {
  const TemporaryFolder folder;
  folder.Write("empty", "");
  folder.Write("full", "x");
  folder.Write(".hidden", "x");
  EXPECT_FALSE(FileSystem::FileExists(folder.Path(u"empty")));
  EXPECT_FALSE(FileSystem::FileExists(folder.Folder()));
  EXPECT_FALSE(FileSystem::FileExists(u""));
  EXPECT_TRUE(FileSystem::FileExists(folder.Path(u"FULL")));
  EXPECT_EQ(FileSystem::Names(folder.Folder()), (std::vector<Text>{u"empty", u"full"}));
  EXPECT_TRUE(FileSystem::Names(folder.Path(u"full")).empty());
}

TEST(FileSystem, TakesTheBaseName) {
  EXPECT_EQ(FileSystem::GetBaseName(u"LANG/English/English.lng"), u"English");
  EXPECT_EQ(FileSystem::GetBaseName(u"C:\\LANG\\v1.2.lng"), u"v1.2");
  EXPECT_EQ(FileSystem::GetBaseName(u"none"), u"");
}
