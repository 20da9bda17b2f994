#include "check/Told.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

// Each kind of mistake: a file that has it, and one that only looks like it.

namespace {

struct Case {
  std::string rule;
  std::string file;
  std::string broken;
  std::string innocent;
  // What the result tells, or a part of it.
  std::string result;
  // The file once it is mended; "" where only its author can.
  std::string mended = {};
};

std::string Utf16(const std::string& text) {
  std::string bytes = "\xFF\xFE";
  for (const char byte : text)
    bytes += std::string{byte, '\0'};
  return bytes;
}

std::string Markers(int count) {
  std::string lines = "[smiths]\n";
  for (int i = 0; i < count; ++i)
    lines += "S" + std::to_string(i) + "=" + std::to_string(i) + ",7\n";
  return lines;
}

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"W01", "sarrakh.data", "", "[NPC]", "names it and ends"},
      {"W02", "arvenna.jpg", "nonsense", "1024x768", "no markers"},
      {"W03", "arvenna.jpg", "1920x1080", "1365x1024", "stretched"},
      {"W04", "Arvenna.DATA", "[NPC]\n", "", "depends on the system"},
      {"W05", "orvalis.ini", "[special]\nNoExtras=yes\nPlayMusic=no\nNoLnag=no\n",
       "[special]\nNoExtras=yes\nPlayMusic=no\nnolang=no\n", "ignored",
       "[special]\nNoExtras=yes\nPlayMusic=no\nNoLang=no\n"},
      {"W06", "orvalis.ini", "[special]\nNoExtras=yes\nPlayMusic=no\nNoLang=1\n",
       "[special]\nNoExtras=yes\nPlayMusic=no\nNoLang=0\n", "choice of the language",
       "[special]\nNoExtras=yes\nPlayMusic=no\nNoLang=yes\n"},
      {"W07", "orvalis.ini", "[special]\nNoExtras=yes\nPlayMusic=no\n[folders]\npics=Bilder\n",
       "[special]\nNoExtras=yes\nPlayMusic=no\n[folders]\npics=\n", "portraits"},
      {"W08", "orvalis.ini", "[special]\nNoExtras=yes\nPlayMusic=yes\n",
       "[special]\nNoExtras=yes\nPlayMusic=no\n", "bell sounds"},
      {"W09", "orvalis.ini", "[special]\nNoExtras=yes\nPlayMusic=no\n[general]\nlanguage=Latein\n",
       "[special]\nNoExtras=yes\nPlayMusic=no\n[general]\nlanguage=Deutsch\n", "stays German"},
      {"W10", "LANG/deutsch/deutsch.lng", "[general]\nlanguage=Bavarian\n",
       "[general]\nlanguage=Deutsch\n", "Bavarian"},
      {"F01", "arvenna.data", "[NPC]\nH\xC3\xA4ndler=1,2\nAlrik=3,4\n",
       "[NPC]\nH\xE4ndler=1,2\nAlrik=3,4\n", "\"Händler\" is shown as \"HÃ¤ndler\"",
       "[NPC]\nH\xE4ndler=1,2\nAlrik=3,4\n"},
      {"F02", "arvenna.data", "[NPC]\n\xC4\x8C\x61p=1,2\nAlrik=3,4\n",
       "[NPC]\n\xC4\x63p=1,2\nAlrik=3,4\n", "shown as"},
      {"F03", "arvenna.data", Utf16("[NPC]\nAlrik=1,2\n"), "[NPC]\nAlrik=1,2\n", "no section",
       "[NPC]\nAlrik=1,2\n"},
      {"F04", "arvenna.data", "\xEF\xBB\xBF[NPC]\nAlrik=1,2\n", "[NPC]\nAlrik=1,2\n", "skipped",
       "[NPC]\nAlrik=1,2\n"},
      {"F05", "arvenna.data", "[NPC]\nAlrik=1,2\nX\x81=3,4\n", "[NPC]\nAlrik=1,2\nX\x80=3,4\n",
       "control character"},
      {"F06", "arvenna.data", "Cuno=3,4\n[NPC]\nAlrik=1,2\n", "# Persons\n[NPC]\nAlrik=1,2\n",
       "never read"},
      {"F07", "arvenna.data", "[smiths]\nAlrik 512,300\n", "[smiths]\nAlrik=512,300\n",
       "marker stands at 0,0, the search shows it at 0,0", "[smiths]\nAlrik=512,300\n"},
      {"F08", "arvenna.data", "[smiths]\nAlrik=1,2\n# The grove\n",
       "# The grove\n[smiths]\nAlrik=1,2\n", "marker stands at 0,0"},
      {"F09", "arvenna.data", "[smiths]\nAlrik=1,2\n; herbs\n", "[smiths]\nAlrik=1,2\n;Cuno=3,4\n",
       "81 markers"},
      {"F10", "arvenna.data", "[smiths]\nAlrik=5,6,* ; mill\n", "[smiths]\nAlrik=5,6,*\n",
       "not highlighted", "[smiths]\nAlrik=5,6,*\n"},
      {"F11", "info.data", "[info]\nAlrik=" + std::string(2050, 'x') + "\n",
       "[info]\nAlrik=" + std::string(2047, 'x') + "\n", "last 3"},
      {"F12", "arvenna.data", "[smiths]\nAlrik=\n", "[smiths]\nAlrik=\"1,2\"\n", "stands at 0,0"},
      {"F13", "arvenna.data", "[smiths]\nAlrik\t=5,6\n", "[smiths]\nAlrik =\t5,6\n",
       "marker stands at 0,0", "[smiths]\nAlrik =5,6\n"},
      {"F14", "arvenna.data", "[smiths]\n\"Alrik\"=1,2\n", "[smiths]\nAlrik=\"1,2\"\n",
       "with its quotes", "[smiths]\nAlrik=1,2\n"},
      {"F15", "arvenna.data",
       "[smiths]\nAlrik=5,\xA0"
       "6\n",
       "[smiths]\nAlrik=5, 6\n", "marker stands at 5,0, the search shows it at 5,0",
       "[smiths]\nAlrik=5, 6\n"},
      {"F16", "arvenna.data", "[smiths]\nAlrik=5,6\n=7,8\n", "[smiths]\nAlrik=5,6\n", "7,8"},
      {"F17", "info.data", "[info]\nAlrik=One\nalrik=Two\n", "[info]\nAlrik=One\nBerta=Two\n",
       "first of the two", "[info]\nAlrik=One\n"},
      {"S01", "arvenna.data", "[Teachers]\nAlrik=1,2\nCuno=3,4\n", "[teachers]\nAlrik=1,2\n",
       "category \"teachers\" is empty, the search finds its 2 entities",
       "[teachers]\nAlrik=1,2\nCuno=3,4\n"},
      {"S02", "arvenna.data", "[NPC]\nAlrik=1,2\n[smiths ]\nCuno=3,4\n",
       "[NPC]\nAlrik=1,2\n[smiths]\nCuno=3,4\n", "search finds nothing of it",
       "[NPC]\nAlrik=1,2\n[smiths]\nCuno=3,4\n"},
      {"S03", "arvenna.data", "[hunters]\nAlrik=1,2\n  [smiths]\nCuno=3,4\n",
       "  [hunters]\nAlrik=1,2\n", "1 entity is shown in category \"hunters\" at 0,0",
       "[hunters]\nAlrik=1,2\n[smiths]\nCuno=3,4\n"},
      {"S04", "arvenna.data", "[smiths]\nAlrik=1,2\n[smiths]\nCuno=3,4\n",
       "[smiths]\nAlrik=1,2\n[hunters]\nCuno=3,4\n", "the 1 of the first one twice",
       "[smiths]\nAlrik=1,2\nCuno=3,4\n"},
      {"S05", "arvenna.data", "[npc]\nCuno=3,4\n[NPC]\nAlrik=1,2\n", "[NPC]\nAlrik=1,2\n",
       "they stand at 0,0", "[NPC]\nCuno=3,4\nAlrik=1,2\n"},
      {"S06", "arvenna.data", "[techers]\nAlrik=1,2\n", "[teachers]\nAlrik=1,2\n",
       "search finds its 1 entity", "[teachers]\nAlrik=1,2\n"},
      {"S07", "arvenna.data", "[NPC]\nAlrik=1,2\n[undead]\nCuno=3,4\n",
       "[NPC]\nAlrik=1,2\n[perk alchemy]\nCuno=3,4\n", "no menu shows it"},
      {"S09", "arvenna.data", Markers(82), Markers(81), "the first is \"S81\""},
      {"S10", "arvenna.data", "[perk Acrobatics]\nAlrik=1,2\n", "[perk acrobatics]\nAlrik=1,2\n",
       "not listed", "[perk acrobatics]\nAlrik=1,2\n"},
      {"P01", "arvenna.data", "[NPC]\nAlrik=left,top\n", "[NPC]\nAlrik= 1 , 2 \n",
       "picked from the list it shows nothing, the search shows it at 0,0"},
      {"P02", "arvenna.data", "[smiths]\nAlrik=512;300\n", "[smiths]\nAlrik=512,300\n",
       "marker stands at 512,512", "[smiths]\nAlrik=512,300\n"},
      {"P03", "arvenna.data", "[smiths]\nAlrik=512,5,300\n", "[smiths]\nAlrik=512,5,*\n",
       "stands at 512,5", "[smiths]\nAlrik=512,300\n"},
      {"P04", "arvenna.data", "[smiths]\nAlrik=512.5,300\n", "[smiths]\nAlrik=512,300\n",
       "stands at 512,300", "[smiths]\nAlrik=512,300\n"},
      {"P05", "arvenna.data", "[smiths]\nAlrik=512,\n", "[smiths]\nAlrik=512,0\n",
       "stands at 512,0"},
      {"P06", "arvenna.data", "[smiths]\nAlrik=512px,300px\n", "[smiths]\nAlrik=512,300,*\n",
       "marker stands at 512,300, the search shows it at 0,0", "[smiths]\nAlrik=512,300\n"},
      {"P07", "arvenna.data", "[smiths]\nAlrik=1100,300\n", "[smiths]\nAlrik=1024,768\n",
       "stands at 1100,300"},
      {"P08", "arvenna.data", "[smiths]\nA=1400,300\nB=2000,1500\nC=1200,800\n",
       "[smiths]\nA=700,150\nB=1000,750\nC=600,400\n", "3 markers lie outside",
       "[smiths]\nA=700,150\nB=1000,750\nC=600,400\n"},
      {"P09", "arvenna.data", "[smiths]\nAlrik=0,0\n", "[smiths]\nAlrik=0,1\n", "stands at 0,0"},
      {"P10", "arvenna.data", "[smiths]\nAlrik=5,6,+\n", "[smiths]\nAlrik=5,6,\n", "stands at 5,6",
       "[smiths]\nAlrik=5,6,*\n"},
      {"P11", "arvenna.data", "[smiths]\nAlrik=1,2\nAlrik=3,4\n",
       "[smiths]\nAlrik=1,2\n;Alrik=3,4\n", "marker stands at 1,2", "[smiths]\nAlrik=1,2\n"},
      {"P12", "arvenna.data", "[smiths]\nHaus = Hof=1,2\n", "[smiths]\nHaus=1,2\n",
       "stands at 0,2"},
      {"P13", "arvenna.data", "[smiths]\nAlrik=1,2\nCuno=1,2\n", "[NPC]\nAlrik=1,2\nCuno=1,2\n",
       "can't be pointed at"},
      {"P14", "arvenna.data", "[NPC]\nAlrik=1,2\n[smiths]\nAlrik=3,4\n",
       "[NPC]\nAlrik=1,2\n[smiths]\nAlrik=#,NPC\n", "stands at 3,4"},
      {"P15", "skaldor.data", "[NPC]\nalrik=1,2\n", "[NPC]\nAlrik=1,2\n", "one of the two",
       "[NPC]\nAlrik=1,2\n"},
      {"L01", "arvenna.data", "[NPC]\nAlrik=#,smiths\n[smiths]\nCuno=1,2\n",
       "[NPC]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n", "search ends the program"},
      {"L02", "arvenna.data", "[NPC]\nAlrik=#,smiths\n[smiths]\n;Alrik=1,2\n",
       "[NPC]\n;Alrik=#,smiths\n[smiths]\n;Alrik=1,2\n", "search ends the program"},
      {"L03", "arvenna.data",
       "[NPC]\nAlrik=#,hunters\n[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n",
       "[NPC]\nAlrik=#,smiths\n[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n", "shows nothing",
       "[NPC]\nAlrik=#,smiths\n[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n"},
      {"L04", "arvenna.data", "[hunters]\nAlrik=#smiths\n[smiths]\nAlrik=1,2\n",
       "[hunters]\nAlrik= # , smiths\n[smiths]\nAlrik=1,2\n", "marker stands at 0,0",
       "[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=1,2\n"},
      {"I01", "info.data", "[info]\nAlrk=He waits.\n", "[info]\nAlrik=#x\nX=He waits.\n",
       "never shown", "[info]\nAlrik=He waits.\n"},
      {"I02", "info.data", "[info]\nWolf=He.\n", "[info]\n*Wolf=He.\n", "no description",
       "[info]\n*Wolf=He.\n"},
      {"I03", "info.data", "[info]\nAlrik=#Bert\nBerta=She.\n",
       "[info]\nAlrik=#Berta\nBerta=She.\n", "#Bert...", "[info]\nAlrik=#Berta\nBerta=She.\n"},
      {"I04", "info.data", "[info]\nAlrik=#Berta\nBerta=#Baldrun\nBaldrun=He.\n",
       "[info]\nAlrik=#Baldrun\nBerta=#Baldrun\nBaldrun=He.\n", "\"#Baldrun\" is shown",
       "[info]\nAlrik=#Baldrun\nBerta=#Baldrun\nBaldrun=He.\n"},
      {"I05", "info.data", "[info]\nAlrik=He\nwaits.\n", "[info]\nAlrik=He\\nwaits.\n",
       "ends in the line above", "[info]\nAlrik=He\\nwaits.\n"},
      {"I06", "info.data", "[infos]\nAlrik=He.\n", "[Info]\nAlrik=He.\n", "no entity"},
      {"I08", "info.data", "[info]\nAlrik=He\n[who] waits.\nBerta=She.\n",
       "[info]\nAlrik=He\\n[who] waits.\n", "1 line below",
       "[info]\nAlrik=He\\n[who] waits.\nBerta=She.\n"},
      {"I09", "info.data", "[info]\nAlrik=\"Halt!\", said he. \"Go!\"\n",
       "[info]\nAlrik=\"\"Halt!\", said he. \"Go!\"\"\n", "begins Halt!\"",
       "[info]\nAlrik=\"\"Halt!\", said he. \"Go!\"\"\n"},
      {"G01", "PICS/pic.ini", "[pics]\nAlrik=none.jpg\n", "[pics]\nAlrik=\n", "placeholder"},
      {"G02", "PICS/pic.ini", "[pics]\nNobody=../arvenna.jpg\n", "[pics]\nAlrik=\n", ""},
      {"G03", "PICS/pic.ini", "[pic]\nAlrik=x.jpg\n", "[Pics]\nAlrik=\n", "placeholder"},
      {"T01", LanguageFile, "[menus]\nmnuFile=File\n", Lng(""), "listed as \"?\""},
      {"T02", LanguageFile, "[general]\nlanguage=Deutsch\n", Lng(""), "nothing is translated"},
      {"T04", LanguageFile, Lng("[Entities]\nAlrik=Al\n"), Lng("[entities]\nAlrik=Al\n"), "1 line",
       Lng("[entities]\nAlrik=Al\n")},
      {"T07", LanguageFile, Lng("[menus]\nmiArvenaTeachers=x\n"),
       Lng("[Menus]\nMIARVENNATEACHERS=x\n"), "never read", Lng("[menus]\nmiArvennaTeachers=x\n")},
      {"T08", LanguageFile, Lng("[ui]\nFileNotFound=Lost\n"), Lng("[ui]\nFileNotFound=Lost %s\n"),
       "which file"},
      {"T09", LanguageFile, Lng("website=http://www.x.example\n"), Lng("website=www.x.example\n"),
       "http://http://www", Lng("website=www.x.example\n")},
      {"T10", LanguageFile, Lng("[ui]\nHighlighted=lit \n"), Lng("[ui]\nHighlighted = lit\n"),
       "\"lit\"", Lng("[ui]\nHighlighted=\"lit \"\n")},
      {"T11", LanguageFile, Lng("[menus]\nmnuFile=File\n"), Lng("[menus]\nmnuFile=&File\n"),
       "no Alt key"},
      {"T12", LanguageFile, Lng("[entities]\nAl=El\nAlrik=Ulric\nBaldrun=Zed\nBerta=C\n"),
       Lng("[entities]\nAlrik=Ulric\nAl=El\nBaldrun=Zed\nBerta=C\n"),
       "\"Elrik\" instead of \"Ulric\"",
       Lng("[entities]\nAlrik=Ulric\nAl=El\nBaldrun=Zed\nBerta=C\n")},
      {"T13", LanguageFile, Lng("[entities]\nAlrik=Zed\nBaldrun=Zed\nBerta=C\n"),
       Lng("[entities]\nAlrik=A\nBaldrun=Zed\nBerta=C\n"), "\"Baldrun\" can't be picked"},
      {"T14", LanguageFile, Lng("[entities]\nBaldrun=Zed\nTor nach Sarrakh=Zed\n"),
       Lng("[entities]\nBaldrun=Zed\nAlrik=Zed\n"), "\"Tor nach Sarrakh\" can't be picked"},
      {"T15", LanguageFile, Lng("[entities]\nAlrk=Al\nBaldrun=Zed\n"),
       Lng("[entities]\nAlri=Al\nArvenna=A\n"), "never used",
       Lng("[entities]\nAlrik=Al\nBaldrun=Zed\n")},
      {"T16", LanguageFile, Lng("[entities]\nSarrakh=Desert\nTor nach Sarrakh=Gate\n"),
       Lng("[entities]\nSarrakh=Desert\nTor nach Desert=Gate\n"),
       "\"Tor nach Sarrakh\" is shown as \"Tor nach Desert\"",
       Lng("[entities]\nSarrakh=Desert\nTor nach Desert=Gate\n")},
      {"T18", LanguageFile, Lng("[entities]\nB\xE4r=Bear\n"),
       Lng("[entities]\nB\xE4r im B\xE4rental=Bear\n"), "Bear im Bearental"},
      {"T17", LanguageFile, Lng("[entities]\nAl=\nBaldrun=Zed\n"),
       Lng("[entities]\nAlrik=\nBaldrun=Zed\n"), "is shown as \"rik\""},
  };
  return cases;
}

// The same mistakes elsewhere, where whoever plays gets something else of them.
const std::vector<Case>& Others() {
  static const std::string arvenna = "arvenna.data";
  static const std::string listed =
      "picked from the list it shows nothing, the search shows it at ";
  static const std::vector<Case> others = {
      {"W01", "skaldor.jpg", "", "", "skaldor.jpg: the program names it"},
      {"W02", "overview.jpg", "nonsense", "", "built-in picture"},
      {"W10", "LANG/DEUTSCH/DEUTSCH.lng", "[general]\nlanguage=Swabian\n", "", "Swabian"},
      {"F01", arvenna, "[NPC]\n\xC3\x9Cnal=1,2\nAlrik=3,4\n", "", "\"Ünal\" is shown as \"Ãœnal\""},
      {"F02", arvenna, "[NPC]\nGy\xC5\x91r=1,2\nAlrik=3,4\n", "", "shown as \"GyÅ‘r\""},
      {"F03", "skaldor.data", Utf16("[NPC]\nAlrik=1,2\n"), "", "skaldor.data: no"},
      {"F07", arvenna, "[NPC]\nAlrik 512,300\n", "", listed + "0,0"},
      {"F08", arvenna, "[NPC]\nAlrik=1,2\n# The grove\n", "", listed + "0,0"},
      {"F10", arvenna, "[NPC]\nAlrik=5,6 ; mill\n", "", listed + "5,0"},
      {"F12", arvenna, "[NPC]\nAlrik=\n", "", listed + "0,0"},
      {"F13", arvenna, "[NPC]\nAlrik\t=5,6\n", "", listed + "0,0"},
      {"F15", arvenna, "[NPC]\nAlrik=\xA0\x37,6\n", "", listed + "0,6"},
      {"S01", arvenna, "[Smiths]\nAlrik=1,2\n", "",
       "category \"smiths\" is empty, the search finds its 1 entity"},
      {"S02", arvenna, "[hunters] ; all\nAlrik=1,2\nCuno=3,4\n", "",
       "category \"hunters\" is empty, the search finds nothing of it; 2 entities below it"},
      {"S03", arvenna, "[NPC]\nAlrik=1,2\n [smiths]\nCuno=3,4\nOdo=5,6\n", "",
       "its 2 entities are shown in category \"NPC\""},
      {"S04", arvenna, "[smiths]\nAlrik=1,2\nOdo=5,6\n[smiths]\nCuno=3,4\n", "",
       "the 2 of the first one twice"},
      {"S05", arvenna, "[NPC]\nAlrik=1,2\n[npc]\nCuno=3,4\n", "",
       "the search finds its 1 entity at 0,0"},
      {"S09", arvenna, Markers(85), "", "4 lines have no marker"},
      {"S10", arvenna, "[perk alchmy]\nAlrik=1,2\nCuno=3,4\n", "", "finds its 2 entities"},
      {"P01", arvenna, "[smiths]\nAlrik=5,top\n", "", "the marker stands at 5,0"},
      {"P02", arvenna, "[NPC]\nAlrik=7 8\n", "", listed + "0,0"},
      {"P03", arvenna, "[smiths]\nAlrik=70,25,300\n", "", "the marker stands at 70,25"},
      {"P05", arvenna, "[smiths]\nAlrik=,300\n", "", "the marker stands at 0,300"},
      {"P06", arvenna, "[NPC]\nAlrik=7px,8\n", "", listed + "0,8"},
      {"P07", arvenna, "[smiths]\nAlrik=-5,10\n", "", "the marker stands at -5,10"},
      {"P08", arvenna, "[hunters]\nA=1400,300\nB=2000,1500\nC=1200,8\nD=1100,5\n", "",
       "4 markers lie outside"},
      {"P12", arvenna, "[smiths]\nHaus = Hof=1,9\n", "", "the marker stands at 0,9"},
      {"L01", arvenna, "[smiths]\n*Cuno=#,NPC\n[NPC]\nAlrik=1,2\n", "",
       "arvenna.data: the marker stands at 0,0\n"},
      {"L02", arvenna, "[smiths]\n*Wolf=#,NPC\n[NPC]\n;*Wolf=1,2\n", "",
       "arvenna.data: the marker stands at 0,0\n"},
      {"L03", arvenna, "[hunters]\nAlrik=#,hunters\n", "",
       "the marker stands at 0,0, the search shows it at 0,0"},
      {"L04", arvenna, "[NPC]\nAlrik=#;smiths\n[smiths]\nAlrik=1,2\n", "", listed + "0,0"},
      {"I06", "info.data", "[infos]\nAlrik=He.\nBerta=She.\n", "", "2 lines never read"},
      {"G03", "PICS/pic.ini", "[pic]\nAlrik=x.jpg\nBerta=\n", "", "2 lines never read"},
      {"I08", "info.data", "[info]\nAlrik=He\n[who] waits.\nBerta=x\nWolf=y\n", "",
       "2 lines below"},
      {"T01", "LANG/notes.txt", "x", "", "LANG/notes.txt: listed as"},
      {"T02", "LANG/M/M.lng", "[general]\nlanguage=Deutsch\n", "", "LANG/M/M.lng: nothing"},
      {"T04", LanguageFile, Lng("[Entities]\nAlrik=Al\nBaldrun=Zed\n"), "", "2 lines translates"},
      {"T12", LanguageFile, Lng("[entities]\nBal=Cal\nBaldrun=Zed\n"), "",
       "\"Caldrun\" instead of \"Zed\""},
      {"T13", LanguageFile, Lng("[entities]\nAlrik=Zed\nBerta=Zed\n"), "",
       "\"Berta\" can't be picked"},
      {"T14", LanguageFile, Lng("[entities]\n*Wolf=Zed\nBaldrun=Zed\n"), "",
       "\"Baldrun\" can't be picked"},
      {"T16", LanguageFile, Lng("[entities]\nSarrakh=Sand\nTor nach Sarrakh=Gate\n"), "",
       "\"Tor nach Sand\""},
      {"T17", LanguageFile, Lng("[entities]\nBald=\nAlrik=Zed\n"), "", "shown as \"run\""},
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
  EXPECT_EQ(world.Read(test.file), test.mended.empty() ? test.broken : test.mended);

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
