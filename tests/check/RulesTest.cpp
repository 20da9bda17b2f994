#include "check/Told.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

// Each kind of mistake: a file that has it, and one that only looks like it.

namespace {

constexpr const char* Same = "same";

struct Case {
  std::string rule;
  std::string broken;
  // What the result tells, or a part of it.
  std::string result;
  std::string innocent = {};
  // The file once it is mended; "" where only its author can, Same if it is the innocent one then.
  std::string mended = {};
  std::string file = "arvenna.data";
};

std::string Utf16(const std::string& text) {
  std::string bytes = "\xFF\xFE";
  for (const char byte : text)
    bytes += std::string{byte, '\0'};
  return bytes;
}

std::string Ini(const std::string& lines) {
  return "[special]\nNoExtras=yes\nPlayMusic=no\n" + lines;
}

std::string Markers(int count) {
  std::string lines = "[smiths]\n";
  for (int i = 0; i < count; ++i)
    lines += "S" + std::to_string(i) + "=" + std::to_string(i) + ",7\n";
  return lines;
}

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"W01", "", "names it and ends", "[NPC]", "", "sarrakh.data"},
      {"W02", "nonsense", "no markers", "1024x768", "", "arvenna.jpg"},
      {"W03", "1920x1080", "stretched", "1365x1024", "", "arvenna.jpg"},
      {"W04", "[NPC]\n", "depends on the system", "", "", "Arvenna.DATA"},
      {"W05", Ini("NoLnag=no\n"), "ignored", Ini("nolang=no\n"), Ini("NoLang=no\n"), "orvalis.ini"},
      {"W06", Ini("NoLang=1\n"), "choice of the language", Ini("NoLang=0\n"), Ini("NoLang=yes\n"),
       "orvalis.ini"},
      {"W07", Ini("[folders]\npics=Bilder\n"), "portraits", Ini("[folders]\npics=\n"), "",
       "orvalis.ini"},
      {"W08", "[special]\nNoExtras=yes\nPlayMusic=yes\n", "bell sounds", Ini(""), "",
       "orvalis.ini"},
      {"W09", Ini("[general]\nlanguage=Latein\n"), "stays German",
       Ini("[general]\nlanguage=Deutsch\n"), "", "orvalis.ini"},
      {"W10", "[general]\nlanguage=Bavarian\n", "Bavarian", "[general]\nlanguage=Deutsch\n", "",
       "LANG/deutsch/deutsch.lng"},
      {"F01", "[NPC]\nH\xC3\xA4ndler=1,2\nAlrik=3,4\n", "\"Händler\" is shown as \"HÃ¤ndler\"",
       "[NPC]\nH\xE4ndler=1,2\nAlrik=3,4\n", Same},
      {"F02", "[NPC]\n\xC4\x8C\x61p=1,2\nAlrik=3,4\n", "shown as",
       "[NPC]\n\xC4\x63p=1,2\nAlrik=3,4\n"},
      {"F03", Utf16("[NPC]\nAlrik=1,2\n"), "no section", "[NPC]\nAlrik=1,2\n", Same},
      {"F04", "\xEF\xBB\xBF[NPC]\nAlrik=1,2\n", "skipped", "[NPC]\nAlrik=1,2\n", Same},
      {"F05", "[NPC]\nAlrik=1,2\nX\x81=3,4\n", "control character",
       "[NPC]\nAlrik=1,2\nX\x80=3,4\n"},
      {"F06", "Cuno=3,4\n[NPC]\nAlrik=1,2\n", "never read", "# Persons\n[NPC]\nAlrik=1,2\n"},
      {"F07", "[smiths]\nAlrik 512,300\n", "marker stands at 0,0, the search shows it at 0,0",
       "[smiths]\nAlrik=512,300\n", Same},
      {"F08", "[smiths]\nAlrik=1,2\n# The grove\n", "marker stands at 0,0",
       "# The grove\n[smiths]\nAlrik=1,2\n"},
      {"F09", "[smiths]\nAlrik=1,2\n; herbs\n", "81 markers", "[smiths]\nAlrik=1,2\n;Cuno=3,4\n"},
      {"F10", "[smiths]\nAlrik=5,6,* ; mill\n", "not highlighted", "[smiths]\nAlrik=5,6,*\n", Same},
      {"F11", "[info]\nAlrik=" + std::string(2050, 'x') + "\n", "last 3",
       "[info]\nAlrik=" + std::string(2047, 'x') + "\n", "", "info.data"},
      {"F12", "[smiths]\nAlrik=\n", "stands at 0,0", "[smiths]\nAlrik=\"1,2\"\n"},
      {"F13", "[smiths]\nAlrik\t=5,6\n", "marker stands at 0,0", "[smiths]\nAlrik =\t5,6\n",
       "[smiths]\nAlrik =5,6\n"},
      {"F14", "[smiths]\n\"Alrik\"=1,2\n", "with its quotes", "[smiths]\nAlrik=\"1,2\"\n",
       "[smiths]\nAlrik=1,2\n"},
      {"F15", "[smiths]\nAlrik=5,\xA0\x36\n", "marker stands at 5,0, the search shows it at 5,0",
       "[smiths]\nAlrik=5, 6\n", Same},
      {"F16", "[smiths]\nAlrik=5,6\n=7,8\n", "7,8", "[smiths]\nAlrik=5,6\n"},
      {"F17", "[info]\nAlrik=One\nalrik=Two\n", "first of the two",
       "[info]\nAlrik=One\nBerta=Two\n", "[info]\nAlrik=One\n", "info.data"},
      {"S01", "[Teachers]\nAlrik=1,2\nCuno=3,4\n",
       "category \"teachers\" is empty, the search finds its 2 entities", "[teachers]\nAlrik=1,2\n",
       "[teachers]\nAlrik=1,2\nCuno=3,4\n"},
      {"S02", "[NPC]\nAlrik=1,2\n[smiths ]\nCuno=3,4\n", "search finds nothing of it",
       "[NPC]\nAlrik=1,2\n[smiths]\nCuno=3,4\n", Same},
      {"S03", "[hunters]\nAlrik=1,2\n  [smiths]\nCuno=3,4\n",
       "1 entity is shown in category \"hunters\" at 0,0", "  [hunters]\nAlrik=1,2\n",
       "[hunters]\nAlrik=1,2\n[smiths]\nCuno=3,4\n"},
      {"S04", "[smiths]\nAlrik=1,2\n[smiths]\nCuno=3,4\n", "the 1 of the first one twice",
       "[smiths]\nAlrik=1,2\n[hunters]\nCuno=3,4\n", "[smiths]\nAlrik=1,2\nCuno=3,4\n"},
      {"S05", "[npc]\nCuno=3,4\n[NPC]\nAlrik=1,2\n", "they stand at 0,0", "[NPC]\nAlrik=1,2\n",
       "[NPC]\nCuno=3,4\nAlrik=1,2\n"},
      {"S06", "[techers]\nAlrik=1,2\n", "search finds its 1 entity", "[teachers]\nAlrik=1,2\n",
       Same},
      {"S07", "[NPC]\nAlrik=1,2\n[undead]\nCuno=3,4\n", "no menu shows it",
       "[NPC]\nAlrik=1,2\n[perk alchemy]\nCuno=3,4\n"},
      {"S09", Markers(82), "the first is \"S81\"", Markers(81)},
      {"S10", "[perk Acrobatics]\nAlrik=1,2\n", "not listed", "[perk acrobatics]\nAlrik=1,2\n",
       Same},
      {"P01", "[NPC]\nAlrik=left,top\n",
       "picked from the list it shows nothing, the search shows it at 0,0",
       "[NPC]\nAlrik= 1 , 2 \n"},
      {"P02", "[smiths]\nAlrik=512;300\n", "marker stands at 512,512", "[smiths]\nAlrik=512,300\n",
       Same},
      {"P03", "[smiths]\nAlrik=512,5,300\n", "stands at 512,5", "[smiths]\nAlrik=512,5,*\n",
       "[smiths]\nAlrik=512,300\n"},
      {"P04", "[smiths]\nAlrik=512.5,300\n", "stands at 512,300", "[smiths]\nAlrik=512,300\n",
       Same},
      {"P05", "[smiths]\nAlrik=512,\n", "stands at 512,0", "[smiths]\nAlrik=512,0\n"},
      {"P06", "[smiths]\nAlrik=512px,300px\n",
       "marker stands at 512,300, the search shows it at 0,0", "[smiths]\nAlrik=512,300,*\n",
       "[smiths]\nAlrik=512,300\n"},
      {"P07", "[smiths]\nAlrik=1100,300\n", "stands at 1100,300", "[smiths]\nAlrik=1024,768\n"},
      {"P08", "[smiths]\nA=1400,300\nB=2000,1500\nC=1200,800\n", "3 markers lie outside",
       "[smiths]\nA=700,150\nB=1000,750\nC=600,400\n", Same},
      {"P09", "[smiths]\nAlrik=0,0\n", "stands at 0,0", "[smiths]\nAlrik=0,1\n"},
      {"P10", "[smiths]\nAlrik=5,6,+\n", "stands at 5,6", "[smiths]\nAlrik=5,6,\n",
       "[smiths]\nAlrik=5,6,*\n"},
      {"P11", "[smiths]\nAlrik=1,2\nAlrik=3,4\n", "marker stands at 1,2",
       "[smiths]\nAlrik=1,2\n;Alrik=3,4\n", "[smiths]\nAlrik=1,2\n"},
      {"P12", "[smiths]\nHaus = Hof=1,2\n", "stands at 0,2", "[smiths]\nHaus=1,2\n"},
      {"P13", "[smiths]\nAlrik=1,2\nCuno=1,2\n", "can't be pointed at",
       "[NPC]\nAlrik=1,2\nCuno=1,2\n"},
      {"P14", "[NPC]\nAlrik=1,2\n[smiths]\nAlrik=3,4\n", "stands at 3,4",
       "[NPC]\nAlrik=1,2\n[smiths]\nAlrik=#,NPC\n"},
      {"P15", "[NPC]\nalrik=1,2\n", "one of the two", "[NPC]\nAlrik=1,2\n", Same, "skaldor.data"},
      {"L01", "[NPC]\nAlrik=#,smiths\n[smiths]\nCuno=1,2\n", "search ends the program",
       "[NPC]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n"},
      {"L02", "[NPC]\nAlrik=#,smiths\n[smiths]\n;Alrik=1,2\n", "search ends the program",
       "[NPC]\n;Alrik=#,smiths\n[smiths]\n;Alrik=1,2\n"},
      {"L03", "[NPC]\nAlrik=#,hunters\n[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n",
       "shows nothing", "[NPC]\nAlrik=#,smiths\n[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n",
       Same},
      {"L04", "[hunters]\nAlrik=#smiths\n[smiths]\nAlrik=1,2\n", "marker stands at 0,0",
       "[hunters]\nAlrik= # , smiths\n[smiths]\nAlrik=1,2\n",
       "[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n"},
      {"I01", "[info]\nAlrk=He waits.\n", "never shown", "[info]\nAlrik=#x\nX=He waits.\n",
       "[info]\nAlrik=He waits.\n", "info.data"},
      {"I02", "[info]\nWolf=He.\n", "no description", "[info]\n*Wolf=He.\n", Same, "info.data"},
      {"I03", "[info]\nAlrik=#Bert\nBerta=She.\n", "#Bert...", "[info]\nAlrik=#Berta\nBerta=She.\n",
       Same, "info.data"},
      {"I04", "[info]\nAlrik=#Berta\nBerta=#Baldrun\nBaldrun=He.\n", "\"#Baldrun\" is shown",
       "[info]\nAlrik=#Baldrun\nBerta=#Baldrun\nBaldrun=He.\n", Same, "info.data"},
      {"I05", "[info]\nAlrik=He\nwaits.\n", "ends in the line above", "[info]\nAlrik=He\\nwaits.\n",
       Same, "info.data"},
      {"I06", "[infos]\nAlrik=He.\n", "no entity", "[Info]\nAlrik=He.\n", "", "info.data"},
      {"I08", "[info]\nAlrik=He\n[who] waits.\nBerta=She.\n", "1 line below",
       "[info]\nAlrik=He\\n[who] waits.\n", "[info]\nAlrik=He\\n[who] waits.\nBerta=She.\n",
       "info.data"},
      {"I09", "[info]\nAlrik=\"Halt!\", said he. \"Go!\"\n", "begins Halt!\"",
       "[info]\nAlrik=\"\"Halt!\", said he. \"Go!\"\"\n", Same, "info.data"},
      {"G01", "[pics]\nAlrik=none.jpg\n", "placeholder", "[pics]\nAlrik=\n", "", "PICS/pic.ini"},
      {"G02", "[pics]\nNobody=../arvenna.jpg\n", "", "[pics]\nAlrik=\n", "", "PICS/pic.ini"},
      {"G03", "[pic]\nAlrik=x.jpg\n", "placeholder", "[Pics]\nAlrik=\n", "", "PICS/pic.ini"},
      {"T01", "[menus]\nmnuFile=File\n", "listed as \"?\"", Lng(""), "", LanguageFile},
      {"T02", "[general]\nlanguage=Deutsch\n", "nothing is translated", Lng(""), "", LanguageFile},
      {"T04", Lng("[Entities]\nAlrik=Al\n"), "1 line", Lng("[entities]\nAlrik=Al\n"), Same,
       LanguageFile},
      {"T07", Lng("[menus]\nmiArvenaTeachers=x\n"), "never read",
       Lng("[Menus]\nMIARVENNATEACHERS=x\n"), Lng("[menus]\nmiArvennaTeachers=x\n"), LanguageFile},
      {"T08", Lng("[ui]\nFileNotFound=Lost\n"), "which file", Lng("[ui]\nFileNotFound=Lost %s\n"),
       "", LanguageFile},
      {"T09", Lng("website=http://www.x.example\n"), "http://http://www",
       Lng("website=www.x.example\n"), Same, LanguageFile},
      {"T10", Lng("[ui]\nHighlighted=lit \n"), "\"lit\"", Lng("[ui]\nHighlighted = lit\n"),
       Lng("[ui]\nHighlighted=\"lit \"\n"), LanguageFile},
      {"T11", Lng("[menus]\nmnuFile=File\n"), "no Alt key", Lng("[menus]\nmnuFile=&File\n"), "",
       LanguageFile},
      {"T12", Lng("[entities]\nAl=El\nAlrik=Ulric\nBaldrun=Zed\nBerta=C\n"),
       "\"Elrik\" instead of \"Ulric\"",
       Lng("[entities]\nAlrik=Ulric\nAl=El\nBaldrun=Zed\nBerta=C\n"), Same, LanguageFile},
      {"T13", Lng("[entities]\nAlrik=Zed\nBaldrun=Zed\nBerta=C\n"), "\"Baldrun\" can't be picked",
       Lng("[entities]\nAlrik=A\nBaldrun=Zed\nBerta=C\n"), "", LanguageFile},
      {"T14", Lng("[entities]\nBaldrun=Zed\nTor nach Sarrakh=Zed\n"),
       "\"Tor nach Sarrakh\" can't be picked", Lng("[entities]\nBaldrun=Zed\nAlrik=Zed\n"), "",
       LanguageFile},
      {"T15", Lng("[entities]\nAlrk=Al\nBaldrun=Zed\n"), "never used",
       Lng("[entities]\nAlri=Al\nArvenna=A\n"), Lng("[entities]\nAlrik=Al\nBaldrun=Zed\n"),
       LanguageFile},
      {"T16", Lng("[entities]\nSarrakh=Desert\nTor nach Sarrakh=Gate\n"),
       "\"Tor nach Sarrakh\" is shown as \"Tor nach Desert\"",
       Lng("[entities]\nSarrakh=Desert\nTor nach Desert=Gate\n"), Same, LanguageFile},
      {"T18", Lng("[entities]\nB\xE4r=Bear\n"), "Bear im Bearental",
       Lng("[entities]\nB\xE4r im B\xE4rental=Bear\n"), "", LanguageFile},
      {"T17", Lng("[entities]\nAl=\nBaldrun=Zed\n"), "is shown as \"rik\"",
       Lng("[entities]\nAlrik=\nBaldrun=Zed\n"), "", LanguageFile},
  };
  return cases;
}

// The same mistakes elsewhere, where whoever plays gets something else of them.
const std::vector<Case>& Others() {
  static const std::string listed =
      "picked from the list it shows nothing, the search shows it at ";
  static const std::vector<Case> others = {
      {"W01", "", "skaldor.jpg: the program names it", "", "", "skaldor.jpg"},
      {"W02", "nonsense", "built-in picture", "", "", "overview.jpg"},
      {"W10", "[general]\nlanguage=Swabian\n", "Swabian", "", "", "LANG/DEUTSCH/DEUTSCH.lng"},
      {"F01", "[NPC]\n\xC3\x9Cnal=1,2\nAlrik=3,4\n", "\"Ünal\" is shown as \"Ãœnal\""},
      {"F02", "[NPC]\nGy\xC5\x91r=1,2\nAlrik=3,4\n", "shown as \"GyÅ‘r\""},
      {"F03", Utf16("[NPC]\nAlrik=1,2\n"), "skaldor.data: no", "", "", "skaldor.data"},
      {"F07", "[NPC]\nAlrik 512,300\n", listed + "0,0"},
      {"F08", "[NPC]\nAlrik=1,2\n# The grove\n", listed + "0,0"},
      {"F10", "[NPC]\nAlrik=5,6 ; mill\n", listed + "5,0"},
      {"F12", "[NPC]\nAlrik=\n", listed + "0,0"},
      {"F13", "[NPC]\nAlrik\t=5,6\n", listed + "0,0"},
      {"F15", "[NPC]\nAlrik=\xA0\x37,6\n", listed + "0,6"},
      {"S01", "[Smiths]\nAlrik=1,2\n",
       "category \"smiths\" is empty, the search finds its 1 entity"},
      {"S02", "[hunters] ; all\nAlrik=1,2\nCuno=3,4\n",
       "category \"hunters\" is empty, the search finds nothing of it; 2 entities below it"},
      {"S03", "[NPC]\nAlrik=1,2\n [smiths]\nCuno=3,4\nOdo=5,6\n",
       "its 2 entities are shown in category \"NPC\""},
      {"S04", "[smiths]\nAlrik=1,2\nOdo=5,6\n[smiths]\nCuno=3,4\n", "the 2 of the first one twice"},
      {"S05", "[NPC]\nAlrik=1,2\n[npc]\nCuno=3,4\n", "the search finds its 1 entity at 0,0"},
      {"S09", Markers(85), "4 lines have no marker"},
      {"S10", "[perk alchmy]\nAlrik=1,2\nCuno=3,4\n", "finds its 2 entities"},
      {"P01", "[smiths]\nAlrik=5,top\n", "the marker stands at 5,0"},
      {"P02", "[NPC]\nAlrik=7 8\n", listed + "0,0"},
      {"P03", "[smiths]\nAlrik=70,25,300\n", "the marker stands at 70,25"},
      {"P05", "[smiths]\nAlrik=,300\n", "the marker stands at 0,300"},
      {"P06", "[NPC]\nAlrik=7px,8\n", listed + "0,8"},
      {"P07", "[smiths]\nAlrik=-5,10\n", "the marker stands at -5,10"},
      {"P08", "[hunters]\nA=1400,300\nB=2000,1500\nC=1200,8\nD=1100,5\n", "4 markers lie outside"},
      {"P12", "[smiths]\nHaus = Hof=1,9\n", "the marker stands at 0,9"},
      {"L01", "[smiths]\n*Cuno=#,NPC\n[NPC]\nAlrik=1,2\n",
       "arvenna.data: the marker stands at 0,0\n"},
      {"L02", "[smiths]\n*Wolf=#,NPC\n[NPC]\n;*Wolf=1,2\n",
       "arvenna.data: the marker stands at 0,0\n"},
      {"L03", "[hunters]\nAlrik=#,hunters\n",
       "the marker stands at 0,0, the search shows it at 0,0"},
      {"L04", "[NPC]\nAlrik=#;smiths\n[smiths]\nAlrik=1,2\n", listed + "0,0"},
      {"I06", "[infos]\nAlrik=He.\nBerta=She.\n", "2 lines never read", "", "", "info.data"},
      {"G03", "[pic]\nAlrik=x.jpg\nBerta=\n", "2 lines never read", "", "", "PICS/pic.ini"},
      {"I08", "[info]\nAlrik=He\n[who] waits.\nBerta=x\nWolf=y\n", "2 lines below", "", "",
       "info.data"},
      {"T01", "x", "LANG/notes.txt: listed as", "", "", "LANG/notes.txt"},
      {"T02", "[general]\nlanguage=Deutsch\n", "LANG/M/M.lng: nothing", "", "", "LANG/M/M.lng"},
      {"T04", Lng("[Entities]\nAlrik=Al\nBaldrun=Zed\n"), "2 lines translates", "", "",
       LanguageFile},
      {"T12", Lng("[entities]\nBal=Cal\nBaldrun=Zed\n"), "\"Caldrun\" instead of \"Zed\"", "", "",
       LanguageFile},
      {"T13", Lng("[entities]\nAlrik=Zed\nBerta=Zed\n"), "\"Berta\" can't be picked", "", "",
       LanguageFile},
      {"T14", Lng("[entities]\n*Wolf=Zed\nBaldrun=Zed\n"), "\"Baldrun\" can't be picked", "", "",
       LanguageFile},
      {"T16", Lng("[entities]\nSarrakh=Sand\nTor nach Sarrakh=Gate\n"), "\"Tor nach Sand\"", "", "",
       LanguageFile},
      {"T17", Lng("[entities]\nBald=\nAlrik=Zed\n"), "shown as \"run\"", "", "", LanguageFile},
  };
  return others;
}

bool IsSafe(const std::string& rule) {
  const auto fixing = Rules::Find(NativePath::FromBytes(rule))->fixing;
  return fixing == Rules::Fixing::Safe || fixing == Rules::Fixing::Proved;
}

}  // namespace

class Kinds : public testing::TestWithParam<Case> {};

TEST_P(Kinds, AreToldOnceAndOnlyWhereTheyAre) {
  const Case& test = GetParam();
  CheckedWorld world;
  world.Write(test.file, test.broken);
  const Told told = Tell(world, test.rule);
  EXPECT_EQ(told.rules, std::set<std::string>{test.rule});
  EXPECT_NE(told.results.find(test.result), std::string::npos) << told.results;
  world.Mend(!IsSafe(test.rule));
  const std::string& mended = test.mended == Same ? test.innocent : test.mended;
  EXPECT_EQ(world.Read(test.file), mended.empty() ? test.broken : mended);

  CheckedWorld sound;
  if (!test.innocent.empty())
    sound.Write(test.file, test.innocent);
  EXPECT_FALSE(Tell(sound, test.rule).rules.contains(test.rule));
}

INSTANTIATE_TEST_SUITE_P(All, Kinds, testing::ValuesIn(Cases()),
                         [](const auto& one) { return one.param.rule; });

class Results : public testing::TestWithParam<Case> {};

TEST_P(Results, AreThoseOfTheWorldAtHand) {
  const Case& test = GetParam();
  const auto resultsOf = [&test](const Case& one) {
    const CheckedWorld world;
    world.Write(one.file, one.broken);
    const Told told = Tell(world, test.rule);
    EXPECT_EQ(told.rules, std::set<std::string>{test.rule});
    return told.results;
  };
  const auto first = std::ranges::find(Cases(), test.rule, &Case::rule);
  EXPECT_EQ(resultsOf(*first).find(test.result), std::string::npos);
  const std::string results = resultsOf(test);
  EXPECT_NE(results.find(test.result), std::string::npos) << results;
}

INSTANTIATE_TEST_SUITE_P(All, Results, testing::ValuesIn(Others()),
                         [](const auto& one) { return one.param.rule; });
