#include "app/World.h"
#include "auxwin/ExtrasTable.h"
#include "check/Check.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "perks/PerkCatalogue.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"
#include "support/Content.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

// What a map author owes the program, kept by the world that comes with it.

namespace {

const Text WorldFolder = NativePath::FromBytes(ORVALIS_SOURCES "/world/");
const Text LanguageRoot = WorldFolder + u"LANG/";
const Text German = WorldFolder + u"info.data";
const Text Portraits = WorldFolder + u"PICS/pic.ini";
constexpr TextView Languages[] = {LOCAL::German, u"English", u"Français"};
constexpr std::span Translations(Languages + 1, 2);
constexpr TextView PlantSections[] = {u"dragonroots", u"goblinberries", u"kings sorrels"};
// A run of this many words in two descriptions reads as if one had been copied, unless it holds
// the name of an entity.
constexpr size_t CopiedRun = 6;
constexpr TextView NameSign = u"¤";
// Begins names that are put together from this word and another entry.
constexpr TextView Temple = u"Tempel von";

// What is told of a person, in their name or in their description, and the mark that the name of
// their portrait then has.
struct Look {
  std::regex told;
  std::regex mark;
  bool onlyIfTold;
};

const Look Looks[] = {
    {std::regex("^(Hirtenjunge|Laufjunge|Novizin?|Verirrter Novize) |ist vierzehn"),
     std::regex("-young[-.]"), false},
    {std::regex("^(Alter|Dorfälteste|Dorfältester) | der Alte=|ist so alt, |vierzig Jahre gehütet"),
     std::regex("-old[-.]"), false},
    {std::regex("bart="), std::regex("-beard[-.]"), false},
    {std::regex(" Narbe=| Schorf="), std::regex("-scar[-.]"), true},
    {std::regex("hat nur ein Auge"), std::regex("-patch[-.]"), true},
    {std::regex("Einohr="), std::regex("-oneear[-.]"), true},
    {std::regex("trägt seit zwei Jahren denselben Hut"), std::regex("-hat[-.]"), true}};

constexpr auto* Bytes = &NativePath::ToBytes;

std::string PageOf(TextView folder, TextView document) {
  const Text path = Texts::Join(folder, document.substr(0, document.rfind(u'.')), u".html");
  return ContentOf(Bytes(path));
}

bool IsLetter(char16_t unit) {
  const bool ascii = unit < 0x80 && std::isalnum(unit) != 0;
  return ascii || (unit >= u'À' && unit < u'\u2000') || unit == NameSign.front();
}

// Every run of words without a name in the text, in lower case.
std::set<Text> RunsOf(TextView text) {
  std::vector<Text> words(1);
  for (const char16_t unit : Texts::Lower(Texts::ReplaceAll(text, u"\\n", u" ")))
    if (IsLetter(unit))
      words.back() += unit;
    else if (!words.back().empty())
      words.emplace_back();
  if (words.back().empty())
    words.pop_back();

  std::set<Text> runs;
  for (size_t first = 0; first + CopiedRun <= words.size(); ++first) {
    Text run;
    for (size_t word = first; word < first + CopiedRun; ++word)
      run += Texts::Join(u" ", words[word]);
    if (run.find(NameSign) == Text::npos)
      runs.insert(run);
  }
  return runs;
}

// What stands in the second column of a page's tables, each text once.
std::set<std::string> SecondColumn(const std::string& page) {
  static const std::regex Row("\n<tr><td valign=\"top\">.*?</td><td valign=\"top\">([^<]+)</td>");
  std::set<std::string> cells;
  for (std::sregex_iterator row(page.begin(), page.end(), Row), end; row != end; ++row)
    cells.insert((*row)[1]);
  return cells;
}

struct Line {
  Text section, key;
};

class WorldTest : public testing::Test {
 protected:
  WorldTest() {
    for (const auto& region : world.paths.regions)
      for (const Text& section : files.IniSectionNames(region.data))
        for (const Text& key : files.IniReadFile(region.data, section))
          if (!EntityFile::IsDisabled(Windows1252::Encode(key).value())) {
            lines.push_back({section, key});
            names.insert(key);
          }
  }

  void Speak(TextView folder) {
    language.Start(files, Text(folder));
    language.CacheTranslationTable(files);
    ASSERT_EQ(language.CurrentLanguage(), folder);
  }

  Text Shown(TextView key) { return language.Shown(language.NameFile(files), key); }

  World world{WorldFolder.substr(0, WorldFolder.size() - 1)};
  LOCAL::Language& language = world.language;
  IniOps::Snapshot files{world.cache};
  // Every line that the maps show, and the different names among them.
  std::vector<Line> lines;
  std::set<Text> names;
};

}  // namespace

TEST_F(WorldTest, HasNothingThatTheCheckerTells) {
  Check::Question question;
  question.folder = WorldFolder.substr(0, WorldFolder.size() - 1);
  // Pictures and music are made by the build.
  question.ignore = {u"W01", u"W08"};
  question.pictureOf = [](TextView path) {
    return path.ends_with(u".bmp") ? PictureSize{16, 16} : PictureSize{100, 75};
  };
  const auto answer = Check::Run(question);
  for (const Finding& finding : answer->findings)
    ADD_FAILURE() << Bytes(finding.file) << ": " << Bytes(finding.message);
}

TEST_F(WorldTest, IsLargeAndTeachesEveryPerk) {
  EXPECT_GE(names.size(), 500u);
  std::set<Text> taught;
  for (const Line& line : lines)
    if (PerkCatalogue::Find(line.section))
      taught.insert(line.section);
  EXPECT_EQ(taught.size(), PerkCatalogue::Perks.size());
}

TEST_F(WorldTest, NeverSaysTheSameTwice) {
  for (const TextView folder : Languages) {
    Speak(folder);
    std::vector<Text> shown;
    for (const Text& name : names)
      shown.push_back(Shown(name));
    std::map<Text, Text> owners;
    for (const Text& key : files.IniReadFile(language.InfoPath(), u"info")) {
      Text text = InfoFile::ReadEntry(files.File(language.InfoPath()), key);
      for (const Text& name : shown)
        text = Texts::ReplaceAll(text, name, NameSign);
      for (const Text& run : RunsOf(text)) {
        const Text& owner = owners.try_emplace(run, key).first->second;
        EXPECT_EQ(owner, key) << Bytes(folder) << ": " << Bytes(key) << " has" << Bytes(run);
      }
    }
  }
}

TEST_F(WorldTest, PaintsPeopleAsTheyAreTold) {
  const std::regex painted("(person-[mf]|creature|object|place)-[a-z0-9-]+\\.jpg");
  for (const Text& key : files.IniReadFile(Portraits, u"pics")) {
    const std::string picture = Bytes(files.IniRead(Portraits, u"pics", key, u""));
    EXPECT_TRUE(std::regex_match(picture, painted)) << picture;
    const std::string told = Bytes(key + u"=" + files.IniRead(German, u"info", key, u""));
    for (const Look& look : Looks) {
      const bool marked = std::regex_search(picture, look.mark);
      const bool expected = std::regex_search(told, look.told);
      if (picture.starts_with("person-") && (expected || look.onlyIfTold)) {
        EXPECT_EQ(marked, expected) << Bytes(key) << ": " << picture << " but " << told;
      }
    }
  }
}

TEST_F(WorldTest, SetsFrenchAsItIsPrinted) {
  // A blank where a no-break space belongs, or a typewriter's apostrophe; files are Windows-1252,
  // pages UTF-8.
  const std::regex inFile(" [:;!?\xBB]|\xAB |'");
  const std::regex inPage(" [:;!?]| »|« |'");
  for (const TextView file : {u"Français/info.data", u"Français/Français.lng"}) {
    std::ifstream text(Bytes(LanguageRoot + Text(file)));
    for (std::string line; std::getline(text, line);)
      EXPECT_TRUE(line.starts_with(';') || !std::regex_search(line, inFile)) << line;
  }
  std::vector<TextView> pages = {u"orvalis.html", u"readme.html"};
  for (const Extra& extra : ExtrasTable)
    pages.push_back(extra.file);
  for (const TextView page : pages) {
    const std::string text =
        std::regex_replace(PageOf(LanguageRoot + u"Français/", page), std::regex("<[^>]*>"), "");
    std::smatch found;
    EXPECT_FALSE(std::regex_search(text, found, inPage)) << Bytes(page) << found.prefix();
  }
}

TEST_F(WorldTest, SpeaksEveryLanguageCompletely) {
  for (const TextView folder : Translations) {
    Speak(folder);
    for (const Text& key : names) {
      const TextView entry = key.starts_with(Temple) ? Temple : TextView(key);
      EXPECT_NE(files.IniRead(language.LanguageFile(), u"entities", entry, u""), u"") << Bytes(key);
      const Text shown = Shown(key);
      EXPECT_EQ(Shown(shown), shown) << Bytes(shown);
    }
    const auto told = [&](const Text& file, const Text& key) {
      return InfoFile::ReadRedirected(files.File(file), key,
                                      [&](TextView shown) { return language.Key(shown); });
    };
    for (const Text& key : files.IniReadFile(German, u"info"))
      EXPECT_NE(told(language.InfoPath(), key), told(German, key)) << Bytes(key);
  }
}

TEST_F(WorldTest, ListsPlantsStonesAndTeachersInEveryLanguage) {
  const auto isPlant = [](const Line& line) {
    return std::ranges::count(PlantSections, line.section) > 0;
  };
  for (const TextView folder : Languages) {
    Speak(folder);
    const Text own = language.IsGerman() ? WorldFolder : Texts::Join(LanguageRoot, folder, u"/");
    const Text extras = language.IsGerman() ? WorldFolder + u"EXTRAS/" : own;
    EXPECT_NE(PageOf(own, u"orvalis.chm"), "") << Bytes(folder);
    EXPECT_NE(PageOf(own, u"readme.html"), "") << Bytes(folder);
    for (const Extra& extra : ExtrasTable)
      EXPECT_NE(PageOf(extras, extra.file), "") << Bytes(folder) << ": " << Bytes(extra.file);

    const std::string plants = PageOf(extras, u"plantlist.chm");
    const std::string stones = PageOf(extras, u"teleporterstones.chm");
    const std::string perks = PageOf(extras, u"perklist.chm");
    for (const Line& line : lines) {
      const bool stone = line.section == u"teleporter stones";
      if (isPlant(line) || stone || PerkCatalogue::Find(line.section)) {
        const std::string& page = isPlant(line) ? plants : stone ? stones : perks;
        const std::string name = Bytes(Shown(line.key));
        EXPECT_NE(page.find(name), std::string::npos) << Bytes(folder) << name;
      }
    }
    EXPECT_EQ(SecondColumn(perks).size(), PerkCatalogue::Perks.size()) << "what each perk does";
    EXPECT_EQ(SecondColumn(plants).size(), std::ranges::count_if(lines, isPlant))
        << "where to look";
  }
}
