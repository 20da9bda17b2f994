#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <string>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path Sources = fs::path(ORVALIS_SOURCES) / "src";

// What stands on one floor may not know each other; a folder that is not named has its parent's.
struct Floor {
  int height;
  const char* path;
};

constexpr auto CoreFloors = std::to_array<Floor>({
    {0, "platform"},
    {1, "app/Twips2Pixel_Module"},
    {2, "mapdata/files"},
    {3, "mapdata/world"},
    {4, "mapdata/display"},
    {4, "i18n"},
    {5, "app/World"},
    {5, "controls"},
    {6, "search"},
    {6, "perks"},
    {6, "auxwin"},
    {7, "app"},
    {8, "check"},
    {8, "share"},
    {9, "cli"},
});

constexpr auto WindowFloors = std::to_array<Floor>({
    {10, "platform/windows"},
    {11, "controls/windows"},
    {12, "auxwin/windows/Hyperlink"},
    {13, "mapdata/windows"},
    {14, "i18n/windows"},
    {14, "search/windows"},
    {14, "perks/windows"},
    {14, "auxwin/windows"},
    {15, "app/windows"},
});

bool IsBelow(const std::string& path, const std::string& place) {
  return path.starts_with(place) &&
         (path.size() == place.size() || path[place.size()] == '/' || path[place.size()] == '.');
}

// The floor whose path names the most of the file's.
template <size_t Count>
const Floor* FloorIn(const std::array<Floor, Count>& floors, const std::string& file) {
  const Floor* best = nullptr;
  for (const Floor& floor : floors)
    if (IsBelow(file, floor.path) &&
        (!best || std::string(floor.path).size() > std::string(best->path).size()))
      best = &floor;
  return best;
}

bool IsWindow(const std::string& file) {
  return file.find("/windows/") != std::string::npos;
}

const Floor* FloorOf(const std::string& file) {
  return IsWindow(file) ? FloorIn(WindowFloors, file) : FloorIn(CoreFloors, file);
}

// The command line takes two files of the windows' lowest floor.
bool IsGivenToCommandLine(const std::string& included) {
  return included == "platform/windows/QtText.h" || included == "platform/windows/PictureReader.h";
}

// Why the file may not include this; none if it may.
std::optional<std::string> Offence(const std::string& file, const std::string& included) {
  const Floor* from = FloorOf(file);
  const Floor* to = FloorOf(included);
  if (!from || !to)
    return "stands on no floor";
  if (IsBelow(file, "cli") && IsGivenToCommandLine(included))
    return std::nullopt;
  if (IsWindow(included) && !IsWindow(file))
    return "is a window";
  if (from == to || to->height < from->height)
    return std::nullopt;
  return "does not stand left of it";
}

std::string Content(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

template <typename Visit>
void ForEachInclude(const Visit& visit) {
  static const std::regex include(R"re(#include (["<])([^">]+)[">])re");
  for (const auto& entry : fs::recursive_directory_iterator(Sources)) {
    const std::string file = fs::relative(entry.path(), Sources).generic_string();
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp")
      continue;
    const std::string content = Content(entry.path());
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
