#include "search/Search.h"

#include "support/TestWorld.h"

#include <array>
#include <optional>
#include <string>

namespace {

class Searching : public testing::Test, protected TestWorld {
 protected:
  void WriteRegions() {
    Write("arvenna.data",
          u"[NPC]\r\nWolfsrudel=10,20\r\n;Wolf Alt=1,1\r\n*Wolf Geheim=2,2\r\n"
          "Händler Mara = #, smiths ,*\r\nOhne\r\n[leer]\r\n"
          "[teachers]\r\nWolfsrudel=30, 40.5 ,*\r\nWolf Zahm=a,99999\r\n"
          "[smiths]\r\nHändler Mara=-7,800\r\nZirkel=#,smiths\r\n");
    Write("sarrakh.data", u"[[keys]\r\nWolf Brand=5,6\r\n[ places ]\r\nNie=1,2\r\n");
    Write("info.data",
          u"[Info]\r\nwolfsrudel=Sechs Wölfe\\nim Wald\r\nWolf Zahm=# Wolfsrudel \r\n"
          "Händler Mara=#Wolf Zahm\r\nWolf Brand=\"ein <b>%s</b>\"\r\n");
  }

  // The number found; none if nothing was found.
  std::optional<size_t> First(TextView term, Search::Mode mode = Search::Mode::Names) {
    state_.SearchMode = mode;
    IniOps::Snapshot files(world.cache);
    return NumberOf(Search::FindFirst(state_, files, world, term));
  }

  std::optional<size_t> Next() { return NumberOf(Search::FindNext(state_)); }

  static std::optional<size_t> NumberOf(const Search::Outcome& outcome) {
    const auto* hit = std::get_if<Search::Hit>(&outcome);
    return hit ? std::optional(hit->index) : std::nullopt;
  }

  Message NotFound() {
    IniOps::Snapshot files(world.cache);
    return Search::NotFoundMessage(state_, files, world.language);
  }

  Text Heading() {
    IniOps::Snapshot files(world.cache);
    return Search::ResultHeading(state_, files, world.language);
  }

  Search::State state_;
};

}  // namespace

TEST_F(Searching, CachesEveryFindableLineInTheOrderOfTheFiles) {
  WriteRegions();
  EXPECT_EQ(First(u"-"), std::nullopt);

  const struct {
    TextView section, name, description;
    int x, y;
  } rows[] = {
      {u"NPC", u"Wolfsrudel", u"Sechs Wölfe\\nim Wald", 10, 20},
      {u"NPC", u"Händler Mara", u"# Wolfsrudel", -7, 800},
      {u"NPC", u"Ohne", u"", 0, 0},
      {u"teachers", u"Wolfsrudel", u"Sechs Wölfe\\nim Wald", 30, 40},
      {u"teachers", u"Wolf Zahm", u"Sechs Wölfe\\nim Wald", 0, 0},
      {u"smiths", u"Händler Mara", u"# Wolfsrudel", -7, 800},
      {u"smiths", u"Zirkel", u"", 0, 0},
      {u"keys", u"Wolf Brand", u"ein <b>%s</b>", 5, 6},
  };

  ASSERT_EQ(state_.Cache.Size(), std::size(rows));
  for (size_t i = 0; i < std::size(rows); ++i) {
    const CachedEntity entity = state_.Cache.At(i);
    EXPECT_EQ(std::tie(entity.Section, entity.Name, entity.Description, entity.X, entity.Y),
              std::tie(rows[i].section, rows[i].name, rows[i].description, rows[i].x, rows[i].y))
        << i;
  }
  EXPECT_EQ(state_.Cache.At(7).Database, world.paths.Of(Region::Sarrakh).data);
  EXPECT_EQ(state_.Cache.At(7).Map, world.paths.Of(Region::Sarrakh).picture);
}

TEST_F(Searching, MatchesTheStartOfNamesAndAnyPartOfDescriptions) {
  WriteRegions();
  EXPECT_EQ(First(u"Wolf"), 0U);
  for (const TextView term : {u"wolf", u"rudel", u"Wolfsrudel ", u"*Wolf", u"Wolf Alt", u"日本"})
    EXPECT_EQ(First(term), std::nullopt);
  EXPECT_EQ(First(u"Wolf "), 4U);
  EXPECT_EQ(First(Text(10000, u'W')), std::nullopt);
  using enum Search::Mode;
  EXPECT_EQ(First(u"Wölfe\\nim", Descriptions), 0U);
  EXPECT_EQ(First(u"%s</b>", Descriptions), 7U);
  EXPECT_EQ(First(u"wölfe", Descriptions), std::nullopt);
  EXPECT_EQ(First(u"日本", Descriptions), std::nullopt);
}

TEST_F(Searching, GoesOnBehindTheLastHitAndNeverRoundAgain) {
  WriteRegions();
  EXPECT_EQ(First(u"wolf"), std::nullopt);
  state_.SearchTerm = u"Wolfs";
  EXPECT_EQ(Next(), 3U) << "behind the first record where nothing was ever found";
  EXPECT_EQ(First(u"Wolfs"), 0U);
  EXPECT_EQ(Next(), 3U);
  EXPECT_EQ(Next(), std::nullopt);
  EXPECT_EQ(Next(), std::nullopt);
  // The place of the last hit outlives a failed search for another term.
  EXPECT_EQ(First(u"wolf"), std::nullopt);
  state_.SearchTerm = u"Wolf";
  EXPECT_EQ(Next(), 4U);
  // The mode chosen in a cancelled dialog.
  state_.SearchMode = Search::Mode::Descriptions;
  EXPECT_EQ(Next(), 5U);
}

TEST_F(Searching, ComparesNamesAsTheyAreShownNowAndThenAsTheyWereCached) {
  WriteRegions();
  EXPECT_EQ(First(u"Händler"), 1U);
  SpeakEnglish(u"[entities]\r\nHändler=Merchant\r\nWolfsrudel=Merchants of wolves\r\n");
  EXPECT_EQ(First(u"Händler"), std::nullopt);
  EXPECT_EQ(First(u"Merchant"), 0U);
  EXPECT_EQ(Next(), std::nullopt);
  EXPECT_EQ(state_.Cache.At(1).Name, u"Händler Mara");
}

TEST_F(Searching, CachesNamesAndDescriptionsInTheLanguageOfTheFirstSearch) {
  WriteRegions();
  SpeakEnglish(u"[entities]\r\nHändler=Merchant\r\n");
  Write("LANG/English/info.data", u"[info]\r\nHändler Mara=She sells.\r\n");
  EXPECT_EQ(First(u"sells", Search::Mode::Descriptions), 1U);
  EXPECT_EQ(state_.Cache.At(1).Name, u"Merchant Mara");
  EXPECT_EQ(state_.Cache.At(0).Description, u"");
  Choose(LOCAL::German);
  EXPECT_EQ(First(u"Merchant"), 1U);
}

TEST_F(Searching, StopsAtTheFirstInvalidLink) {
  constexpr std::array<std::array<TextView, 2>, 3> Lines = {
      {{u"Tom = #, smiths", u"smiths"}, {u"Tom=#,none,*", u"none"}, {u"Tom=#", u""}}};
  for (const auto& [line, target] : Lines) {
    Write("arvenna.data",
          Texts::Join(u"[NPC]\r\nAda=1,2\r\n", line, u"\r\n[smiths]\r\nTom= ,5\r\n"));
    Search::State state;
    IniOps::Cache cache;
    IniOps::Snapshot files(cache);
    const auto outcome = Search::FindFirst(state, files, world, TextView(u"Ada"));
    const auto* link = std::get_if<InvalidLink>(&outcome);
    ASSERT_TRUE(link);
    EXPECT_EQ(Search::InvalidLinkMessage(*link).text,
              Texts::Join(u"DB: ", world.paths.Of(Region::Arvenna).data, u"\r\n\r\n[NPC]\r\nTom=#,",
                          target, u"\r\n\r\nLink-Target invalid!"));
    EXPECT_EQ(Search::InvalidLinkMessage(*link).caption, u"Link Error");
  }
}

TEST_F(Searching, FillsAgainWhereTheFilesWereMissing) {
  EXPECT_EQ(First(u"Wolf"), std::nullopt);
  WriteRegions();
  EXPECT_EQ(First(u"Wolf"), 0U);
}

TEST_F(Searching, KeepsAndFindsMoreRecordsThanSixteenBitsCount) {
  std::string file = "[NPC]\r\n";
  for (int i = 0; i < 70'000; ++i)
    file += "N" + std::to_string(i) + "=1,2\r\n";
  folder.Write("ancestors.data", file + "Letzter=3,4\r\n");
  EXPECT_EQ(First(u"N69999"), 69'999U);
  EXPECT_EQ(First(u"Letzter"), 70'000U);
  EXPECT_EQ(state_.Cache.At(70'000).X, 3);
  EXPECT_EQ(Next(), std::nullopt);
}

TEST_F(Searching, TellsWhatWasNotFoundInTheLanguageOfTheMoment) {
  EXPECT_EQ(First(u" \"%s\" <b> "), std::nullopt);
  EXPECT_EQ(NotFound().text, u"Der Suchbegriff: \" \"%s\" <b> \" konnte nicht gefunden werden!");
  EXPECT_EQ(NotFound().caption, u"Suche beendet");
  EXPECT_EQ(Heading(), u" Suchergebnis für:  \"%s\" <b>  ");
  SpeakEnglish(u"[frmFind]\r\nnotfoundmessage=No %s, no %s!\r\nSearchResult=%s of %s\r\n");
  EXPECT_EQ(First(u"a%s"), std::nullopt);
  EXPECT_EQ(NotFound().text, u"No a%s, no a%s!");
  EXPECT_EQ(NotFound().caption, u"");
  EXPECT_EQ(Heading(), u"a%s of a%s ");
  SpeakEnglish(u"[general]\r\n");
  EXPECT_EQ(NotFound().text, u"");
  EXPECT_EQ(Heading(), u" ");
}
