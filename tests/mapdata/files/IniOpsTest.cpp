#include "mapdata/files/IniOps.h"

#include "support/TemporaryFolder.h"

#include <chrono>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace {

using IniOps::WriteState;
using Names = std::vector<Text>;

std::string Header(const std::string& name) {
  return '[' + name + "]\r\n";
}

}  // namespace

TEST(IniOps, LooksUpTolerantlyAndListsExactly) {
  const TemporaryFolder folder;
  const Text file = folder.Path(u"a.ini");
  folder.Write("a.ini",
               " [Items] \r\n tom =  1,2  \r\n[items]\r\nTom=3\r\n\r\n;Old=3,4\r\nX\r\n  \r\n"
               "\t\r\nempty=\r\n[last]");
  EXPECT_EQ(IniOps::IniRead(file, u" ITEMS ", u" TOM ", u"d"), u"1,2");
  EXPECT_EQ(IniOps::IniRead(file, u"items", u"x", u"d"), u"d") << "only the first section counts";
  EXPECT_EQ(IniOps::IniReadFile(file, u"items"), (Names{u"Tom", u";Old", u"X", u"\t", u"empty"}));
  EXPECT_EQ(IniOps::IniReadFile(file, u"Items"), Names{});
  EXPECT_EQ(IniOps::IniReadFile(file, u"last"), Names{});
  EXPECT_EQ(IniOps::IniSectionNames(file), (Names{u"Items", u"items", u"last"}));
  EXPECT_EQ(IniOps::IniRead(file, u"items\u65E5", u"tom", u"d"), u"d");
}

TEST(IniOps, GivesDefaultsForWhatIsNotThere) {
  const TemporaryFolder folder;
  folder.Write("a.ini", "[s]\r\nempty=\r\nlong=" + std::string(3000, 'x') + "\r\n");
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"a.ini"), u"s", u"empty", u" d "), u" d ");
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"a.ini"), u"s", u"long", u"").size(), 2047U);
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"none.ini"), u"s", u"k", u"d"), u"d");
  EXPECT_EQ(IniOps::IniSectionNames(folder.Path(u"none.ini")), Names{});
  EXPECT_EQ(IniOps::IniReadFile(folder.Folder(), u"s"), Names{}) << "a folder";
  ASSERT_EQ(::mkfifo(folder.Native("fifo").c_str(), 0600), 0);
  EXPECT_EQ(IniOps::IniSectionNames(folder.Path(u"fifo")), Names{}) << "a pipe without a writer";
}

TEST(IniOps, MatchesLettersOfTheWholeCodePage) {
  const TemporaryFolder folder;
  folder.Write("a.ini", "[H\xC4NDLER]\r\n\x8Akar=1\r\n\x9E=2\r\n\x9Fps=3\r\n");
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"a.ini"), u"Händler", u"škar", u""), u"1");
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"a.ini"), u"händler", u"Ž", u""), u"2");
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"a.ini"), u"HÄNDLER", u"ÿPS", u""), u"3");
}

TEST(IniOps, SurvivesFilesThatAreNoProfileFiles) {
  const TemporaryFolder folder;
  std::string sections;
  for (int i = 0; i < 40'000; ++i)
    sections += Header("section " + std::to_string(i)) + "k=" + std::to_string(i) + "\r\n";
  folder.Write("sections", sections);
  EXPECT_EQ(IniOps::IniSectionNames(folder.Path(u"sections")).size(), 40'000U);
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"sections"), u"section 39999", u"k", u""), u"39999");
  folder.Write("line", "[a]\r\nk=" + std::string(10'000'000, '=') + "\r\nz=1\r\n");
  EXPECT_EQ(IniOps::IniRead(folder.Path(u"line"), u"a", u"z", u""), u"1");
  std::string lines = "[a]\r";
  for (int i = 0; i < 1'000'000; ++i)
    lines += "k=1\r";
  folder.Write("cr", lines);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(IniOps::IniReadFile(folder.Path(u"cr"), u"a").size(), 1'000'000U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  folder.Write("nul", std::string("[a]\r\nk\0b=1\0\r\n[c\0", 16));
  EXPECT_EQ(IniOps::IniReadFile(folder.Path(u"nul"), u"a"), (Names{Text(u"k\0b", 3)}));
  folder.Write("mark", "\xEF\xBB\xBF[a]\r\nk=1\r\n");
  EXPECT_EQ(IniOps::IniReadFile(folder.Path(u"mark"), u"a"), Names{u"k"});
}

TEST(IniOps, NoticesAnEditedFileAtTheNextEvent) {
  const TemporaryFolder folder;
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

TEST(IniOps, KeepsAnOldFileUntilItsStampChanges) {
  const TemporaryFolder folder;
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

TEST(IniOps, TellsWhatBecameOfAFile) {
  const TemporaryFolder folder;
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

TEST(IniWrite, KeepsEveryOtherByte) {
  struct {
    std::string before;
    std::string after;
  } const cases[] = {
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

  for (const auto& test : cases) {
    const TemporaryFolder folder;
    folder.Write("Orvalis.INI", test.before);
    IniOps::IniWrite(folder.Path(u"orvalis.ini"), u"general", u"language", u"Neu");
    EXPECT_EQ(folder.Read("Orvalis.INI"), test.after) << "the file that is there, in any case";
  }
}

TEST(IniWrite, LeavesTheFileWhenItCannotBeDone) {
  const TemporaryFolder folder;
  const std::string before = "[general]\r\nlanguage=Alt\r\n";
  folder.Write("a.ini", before);
  const auto write = [&](TextView value) {
    const WriteState state = IniOps::Write(folder.Path(u"a.ini"), u"general", u"language", value);
    return std::pair(state, folder.Read("a.ini"));
  };
  EXPECT_EQ(write(u"zwei\r\nZeilen"), std::pair(WriteState::BreaksLine, before));
  EXPECT_EQ(write(u"\u65E5"), std::pair(WriteState::NotInCodePage, before));
  ::chmod(folder.Native("a.ini").c_str(), 0444);
  EXPECT_EQ(write(u"Neu"), std::pair(WriteState::NotWritable, before)) << "whoever asks";
  ::chmod(folder.Native("a.ini").c_str(), 0640);
  EXPECT_EQ(write(u"Neu").first, WriteState::Written);

  struct stat status {};

  ::stat(folder.Native("a.ini").c_str(), &status);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  IniOps::IniWrite(folder.Path(u"none/a.ini"), u"s", u"k", u"v");
  EXPECT_FALSE(std::filesystem::exists(folder.Native("none")));
}

TEST(IniWrite, ANewFileIsAsPrivateAsTheUserWants) {
  const TemporaryFolder folder;
  const mode_t before = ::umask(027);
  IniOps::IniWrite(folder.Path(u"a.ini"), u"s", u"k", u"v");
  EXPECT_EQ(::umask(before), 027U);

  struct stat status {};

  ::stat(folder.Native("a.ini").c_str(), &status);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST(IniWrite, LeavesALinkALink) {
  const TemporaryFolder folder;
  folder.Write("real/a.ini", "[s]\r\nk=1\r\n");
  std::filesystem::create_symlink("real/a.ini", folder.Native("link.ini"));
  IniOps::IniWrite(folder.Path(u"link.ini"), u"s", u"k", u"2");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("link.ini")));
  EXPECT_EQ(folder.Read("real/a.ini"), "[s]\r\nk=2\r\n");
}
