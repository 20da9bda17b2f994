#include "share/SharedWorld.h"

#include "share/Find.h"
#include "support/TestWorld.h"

using EntityFile::Position;
using Share::Category;
using Share::RegionMap;

namespace {

class SharedWorld : public testing::Test {
 protected:
  SharedWorld() {
    world_.Write("arvenna.data",
                 u"[NPC]\r\nAlrik=512,300,*\r\nBerta=#,smiths\r\n;Carl=1,2\r\nDora=links,3\r\n"
                 "[smiths]\r\nBerta=7px,8\r\n[perk smithing]\r\nAlrik=#,NPC\r\n"
                 "[verloren]\r\n*Schatz=9,10\r\n[teachers]\r\n");
    world_.Write("ostrakh.data",
                 u"[items]\r\nTor nach Arvenna=5,6\r\n[perk smithing]\r\nAlrik=1,1\r\n");
    world_.Write("info.data", u"[info]\r\nAlrik=Erste\\nZweite\r\nBerta=#Alrik\r\n");
    world_.Write("PICS/pic.ini", u"[pics]\r\nAlrik=alrik.jpg\r\n");
  }

  void SpeakEnglish() {
    world_.SpeakEnglish(
        u"[menus]\r\nmnuArvenna=&The && land\r\nmiArvennaNPCs=&People\r\n[frmPerks]\r\n"
        u"Smithing=Forging\r\nsmithskills=Smiths' skills\r\n"
        u"[entities]\r\nArvenna=Avenna\r\nAlrik=Ulric\r\nTor nach=Gate to\r\n");
  }

  const std::vector<RegionMap>& Read(const Share::Selection& selection = {}) {
    maps_ = Share::Read(world_.world);
    Share::Narrow(maps_, selection);
    return maps_;
  }

  // As "section: caption, group".
  [[nodiscard]] std::vector<Text> Captions(size_t region) const {
    std::vector<Text> captions;
    for (const Category& each : maps_.at(region).categories)
      captions.push_back(Texts::Join(each.section, u": ", each.caption, u", ", each.group));
    return captions;
  }

  [[nodiscard]] std::vector<Text> Found(const Share::Query& query) const {
    std::vector<Text> found;
    for (const auto& [map, category, entity] : Share::Find(maps_, query))
      found.push_back(Texts::Join(category->section, u"/", entity->key));
    return found;
  }

  TestWorld world_;
  std::vector<RegionMap> maps_;
};

using Keys = std::vector<Text>;

}  // namespace

TEST_F(SharedWorld, HoldsWhatMenusPerksAndTheSearchShow) {
  Read();
  EXPECT_EQ(maps_.at(0).caption, u"Arvenna");
  EXPECT_EQ(
      Captions(0),
      (Keys{u"NPC: NPCs, Personen", u"teachers: Lehrer, Personen", u"smiths: Schmiede, Personen",
            u"perk smithing: Schmiedekunst, Schmiedetalente", u"verloren: verloren, verloren"}));
  EXPECT_EQ(Captions(3),
            (Keys{u"items: Gegenstände, Objekte", u"perk smithing: perk smithing, perk smithing"}));
  SpeakEnglish();
  Read();
  EXPECT_EQ(maps_.at(0).caption, u"The & land");
  EXPECT_EQ(Captions(0).at(0), u"NPC: People, Persons");
  EXPECT_EQ(Captions(0).at(3), u"perk smithing: Forging, Smiths' skills");
  EXPECT_EQ(maps_.at(3).categories.at(0).entities.at(0).name, u"Gate to Avenna");
}

TEST_F(SharedWorld, HasPositionsAsTheCategoryShowsThem) {
  const auto& categories = Read().at(0).categories;
  const auto& people = categories.at(0).entities;
  // The list takes whole numbers only, markers what leads.
  EXPECT_EQ(people[1].position, std::nullopt);
  EXPECT_EQ(categories.at(2).entities.at(0).position, (Position{7, 8}));
  EXPECT_EQ(categories.at(3).entities.at(0).position, (Position{512, 300}));
}

TEST_F(SharedWorld, DescribesEntitiesInTheirLanguage) {
  SpeakEnglish();
  const auto& people = Read().at(0).categories.at(0).entities;
  EXPECT_EQ(people[0].name, u"Ulric");
  EXPECT_EQ(people[0].description, u"Erste\nZweite");
  EXPECT_EQ(people[1].description, u"Erste\nZweite");
  EXPECT_EQ(people[0].portrait, world_.folder.Path(u"PICS/alrik.jpg"));
  EXPECT_EQ(people[1].portrait, u"");
  world_.Write("LANG/English/info.data", u"[info]\r\nAlrik=First\r\nBerta=#Ulric\r\n");
  EXPECT_EQ(Read().at(0).categories.at(0).entities[1].description, u"First");
}

TEST_F(SharedWorld, IsNarrowedToWhatIsAskedFor) {
  EXPECT_EQ(Read({{u"ARVENNA", u"ahnengraber"}, {}}).size(), 2U);
  Read({{}, {u"npc", u"items"}});
  ASSERT_EQ(maps_.size(), 2U);
  EXPECT_EQ(Captions(0).size(), 1U);
  Read();
  EXPECT_EQ(Share::Missing(maps_, {{u"Sarrakh"}, {}}), std::nullopt);
  EXPECT_EQ(Share::Missing(maps_, {{u"Atlantis"}, {}}), u"Atlantis");
  EXPECT_EQ(Share::Missing(maps_, {{u"ostrakh"}, {u"items", u"npc"}}), u"npc");
}

TEST_F(SharedWorld, IsSearchedForgivinglyOrAsTheViewerDoes) {
  world_.Write("info.data", u"[info]\r\nDora=Die Bärin\r\n*Schatz=Gold\r\n");
  Read();
  EXPECT_EQ(Found({.term = u"RTA"}), (Keys{u"NPC/Berta", u"smiths/Berta"}));
  EXPECT_EQ(Found({.term = u"barin"}), Keys{u"NPC/Dora"});
  EXPECT_EQ(Found({.term = u"bar", .descriptions = false}), Keys());
  EXPECT_EQ(Found({.term = u"verl", .names = false, .descriptions = false, .sections = true}),
            Keys{u"verloren/*Schatz"});
  EXPECT_EQ(Found({.term = u"rta", .exact = true}), Keys());
  EXPECT_EQ(Found({.term = u"Dor", .exact = true}), Keys{u"NPC/Dora"});
  EXPECT_EQ(Found({.term = u"Bär", .exact = true}), Keys{u"NPC/Dora"});
  EXPECT_EQ(Found({.term = u"Gold", .exact = true}), Keys());
}

TEST(Excerpt, IsThePartOfTheDescriptionAroundTheTerm) {
  EXPECT_EQ(Share::Excerpt(u"Kurz\nund gut", u"gut"), u"Kurz und gut");
  const Text words = Texts::Join(Text(40, u'ß'), u" eins zwei drei vier fünf sechs sieben Bärin ",
                                 Text(60, u'x'), u" Ende");
  EXPECT_EQ(Share::Excerpt(words, u"barin"), u"…drei vier fünf sechs sieben Bärin…");
}
