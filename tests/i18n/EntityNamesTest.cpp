#include "platform/Windows1252.h"
#include "support/ScannedNames.h"
#include "support/StartedLanguage.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

using IniOps::Snapshot;

namespace {

// A language with these lines as its table of names.
class World {
 public:
  explicit World(const std::string& entities) { Write(entities); }

  void Write(const std::string& entities) const {
    folder_.Write("L/L.lng", "[general]\r\nlanguage=L\r\n[entities]\r\n" + entities);
  }

  [[nodiscard]] Text Root() const { return folder_.Path(u""); }

  [[nodiscard]] Text File() const { return folder_.Path(u"L/L.lng"); }

 private:
  TemporaryFolder folder_;
};

}  // namespace

TEST(EntityNames, AreTranslatedByTheFirstKeyTheyBeginWith) {
  const World world(
      "H\xE4ndler=Merchant\r\nH\xE4ndlerin=Tradeswoman\r\nKoch=\r\nWolf=Wolf king\r\n"
      "Arvenna=Arvenna Land\r\nTempel von=Temple of\r\n;Tor=Gate\r\nBlank=\"  \"\r\n");
  IniOps::Cache cache;
  Snapshot files(cache);
  StartedLanguage language(files, world.Root(), u"L");

  const struct {
    TextView name;
    TextView shown;
    TextView back;
  } cases[] = {
      {u"Händler Mara", u"Merchant Mara", u"Händler Mara"},
      {u"Händlerin Mara", u"Merchantin Mara", u"Händlerin Mara"},
      {u"Händler der Händler", u"Merchant der Merchant", u"Händler der Händler"},
      {u"händler", u"händler", u"händler"},
      {u"  Nobody ", u"Nobody", u"Nobody"},
      // A key without a value takes its text out of longer names, but never the whole name.
      {u"Koch", u"Koch", u"Koch"},
      {u"Koch Olaf", u" Olaf", u"Olaf"},
      {u"Blank", u"Blank", u"Blank"},
      // Translating twice is not the same as once.
      {u"Wolf king", u"Wolf king king", u"Wolf king"},
      {u"Gate of Arvenna", u"Gate of Arvenna Land", u"Gate of Arvenna"},
      {u"Tempel von Ostrakh", u"Temple of Ostrakh", u"Tempel von Ostrakh"},
      // A region word is itself a key: it is replaced once as a word, and once as the key.
      {u"Arvenna", u"Arvenna Land Land", u"Arvenna"},
      // What is disabled in the data file has a key, but values don't see such lines.
      {u";Tor", u";Tor", u"KochTor"},
  };

  for (const auto& test : cases) {
    EXPECT_EQ(language.LocalizeEntityName(language.NameFile(files), test.name), test.shown);
    EXPECT_EQ(language.UnlocalizeEntityName(test.shown), test.back);
  }
}

TEST(EntityNames, AgreeWithThePlainScanOnRandomTables) {
  std::mt19937 random(20);
  const auto below = [&](size_t most) { return random() % most; };
  const auto word = [&](size_t longest) {
    static const std::vector<std::string> parts = {
        "a", "b", " ", "\xC4", "\xE4", ";", "ab", "Arvenna", "Tempel von", "=", "\"  \"", "x"};
    std::string text;
    for (size_t n = below(longest + 1); n > 0; --n)
      text += parts[below(parts.size())];
    return text;
  };
  size_t translated = 0;
  for (int table = 0; table < 300; ++table) {
    std::string entities;
    for (size_t n = below(12); n > 0; --n)
      entities += word(3) + '=' + word(3) + "\r\n";
    const World world(entities);
    IniOps::Cache cache;
    Snapshot files(cache);
    StartedLanguage language(files, world.Root(), u"L");
    ScannedNames scanned(world.File());
    scanned.CacheTranslationTable(files);
    for (int n = 0; n < 60; ++n) {
      const Text name = Windows1252::Decode(word(5));
      ASSERT_EQ(language.UnlocalizeEntityName(name), scanned.UnlocalizeEntityName(name))
          << entities;
      const Text shown = scanned.LocalizeEntityName(files, name);
      ASSERT_EQ(language.LocalizeEntityName(language.NameFile(files), name), shown) << entities;
      ASSERT_EQ(language.UnlocalizeEntityName(shown), scanned.UnlocalizeEntityName(shown))
          << entities;
      translated += shown != Texts::Trim(name);
    }
  }
  EXPECT_GT(translated, 1000U);
}

TEST(EntityNames, AnEditedFileGivesNewTranslationsOfTheSameKeys) {
  const World world("Wolf=Lupo\r\nArvenna=A\r\n");
  IniOps::Cache cache;
  Snapshot first(cache);
  StartedLanguage language(first, world.Root(), u"L");
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(first), u"Wolf Arvenna"), u"Lupo A");
  world.Write("Wolf=Loup\r\nB\xE4r=Ours\r\nArvenna=B\r\n");
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(first), u"Wolf Arvenna"), u"Lupo A");
  Snapshot second(cache);
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(second), u"Wolf Arvenna"), u"Loup B");
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(second), u"Bär"), u"Bär");
  EXPECT_EQ(language.UnlocalizeEntityName(u"Lupo B"), u"Wolf Arvenna");
  language.CacheTranslationTable(second);
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(second), u"Bär"), u"Ours");
  EXPECT_EQ(language.UnlocalizeEntityName(u"Loup"), u"Wolf");
}

TEST(EntityNames, MayBePrefixesOfEachOther) {
  for (const bool longestFirst : {false, true}) {
    std::string entities;
    for (size_t line = 0; line < 8192; ++line) {
      const size_t length = longestFirst ? 2000 - line % 2000 : line % 2000 + 1;
      entities.append(length, 'x').append(line < 2000 ? "" : std::to_string(line)).append("=\n");
    }
    const World world(entities);
    IniOps::Cache cache;
    Snapshot files(cache);
    StartedLanguage language(files, world.Root(), u"L");
    const Text name = Texts::Join(Text(2000, u'x'), u" Mara");
    for (int n = 0; n < 1000; ++n)
      ASSERT_EQ(language.LocalizeEntityName(language.NameFile(files), name), u" Mara");
  }
}

TEST(EntityNames, DontGrowWithoutBoundWhereWordsHoldEachOther) {
  const auto filledWith = [](const std::string& word) {
    std::string value;
    while (value.size() + word.size() < ProfileFile::LongestValue)
      value += word;
    return value;
  };
  const World world("Arvenna=" + filledWith("Skaldor") + "\nSkaldor=" + filledWith("Sarrakh") +
                    "\nSarrakh=" + filledWith("Ostrakh") + "\nOstrakh=" + filledWith("x") +
                    "\nO=" + filledWith("O") + "\n");
  IniOps::Cache cache;
  Snapshot files(cache);
  StartedLanguage language(files, world.Root(), u"L");
  const Text shown = language.LocalizeEntityName(language.NameFile(files), u"Tor nach Arvenna");
  EXPECT_TRUE(shown.starts_with(u"Tor nach Skaldor"));
  EXPECT_LT(shown.size(), 10'000U);
}
