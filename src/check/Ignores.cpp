#include "check/Ignores.h"

#include "check/Words.h"

#include <algorithm>

using Texts::Join;
using Texts::Lower;
using Texts::Trim;

namespace {

constexpr TextView FileName = u"orvalis-check.ini";
constexpr TextView IgnoredSection = u"ignore";
constexpr std::string_view Sign = "orvalis-check: ignore ";

std::vector<Text> Parts(TextView list) {
  std::vector<Text> parts;
  while (!list.empty()) {
    const size_t end = std::min(list.find(u','), list.size());
    if (const TextView part = Trim(list.substr(0, end)); !part.empty())
      parts.emplace_back(part);
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return parts;
}

// "*" stands for any text; letter case doesn't count.
bool Matches(TextView pattern, TextView text) {
  size_t star = TextView::npos;
  size_t restart = 0;
  size_t p = 0;
  size_t t = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == u'*') {
      star = p++;
      restart = t;
    } else if (p < pattern.size() && pattern[p] == text[t]) {
      ++p;
      ++t;
    } else if (star != TextView::npos) {
      p = star + 1;
      t = ++restart;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', p) == TextView::npos;
}

bool MatchesRule(TextView rule, TextView number) {
  return rule == number || (rule.size() == 1 && number.starts_with(rule));
}

}  // namespace

Ignores::Ignores(Index& index) {
  const Text file = Join(index.base, FileName);
  for (const Text& rule : index.files.IniReadFile(file, IgnoredSection))
    for (const Text& pattern : Parts(index.files.IniRead(file, IgnoredSection, rule, u"")))
      entries_.push_back({Lower(rule), Lower(pattern)});
  for (const Source& source : index.sources)
    Read(source);
}

void Ignores::Read(const Source& source) {
  for (const Source::Line& line : source.Lines()) {
    if (line.section != Source::None)
      return;
    std::string_view words = ProfileLines::Strip(line.text.raw, " \t");
    if (!words.starts_with(';'))
      continue;
    words = ProfileLines::Strip(words.substr(1), " \t");
    if (words.starts_with(Sign))
      for (const Text& rule : Parts(Words::Decoded(words.substr(Sign.size()))))
        entries_.push_back({Lower(rule), Lower(source.name)});
  }
}

bool Ignores::Covers(const Finding& finding) const {
  if (entries_.empty())
    return false;
  const Text number = Lower(Rules::Of(finding.rule).number);
  const Text file = Lower(finding.file);
  const Text section = Join(file, u":", Lower(finding.section));
  const Text key = Join(section, u":", Lower(finding.key));
  return std::ranges::any_of(entries_, [&](const Entry& entry) {
    return MatchesRule(entry.rule, number) &&
           (Matches(entry.pattern, file) || Matches(entry.pattern, section) ||
            Matches(entry.pattern, key));
  });
}
