#include "platform/PageLimits.h"

#include "platform/NativePath.h"
#include "support/Content.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

Text Times(size_t count, TextView part) {
  Text all;
  for (size_t i = 0; i < count; ++i)
    all += part;
  return all;
}

}  // namespace

TEST(PageLimits, HoldEveryPageOfTheWorld) {
  int pages = 0;
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(ORVALIS_SOURCES) / "world")) {
    if (entry.path().extension() != ".html")
      continue;
    EXPECT_TRUE(PageLimits::Hold(NativePath::EntryName(ContentOf(entry.path())))) << entry.path();
    ++pages;
  }
  EXPECT_GT(pages, 20);
}

TEST(PageLimits, HoldOrdinaryOddities) {
  for (const TextView page :
       {u"", u"<", u"a < b & c > d", u"<p", u"<img alt=\"a > b\" src=\"20261123.png\">",
        u"<a href=\"#20261123\">x</a>", u"<td style='color:#336699;width:1024px'>",
        u"<table><tr><td><table><tr><td>x</table></table>", u"</b></b><b>x", u"<p>a<p>b<li>c",
        u"<!-- a > 20261123 --><p>x"})
    EXPECT_TRUE(PageLimits::Hold(page));
}

TEST(PageLimits, PagesThatNobodyWritesAreBeyondThem) {
  const std::tuple<const char*, Text, Text> table[] = {
      {"characters", Times(200'000, u"a "), Times(100'000, u"a ")},
      {"tags", Times(20'000, u"<p>x "), Times(9'000, u"<p>x ")},
      {"words", Times(501, u"a"), Times(500, u"a") + u" " + Times(500, u"a")},
      {"words through tags", Times(501, u"<i>a</i>"), Times(500, u"<i>a</i>")},
      {"tables", Times(4, u"<table><tr><td>x"), Times(3, u"<table><tr><td>x")},
      {"elements", Times(121, u"<div>"), Times(4'000, u"<div></div>")},
      {"numbers", u"<table cellpadding=99999>", u"<table cellpadding=9999>"},
      {"numbers of styles", u"<style>p{margin:88888px}</style>", u"<p>88888"},
  };

  for (const auto& [what, page, within] : table) {
    EXPECT_FALSE(PageLimits::Hold(page)) << what;
    EXPECT_TRUE(PageLimits::Hold(within)) << what;
  }
}
