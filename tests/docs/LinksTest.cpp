// Holds the pages for readers of the repository against the repository.
#include "support/Content.h"

#include <regex>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path Repository = ORVALIS_SOURCES;

// Every place in the page that the pattern matches.
std::vector<std::smatch> All(const std::string& content, const std::regex& pattern) {
  return {std::sregex_iterator(content.begin(), content.end(), pattern), {}};
}

// The anchor that a heading gets: lower case, no punctuation, hyphens for blanks.
std::string Anchor(const std::string& heading) {
  std::string anchor;
  for (const char unit : heading)
    if (std::isalnum(static_cast<unsigned char>(unit)) != 0 || unit == '-' || unit == '_')
      anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(unit)));
    else if (unit == ' ')
      anchor += '-';
  return anchor;
}

bool HasAnchor(const fs::path& page, const std::string& anchor) {
  std::ifstream file(page);
  for (std::string line; std::getline(file, line);)
    if (line.starts_with('#') && Anchor(line.substr(line.find(' ') + 1)) == anchor)
      return true;
  return false;
}

class Pages : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(Pages, NameOnlyWhatIsThere) {
  static const std::regex link(R"(\]\(([^)#:]+\.(?:md|jpg)|LICENSE)(?:#([^)]+))?\))");
  static const std::regex path(
      R"(`((?:src|tests|docs|world|bench|tools|packaging|scripts|fuzz)/[^`* ]*)[ `])");
  const fs::path page = Repository / GetParam();
  const std::string content = ContentOf(page);
  ASSERT_GT(content.size(), 500U);
  for (const std::smatch& named : All(content, path))
    EXPECT_TRUE(fs::exists(Repository / named[1].str())) << page << " names " << named[1];
  for (const std::smatch& linked : All(content, link)) {
    const fs::path target = page.parent_path() / linked[1].str();
    EXPECT_TRUE(fs::exists(target)) << page << " links to " << linked[1];
    EXPECT_TRUE(!linked[2].matched || HasAnchor(target, linked[2])) << page << ": " << linked[2];
  }
}

INSTANTIATE_TEST_SUITE_P(Repository, Pages,
                         testing::Values("README.md", "CONTRIBUTING.md", "CHANGELOG.md",
                                         "docs/architecture.md", "docs/map-authors.md",
                                         "docs/performance.md", "docs/translators.md",
                                         "docs/share.md"));
