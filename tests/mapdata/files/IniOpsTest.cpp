#include "mapdata/files/IniOps.h"

#include "support/TemporaryFolder.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

namespace {

using IniOps::WriteState;
using Names = std::vector<Text>;
using std::filesystem::perms;

constexpr auto ForOwnerAndGroup = perms::owner_read | perms::owner_write | perms::group_read;

class IniFiles : public testing::Test {
 protected:
  [[nodiscard]] Text Read(TextView file, TextView section, TextView key) const {
    return IniOps::IniRead(folder.Path(file), section, key, u"d");
  }

  [[nodiscard]] Names Keys(TextView file, TextView section) const {
    return IniOps::IniReadFile(folder.Path(file), section);
  }

  [[nodiscard]] Names Sections(TextView file) const {
    return IniOps::IniSectionNames(folder.Path(file));
  }

  // Writes the setting of that name into "a.ini".
  WriteState Write(TextView value) const {
    return IniOps::Write(folder.Path(u"a.ini"), u"general", u"language", value);
  }

  [[nodiscard]] auto Permissions() const {
    return std::filesystem::status(folder.Native("a.ini")).permissions();
  }

  TemporaryFolder folder;
};

}  // namespace

TEST_F(IniFiles, LookUpTolerantlyAndListExactly) {
  folder.Write("a.ini",
               " [Items] \r\n tom =  1,2  \r\n[items]\r\nTom=3\r\n\r\n;Old=3,4\r\nX\r\n  \r\n"
               "\t\r\nempty=\r\n[last]");
  EXPECT_EQ(Read(u"a.ini", u" ITEMS ", u" TOM "), u"1,2");
  EXPECT_EQ(Read(u"a.ini", u"items", u"x"), u"d") << "only the first section counts";
  EXPECT_EQ(Keys(u"a.ini", u"items"), (Names{u"Tom", u";Old", u"X", u"\t", u"empty"}));
  EXPECT_EQ(Keys(u"a.ini", u"Items"), Names{});
  EXPECT_EQ(Keys(u"a.ini", u"last"), Names{});
  EXPECT_EQ(Sections(u"a.ini"), (Names{u"Items", u"items", u"last"}));
  EXPECT_EQ(Read(u"a.ini", u"items\u65E5", u"tom"), u"d");
  folder.Write("a.ini",
               "[H\xC4NDLER]\r\n\x8A"
               "kar=1\r\n\x9E=2\r\n\x9Fps=3\r\n");
  EXPECT_EQ(Read(u"a.ini", u"Händler", u"škar"), u"1") << "letters of the whole code page";
  EXPECT_EQ(Read(u"a.ini", u"händler", u"Ž"), u"2");
  EXPECT_EQ(Read(u"a.ini", u"HÄNDLER", u"ÿPS"), u"3");
}

TEST_F(IniFiles, GiveDefaultsForWhatIsNotThere) {
  folder.Write("a.ini", "[s]\r\nempty=\r\nlong=" + std::string(3000, 'x') + "\r\n");
  EXPECT_EQ(Read(u"a.ini", u"s", u"empty"), u"d");
  EXPECT_EQ(Read(u"a.ini", u"s", u"long").size(), 2047U);
  EXPECT_EQ(Read(u"none.ini", u"s", u"k"), u"d");
  EXPECT_EQ(Sections(u"none.ini"), Names{});
  EXPECT_EQ(Keys(u"", u"s"), Names{}) << "a folder";
  ASSERT_EQ(::mkfifo(folder.Native("fifo").c_str(), 0600), 0);
  EXPECT_EQ(Sections(u"fifo"), Names{}) << "a pipe without a writer";
}

TEST_F(IniFiles, AreReadWhateverTheyHold) {
  std::string sections;
  for (int i = 0; i < 40'000; ++i)
    sections += "[section " + std::to_string(i) + "]\r\nk=" + std::to_string(i) + "\r\n";
  folder.Write("sections", sections);
  EXPECT_EQ(Sections(u"sections").size(), 40'000U);
  EXPECT_EQ(Read(u"sections", u"section 39999", u"k"), u"39999");
  folder.Write("line", "[a]\r\nk=" + std::string(10'000'000, '=') + "\r\nz=1\r\n");
  EXPECT_EQ(Read(u"line", u"a", u"z"), u"1");
  std::string lines = "[a]\r";
  for (int i = 0; i < 1'000'000; ++i)
    lines += "k=1\r";
  folder.Write("cr", lines);
  EXPECT_EQ(Keys(u"cr", u"a").size(), 1'000'000U);
  folder.Write("nul", std::string("[a]\r\nk\0b=1\0\r\n[c\0", 16));
  EXPECT_EQ(Keys(u"nul", u"a"), (Names{Text(u"k\0b", 3)}));
  folder.Write("mark", "\xEF\xBB\xBF[a]\r\nk=1\r\n");
  EXPECT_EQ(Keys(u"mark", u"a"), Names{u"k"});
}

TEST_F(IniFiles, AreReadAnewAtTheNextEvent) {
  const Text file = folder.Path(u"a.ini");
  IniOps::Cache cache;
  const auto read = [&] { return IniOps::Snapshot(cache).IniRead(file, u"s", u"k", u"none"); };
  EXPECT_EQ(read(), u"none");
  folder.Write("a.ini", "[s]\r\nk=1\r\n");
  IniOps::Snapshot event(cache);
  EXPECT_EQ(event.IniRead(file, u"s", u"k", u""), u"1");
  folder.Write("a.ini", "[s]\r\nk=2\r\n");
  EXPECT_EQ(event.IniRead(file, u"s", u"k", u""), u"1") << "an event sees one state";
  EXPECT_EQ(read(), u"2") << "an edit of equal size in the same instant";
  std::filesystem::remove(folder.Native("a.ini"));
  EXPECT_EQ(read(), u"none");
}

TEST_F(IniFiles, AreKeptUntilTheirStampChanges) {
  const Text file = folder.Path(u"a.ini");
  folder.Write("a.ini", "[s]\r\nk=1\r\n");
  const auto old = std::filesystem::last_write_time(folder.Native("a.ini")) - std::chrono::hours(1);
  std::filesystem::last_write_time(folder.Native("a.ini"), old);
  IniOps::Cache cache;
  const auto first = cache.Get(file);
  EXPECT_EQ(cache.Get(file), first);
  folder.Write("a.ini", "[s]\r\nk=2\r\n");
  EXPECT_EQ(IniOps::Snapshot(cache).IniRead(file, u"s", u"k", u""), u"2");
}

TEST_F(IniFiles, TellWhatBecameOfThem) {
  folder.Write("a.ini", "[s]\r\n");
  folder.Write("empty.ini", "");
  std::ofstream(folder.Native("large.ini"));
  std::filesystem::resize_file(folder.Native("large.ini"), IniOps::LargestFile + 1);
  IniOps::Cache cache;
  const auto state = [&](TextView name) { return cache.Get(folder.Path(name))->State(); };
  EXPECT_EQ(state(u"A.ini"), ReadState::Read);
  EXPECT_EQ(state(u"empty.ini"), ReadState::Empty);
  EXPECT_EQ(state(u"none.ini"), ReadState::Missing);
  EXPECT_EQ(state(u"large.ini"), ReadState::TooLarge);
  EXPECT_EQ(state(u""), ReadState::Unreadable) << "a folder";
}

TEST_F(IniFiles, KeepEveryOtherByteWhenWritten) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "[general]\r\nlanguage=Neu\r\n"},
      {"[a]\nx=1", "[a]\nx=1\n[general]\nlanguage=Neu\n"},
      {"; note\r\n[General] \r\n Language =\t\"Alt\"  \r\n;language=x\r\nz=\xE4",
       "; note\r\n[General] \r\n Language=Neu  \r\n;language=x\r\nz=\xE4"},
      {"[general]\r\na=1\r\n\r\n  \r\n[z]\r\n",
       "[general]\r\na=1\r\nlanguage=Neu\r\n\r\n  \r\n[z]\r\n"},
      {"[general]\r\nlanguage\r\n", "[general]\r\nlanguage=Neu\r\n"},
      {"[general]", "[general]\r\nlanguage=Neu\r\n"},
      {"[general]\r\nlanguage=1\r\n[general]\r\nlanguage=2\r\n",
       "[general]\r\nlanguage=Neu\r\n[general]\r\nlanguage=2\r\n"},
      {"language=0\r\n", "language=0\r\n[general]\r\nlanguage=Neu\r\n"},
      {"[general]\nlanguage=1", "[general]\nlanguage=Neu\n"},
  };

  for (const auto& [before, after] : cases) {
    folder.Write("A.INI", before);
    EXPECT_EQ(Write(u"Neu"), WriteState::Written);
    EXPECT_EQ(folder.Read("A.INI"), after) << "the file that is there, in any case";
  }
}

TEST_F(IniFiles, StayAsTheyAreWhenTheyCannotBeWritten) {
  const std::string before = "[general]\r\nlanguage=Alt\r\n";
  folder.Write("a.ini", before);
  EXPECT_EQ(Write(u"zwei\r\nZeilen"), WriteState::BreaksLine);
  EXPECT_EQ(Write(u"\u65E5"), WriteState::NotInCodePage);
  std::filesystem::permissions(folder.Native("a.ini"), perms::owner_read);
  EXPECT_EQ(Write(u"Neu"), WriteState::NotWritable) << "whoever asks";
  EXPECT_EQ(folder.Read("a.ini"), before);
  std::filesystem::permissions(folder.Native("a.ini"), ForOwnerAndGroup);
  EXPECT_EQ(Write(u"Neu"), WriteState::Written);
  EXPECT_EQ(Permissions(), ForOwnerAndGroup);
  IniOps::IniWrite(folder.Path(u"none/a.ini"), u"s", u"k", u"v");
  EXPECT_FALSE(std::filesystem::exists(folder.Native("none")));
}

TEST_F(IniFiles, AreAsPrivateAsTheUserWantsWhenNew) {
  const mode_t before = ::umask(027);
  Write(u"Neu");
  EXPECT_EQ(::umask(before), 027U);
  EXPECT_EQ(Permissions(), ForOwnerAndGroup);
}

TEST_F(IniFiles, StayLinksWhenTheyAreLinks) {
  folder.Write("real/a.ini", "[general]\r\nlanguage=Alt\r\n");
  std::filesystem::create_symlink("real/a.ini", folder.Native("a.ini"));
  Write(u"Neu");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("a.ini")));
  EXPECT_EQ(folder.Read("real/a.ini"), "[general]\r\nlanguage=Neu\r\n");
}
