#include "support/Content.h"

#include <map>
#include <optional>
#include <regex>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path Sources = fs::path(ORVALIS_SOURCES) / "src";

// From the lowest floor up, first of the core, then of the windows. What stands on one floor may
// not know each other; a folder that is not named has its parent's floor.
const std::vector<std::string> Floors[] = {
    {"platform"},
    {"app/Twips2Pixel_Module"},
    {"mapdata/files"},
    {"mapdata/world"},
    {"mapdata/display", "i18n"},
    {"app/World", "controls"},
    {"search", "perks", "auxwin"},
    {"app"},
    {"check", "share"},
    {"cli"},
    {"platform/windows"},
    {"controls/windows"},
    {"auxwin/windows/Hyperlink"},
    {"mapdata/windows"},
    {"i18n/windows", "search/windows", "perks/windows", "auxwin/windows"},
    {"app/windows"},
};

// A place in the house.
struct Place {
  size_t height = 0;
  std::string path;
};

bool IsBelow(const std::string& path, const std::string& place) {
  return path.starts_with(place) &&
         (path.size() == place.size() || path[place.size()] == '/' || path[place.size()] == '.');
}

bool IsWindow(const std::string& file) {
  return file.find("/windows/") != std::string::npos;
}

// The place whose path names the most of the file's; an empty path where none does.
Place PlaceOf(const std::string& file) {
  Place best;
  for (size_t height = 0; height < std::size(Floors); ++height)
    for (const std::string& path : Floors[height])
      if (IsBelow(file, path) && path.size() > best.path.size())
        best = {height, path};
  return best;
}

// The command line takes two files of the windows' lowest floor.
bool IsGivenToCommandLine(const std::string& included) {
  return included == "platform/windows/QtText.h" || included == "platform/windows/PictureReader.h";
}

// Why the file may not include this; none if it may.
std::optional<std::string> Offence(const std::string& file, const std::string& included) {
  const Place from = PlaceOf(file);
  const Place to = PlaceOf(included);
  if (from.path.empty() || to.path.empty())
    return "stands on no floor";
  if (IsBelow(file, "cli") && IsGivenToCommandLine(included))
    return std::nullopt;
  if (IsWindow(included) && !IsWindow(file))
    return "is a window";
  if (from.path == to.path || to.height < from.height)
    return std::nullopt;
  return "does not stand left of it";
}

template <typename Visit>
void ForEachInclude(const Visit& visit) {
  static const std::regex include(R"re(#include (["<])([^">]+)[">])re");
  for (const auto& entry : fs::recursive_directory_iterator(Sources)) {
    const std::string file = fs::relative(entry.path(), Sources).generic_string();
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp")
      continue;
    const std::string content = ContentOf(entry.path());
    for (std::sregex_iterator it(content.begin(), content.end(), include), end; it != end; ++it)
      visit(file, (*it)[1] == "<", (*it)[2].str());
  }
}

}  // namespace

TEST(Rooms, NoFileIncludesWhatStandsRightOfIt) {
  std::map<std::string, int> files;
  ForEachInclude([&](const std::string& file, bool system, const std::string& included) {
    ++files[file];
    if (system) {
      const bool toolkit = included.starts_with('Q');
      EXPECT_TRUE(!toolkit || IsWindow(file) || IsBelow(file, "cli"))
          << file << " is of the core and includes " << included;
      return;
    }
    ASSERT_TRUE(fs::exists(Sources / included)) << file << " includes " << included;
    if (const auto offence = Offence(file, included))
      ADD_FAILURE() << file << " includes " << included << ", which " << *offence;
  });
  EXPECT_GT(files.size(), 50U);
}

TEST(Rooms, AnOffenceIsSeenByThePathAlone) {
  EXPECT_TRUE(Offence("mapdata/world/EntityFile.cpp", "mapdata/display/ViewState.h"));
  EXPECT_TRUE(Offence("search/Search.cpp", "search/windows/frmFind.h"));
  EXPECT_TRUE(Offence("search/Search.cpp", "perks/PerkTree.h"));
  EXPECT_TRUE(Offence("controls/windows/Dialog.cpp", "mapdata/windows/MapView.h"));
  EXPECT_TRUE(Offence("check/Rules.h", "share/World.h"));
  EXPECT_TRUE(Offence("cli/main.cpp", "app/windows/frmMain.h"));
  EXPECT_FALSE(Offence("cli/main.cpp", "platform/windows/QtText.h"));
  EXPECT_FALSE(Offence("auxwin/windows/frmAbout.cpp", "auxwin/windows/Hyperlink.h"));
}
