#include "platform/TamePage.h"

#include "platform/NativePath.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

Text Times(size_t count, TextView part) {
  Text all;
  for (size_t i = 0; i < count; ++i)
    all += part;
  return all;
}

size_t Count(TextView text, TextView part) {
  size_t count = 0;
  for (size_t at = text.find(part); at != TextView::npos; at = text.find(part, at + part.size()))
    ++count;
  return count;
}

size_t LongestWord(TextView text) {
  size_t longest = 0;
  for (size_t from = 0; from < text.size();) {
    const size_t end = std::min(text.find_first_of(u" \u200B", from), text.size());
    longest = std::max(longest, end - from);
    from = end + 1;
  }
  return longest;
}

}  // namespace

TEST(TamePage, EveryPageOfTheWorldComesBackAsItIs) {
  int pages = 0;
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(ORVALIS_SOURCES) / "world")) {
    if (entry.path().extension() != ".html")
      continue;
    std::ifstream file(entry.path());
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    const Text page = NativePath::EntryName(bytes);
    EXPECT_EQ(TamePage::Of(page), page) << entry.path();
    ++pages;
  }
  EXPECT_GT(pages, 20);
}

TEST(TamePage, OrdinaryOdditiesStay) {
  for (const TextView page :
       {u"", u"<", u"a < b & c > d", u"<p", u"<img alt=\"a > b\" src=\"20261123.png\">",
        u"<a href=\"#20261123\">x</a>", u"<td style='color:#336699;width:1024px'>",
        u"<table><tr><td><table><tr><td>x</table></table>", u"</b></b><b>x", u"<p>a<p>b<li>c"})
    EXPECT_EQ(TamePage::Of(page), page);
}

TEST(TamePage, OverlongWordsBreakAndNothingIsLost) {
  Text word = TamePage::Of(Times(3000, u"ab"));
  EXPECT_LE(LongestWord(word), 500U);
  EXPECT_EQ(Count(word, u"ab") + Count(word, u"a\u200Bb"), 3000U);
  EXPECT_LE(LongestWord(TamePage::Of(Times(3000, u"<i>ab</i>"))), 500U * 9) << "tags end no word";
  EXPECT_EQ(Count(TamePage::Of(Times(3000, u"&nbsp;")), u"&nbsp;"), 3000U) << "entities stay whole";
}

TEST(TamePage, WhatNobodyWritesIsLeftOut) {
  const Text tables = TamePage::Of(Times(20, u"<table><tr><td>x") + Times(20, u"</td></table>"));
  EXPECT_EQ(Count(tables, u"<table>"), 3U);
  EXPECT_EQ(Count(tables, u"</table>"), 3U);
  EXPECT_EQ(Count(tables, u"x"), 20U);
  EXPECT_EQ(Count(TamePage::Of(Times(5000, u"<div>")), u"<div>"), 100U);
  EXPECT_EQ(Count(TamePage::Of(Times(5000, u"<div></div>")), u"<div>"), 5000U) << "side by side";
  const Text many = TamePage::Of(Times(20'000, u"<p>x"));
  EXPECT_EQ(Count(many, u"<p>"), 10'000U);
  EXPECT_EQ(Count(many, u"x"), 20'000U);
  EXPECT_EQ(TamePage::Of(u"<table cellpadding=99999999>"), u"<table cellpadding=9999>");
  EXPECT_EQ(TamePage::Of(u"<style>p{margin:88888888px}</style>7777777"),
            u"<style>p{margin:8888px}</style>7777777");
  EXPECT_LE(TamePage::Of(Times(1'000'000, u"a ")).size(), 256U * 1024);
}
