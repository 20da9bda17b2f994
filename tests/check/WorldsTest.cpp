#include "check/Template.h"
#include "check/Told.h"
#include "mapdata/files/IniOps.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

// Mistakes that take more than one file, or that are told of a file as a whole.

TEST(LinksToBrokenLines, AreToldWithTheirTarget) {
  const CheckedWorld world;
  world.Write("arvenna.data", "[NPC]\nAlrik=#,smiths\n[smiths]\nAlrik=left,top\n");
  EXPECT_EQ(Tell(world).rules, (std::set<std::string>{"L05", "P01"}));
  EXPECT_NE(Tell(world).results.find("the search shows it at 0,0"), std::string::npos);
  world.Write("arvenna.data", "[hunters]\nAlrik=#,smiths\n[smiths]\nAlrik=5,top\n");
  EXPECT_NE(Tell(world).results.find("the marker stands at 5,0"), std::string::npos);
  world.Write("arvenna.data", "[NPC]\nAlrik=#,smiths\n[smiths]\nAlrik= \"5 , 6,*\"\n");
  EXPECT_EQ(Tell(world).rules, std::set<std::string>());
}

TEST(FilesTooLarge, AreToldByWhatTheyHold) {
  for (const auto& [file, result] : {std::pair("arvenna.data", "every category is empty"),
                                     std::pair("info.data", "reads as an empty file")}) {
    const CheckedWorld world;
    std::filesystem::resize_file(world.Folder().Native(file), IniOps::LargestFile + 1);
    const Told told = Tell(world);
    EXPECT_TRUE(told.rules.contains("W11"));
    EXPECT_NE(told.results.find(result), std::string::npos) << told.results;
  }
}

TEST(FilesOfALanguage, StandInAFolderOfItsNameUnderGermanKeys) {
  const CheckedWorld world;
  world.Write("LANG/EN/EN.lng", "[general]\nlanguage=L\n");
  EXPECT_EQ(Tell(world).rules, std::set<std::string>());
  world.Write("LANG/EN/info.data", "[info]\nAlrik=He.\n");
  EXPECT_EQ(Tell(world).rules, std::set<std::string>{"T03"});
  EXPECT_NE(Tell(world).results.find("read from info.data"), std::string::npos);
  world.Write("LANG/L/info.data", "[info]\nAlrik=He.\n");
  EXPECT_NE(Tell(world).results.find("read from LANG/L/info.data"), std::string::npos);
  // On the disk the letter case of a folder makes no difference.
  world.Write("LANG/EN/EN.lng", "[general]\nlanguage=en\n");
  EXPECT_FALSE(Tell(world).rules.contains("T03"));
}

TEST(DescriptionsOfALanguage, StandUnderGermanKeys) {
  const CheckedWorld world;
  const auto tell = [&world](const std::string& text) {
    world.Write("LANG/L/info.data", "[info]\n" + text);
    return Tell(world, "T20");
  };
  world.Write(LanguageFile, Lng("[entities]\nAlrik=Ulric\nBaldrun=Zed\n"));
  EXPECT_EQ(tell("Berta=She.\nAlrik=He.\n").rules, std::set<std::string>());
  EXPECT_EQ(tell("Alrik=He.\n").rules, std::set<std::string>{"T20"});
  const std::string one = tell("Berta=She.\nUlric=He.\n").results;
  const Told two = tell("Berta=She.\nUlric=He.\nZed=He.\n");
  EXPECT_EQ(two.rules, std::set<std::string>{"T19"});
  EXPECT_NE(two.results, one);
  world.Mend(true);
  EXPECT_EQ(world.Read("LANG/L/info.data"), "[info]\nBerta=She.\nAlrik=He.\nBaldrun=He.\n");
}

TEST(MissingTexts, AreThoseThatTheTemplateHas) {
  const CheckedWorld world;
  const std::string made = Template::Make(world.Answer()->index, {});
  const std::string complete = std::regex_replace(made, std::regex("=\r\n"), "=x\r\n");
  const auto without = [&](const std::string& key, const std::string& rule) {
    world.Write(LanguageFile, std::regex_replace(complete, std::regex("\n" + key + "=[^\n]*"), ""));
    std::string results;
    const auto answer = world.Answer();
    for (const Finding& finding : answer->findings)
      if (Rules::Of(finding.rule).number == NativePath::FromBytes(rule))
        results += NativePath::ToBytes(finding.consequence);
    return results;
  };
  EXPECT_EQ(without("none", "T05"), "");
  EXPECT_EQ(without("none", "T06"), "");
  EXPECT_EQ(without("miArvennaTeachers", "T05"), "shown in English");
  EXPECT_EQ(without("miArvennaTeachers", "T06"), "");
  EXPECT_EQ(without("FileNotFound", "T06"), "the message for a missing file is empty");
  EXPECT_EQ(without("notfoundmessage", "T06"), "the message or heading of the search is empty");
}

TEST(Looks, AreToldOfLongNamesAndStrangeFlags) {
  const auto results = [](const std::string& flag, size_t german, size_t translated) {
    const CheckedWorld world;
    world.Write("LANG/L/L.bmp", flag);
    world.Write(LanguageFile, Lng("[entities]\nAlrik=" + std::string(translated, 'x') + "\n"));
    world.Write("skaldor.data", "[NPC]\nAlrik=1,2\n" + std::string(german, 'n') + "=3,4\n");
    return Tell(world, "T22").results;
  };
  EXPECT_EQ(results("16x16", 120, 120), "");
  EXPECT_EQ(results("", 120, 120), "LANG/L/L.bmp: a neutral flag is shown\n");
  EXPECT_EQ(results("20x16", 120, 120), "LANG/L/L.bmp: it is not shown at its own size\n");
  EXPECT_EQ(results("16x16", 121, 120), "skaldor.data: it leaves the window\n");
  EXPECT_EQ(results("16x16", 120, 121), "LANG/L/L.lng: \"Alrik\" leaves the window\n");
}

TEST(Coverage, IsOneLineAFile) {
  const CheckedWorld world;
  world.Write(LanguageFile, Lng(""));
  std::multiset<Text> told;
  const auto answer = world.Answer();
  for (const Finding& finding : answer->findings)
    if (!finding.details.empty())
      told.insert(Texts::Join(Rules::Of(finding.rule).number, u" ", finding.file));
  EXPECT_EQ(told.count(u"I07 info.data"), 1U);
  EXPECT_EQ(told.count(u"T21 LANG/L/L.lng"), 1U);
  EXPECT_EQ(told.count(u"S08 arvenna.data"), 1U);
}

TEST(Coverage, IsSilentWhereNothingIsMissing) {
  const CheckedWorld world;
  const auto first = world.Answer();
  std::string all;
  for (const Index::Category& category : first->index.categories[0])
    all += "[" + NativePath::ToBytes(category.section) + "]\nBerta=1,2\nTor nach Sarrakh=3,4\n";
  world.Write("arvenna.data", all);
  world.Write("info.data", "[info]\nBerta=She waits.\nTor nach Sarrakh=It is locked.\n");
  // A region's word translates what has no key of its own.
  world.Write(LanguageFile, Lng("[entities]\nBerta=Bertha\nSarrakh=Desert\n"));
  const auto answer = world.Answer();
  for (const Finding& finding : answer->findings) {
    const Text rule = Texts::Join(Rules::Of(finding.rule).number, u" ", finding.file);
    EXPECT_FALSE(rule == u"S08 arvenna.data" || rule == u"I07 info.data" ||
                 rule.starts_with(u"T21"))
        << NativePath::ToBytes(rule);
  }
}

TEST(HostileFiles, EndNoCheck) {
  const CheckedWorld world;
  world.Write("arvenna.data",
              std::string(100'000, '[') + "\n=\n=#\n#,\n;\n\t;\n[]\n=,,,\n[ ]\nA==\n");
  world.Write("info.data", std::string("[info]\n\0#=#\n=#\n\"=\"\n", 19));
  world.Write(LanguageFile, Lng("[entities]\n=\n==\n;=\nArvenna=Arvenna Arvenna\n&=&\n[\n"));
  world.Write("PICS/pic.ini", "[pics]\n=\n..=..\n");
  EXPECT_FALSE(world.Answer()->findings.empty());
  world.Mend(true);
}
