#include "support/ScannedNames.h"
#include "support/TestWorld.h"

#include <random>

using IniOps::Snapshot;

namespace {

// A language with a table of names.
class TranslatedNames : public testing::Test, protected TestWorld {
 protected:
  void Speak(TextView table) { SpeakEnglish(Texts::Join(u"[entities]\r\n", table)); }

  Text Shown(TextView name) {
    Snapshot files(world.cache);
    return language.LocalizeEntityName(language.NameFile(files), name);
  }

  LOCAL::Language& language = world.language;
};

}  // namespace

TEST_F(TranslatedNames, AreTranslatedByTheFirstKeyTheyBeginWith) {
  Speak(
      u"Händler=Merchant\r\nHändlerin=Tradeswoman\r\nKoch=\r\nWolf=Wolf king\r\n"
      u"Arvenna=Arvenna Land\r\nTempel von=Temple of\r\n;Tor=Gate\r\nBlank=\"  \"\r\n");

  const struct {
    TextView name, shown, back;
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
    EXPECT_EQ(Shown(test.name), test.shown);
    EXPECT_EQ(language.UnlocalizeEntityName(test.shown), test.back);
  }
}

TEST_F(TranslatedNames, AgreeWithThePlainScanOnRandomTables) {
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
    Speak(Windows1252::Decode(entities));
    Snapshot files(world.cache);
    LOCAL::Language fresh(world.paths);
    fresh.Start(files, u"English");
    fresh.CacheTranslationTable(files);
    ScannedNames scanned(language.LanguageFile());
    scanned.CacheTranslationTable(files);
    for (int n = 0; n < 60; ++n) {
      const Text name = Windows1252::Decode(word(5));
      ASSERT_EQ(fresh.UnlocalizeEntityName(name), scanned.UnlocalizeEntityName(name)) << entities;
      const Text shown = scanned.LocalizeEntityName(files, name);
      ASSERT_EQ(fresh.LocalizeEntityName(fresh.NameFile(files), name), shown) << entities;
      ASSERT_EQ(fresh.UnlocalizeEntityName(shown), scanned.UnlocalizeEntityName(shown)) << entities;
      translated += shown != Texts::Trim(name);
    }
  }
  EXPECT_GT(translated, 1000U);
}

TEST_F(TranslatedNames, AnEditedFileGivesNewTranslationsOfTheSameKeys) {
  Speak(u"Wolf=Lupo\r\nArvenna=A\r\n");
  Snapshot event(world.cache);
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(event), u"Wolf Arvenna"), u"Lupo A");
  Write("LANG/English/English.lng",
        u"[general]\r\nlanguage=English\r\n[entities]\r\nWolf=Loup\r\nBär=Ours\r\nArvenna=B\r\n");
  EXPECT_EQ(language.LocalizeEntityName(language.NameFile(event), u"Wolf Arvenna"), u"Lupo A");
  EXPECT_EQ(Shown(u"Wolf Arvenna"), u"Loup B");
  EXPECT_EQ(Shown(u"Bär"), u"Bär");
  EXPECT_EQ(language.UnlocalizeEntityName(u"Lupo B"), u"Wolf Arvenna");
  Choose(u"English");
  EXPECT_EQ(Shown(u"Bär"), u"Ours");
  EXPECT_EQ(language.UnlocalizeEntityName(u"Loup"), u"Wolf");
}

TEST_F(TranslatedNames, MayBePrefixesOfEachOther) {
  const Text name = Texts::Join(Text(2000, u'x'), u" Mara");
  for (const bool longestFirst : {false, true}) {
    std::string entities;
    for (size_t line = 0; line < 8192; ++line) {
      const size_t length = longestFirst ? 2000 - line % 2000 : line % 2000 + 1;
      entities.append(length, 'x').append(line < 2000 ? "" : std::to_string(line)).append("=\n");
    }
    Speak(Windows1252::Decode(entities));
    Snapshot files(world.cache);
    for (int n = 0; n < 1000; ++n)
      ASSERT_EQ(language.LocalizeEntityName(language.NameFile(files), name), u" Mara");
  }
}

TEST_F(TranslatedNames, DontGrowWithoutBoundWhereWordsHoldEachOther) {
  Text table;
  for (const auto& [key, word] :
       std::initializer_list<std::pair<TextView, TextView>>{{u"Arvenna", u"Skaldor"},
                                                            {u"Skaldor", u"Sarrakh"},
                                                            {u"Sarrakh", u"Ostrakh"},
                                                            {u"Ostrakh", u"x"},
                                                            {u"O", u"O"}}) {
    table += Texts::Join(key, u"=");
    for (size_t size = 0; size + word.size() < ProfileFile::LongestValue; size += word.size())
      table += word;
    table += u'\n';
  }
  Speak(table);
  const Text shown = Shown(u"Tor nach Arvenna");
  EXPECT_TRUE(shown.starts_with(u"Tor nach Skaldor"));
  EXPECT_LT(shown.size(), 10'000U);
}
