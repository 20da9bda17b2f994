#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path Sources = fs::path(ORVALIS_SOURCES) / "src";

std::string Content(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool UsesToolkit(const std::string& content) {
  static const std::regex toolkit(R"(\bQ[A-Z][a-z]\w*|#include <Q)");
  return std::regex_search(content, toolkit);
}

// How far right a file stands: it may include what stands left of it and what is its own room's.
int Place(const fs::path& file) {
  static const std::map<std::string, int> core = {{"platform", 0},  {"mapdata", 20}, {"i18n", 30},
                                                  {"search", 40},   {"perks", 41},   {"auxwin", 42},
                                                  {"controls", 50}, {"app", 70}};
  static const std::map<std::string, int> windows = {
      {"platform", 45}, {"mapdata", 60}, {"i18n", 61},     {"search", 62},
      {"perks", 63},    {"auxwin", 64},  {"controls", 50}, {"app", 70}};
  static const std::set<std::string> links = {"Hyperlink"};
  if (file.stem() == "Twips2Pixel_Module")
    return 10;
  if (links.contains(file.stem().string()))
    return 55;
  const std::string room = file.begin()->string();
  return UsesToolkit(Content(Sources / file)) ? windows.at(room) : core.at(room);
}

}  // namespace

TEST(Rooms, NoFileIncludesWhatStandsRightOfIt) {
  static const std::regex include(R"re(#include "([^"]+)")re");
  size_t files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(Sources)) {
    const fs::path file = fs::relative(entry.path(), Sources);
    if (file.extension() != ".h" && file.extension() != ".cpp")
      continue;
    ++files;
    const std::string content = Content(entry.path());
    for (std::sregex_iterator it(content.begin(), content.end(), include), end; it != end; ++it) {
      const fs::path included = (*it)[1].str();
      ASSERT_TRUE(fs::exists(Sources / included)) << file << " includes " << included;
      EXPECT_LE(Place(included), Place(file)) << file << " includes " << included;
    }
  }
  EXPECT_GT(files, 50U);
}

TEST(Rooms, TheCoreKnowsNoToolkit) {
  for (const char* file : {"platform/Text.h", "mapdata/IniOps.h", "mapdata/EntityFile.h",
                           "i18n/LOCAL.h", "app/MenuTable.h", "app/StartUp.h"})
    EXPECT_FALSE(UsesToolkit(Content(Sources / file))) << file;
}
