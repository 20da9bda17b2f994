#include "check/Words.h"
#include "cli/reports/Reports.h"

#include <algorithm>

using Texts::Join;
using Words::Decoded;
using Words::Number;

namespace {

constexpr std::string_view Plain = "\x1B[0m";
constexpr std::string_view Bold = "\x1B[1m";
constexpr std::array<std::string_view, 4> Colours = {"\x1B[1;35m", "\x1B[1;31m", "\x1B[1;33m",
                                                     "\x1B[1;36m"};
constexpr size_t LongestExcerpt = 160;

std::string In(std::string_view colour, const std::string& words, const Console::Style& style) {
  return style.colour ? std::string(colour) + words + std::string(Plain) : words;
}

Text PlaceOf(const Finding& finding) {
  if (!finding.source)
    return finding.file;
  const Place place = finding.source->PlaceOf(finding.offset);
  return Join(finding.file, u":", Number(place.line), u":", Number(place.column));
}

// The line with what the finding means underlined; "" for a finding of a whole file.
std::string Excerpt(const Finding& finding, const Console::Style& style) {
  if (!finding.source || finding.length == 0)
    return {};
  const Place place = finding.source->PlaceOf(finding.offset);
  const std::string_view line = finding.source->LineAt(finding.offset);
  const size_t column = place.column - 1;
  const size_t from = column > LongestExcerpt / 2 ? column - LongestExcerpt / 2 : 0;
  const size_t most = style.width > 20 ? std::min(style.width - 9, LongestExcerpt) : LongestExcerpt;
  const std::string_view shown = line.substr(std::min(from, line.size()), most);
  const auto widthOf = [&style](std::string_view part) {
    std::string printed = Console::Printable(Decoded(part), style);
    return static_cast<size_t>(std::ranges::count_if(
        printed, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; }));
  };
  const std::string_view before = shown.substr(0, std::min(column - from, shown.size()));
  const std::string_view meant = shown.substr(before.size()).substr(0, finding.length);
  std::string number = std::to_string(place.line);
  number.insert(0, number.size() < 5 ? 5 - number.size() : 0, ' ');
  return number + " | " + Console::Printable(Decoded(shown), style) + "\n      | " +
         std::string(widthOf(before), ' ') +
         In(Bold, std::string(std::max<size_t>(widthOf(meant), 1), '^'), style) + "\n";
}

Text AdviceOf(const Finding& finding) {
  if (finding.edits.empty())
    return finding.advice;
  if (Rules::Of(finding.rule).fixing == Rules::Fixing::Proved)
    return Join(finding.advice, u" (orvalis-world check --fix tries it)");
  return Join(finding.advice, u" (orvalis-world check --fix",
              finding.isSafe ? u"" : u" --unsafe-fixes", u" does it)");
}

std::string OfFinding(const Finding& finding, const Console::Style& style, bool verbose) {
  const Rules::Rule& rule = Rules::Of(finding.rule);
  const auto print = [&style](TextView text) { return Console::Printable(text, style); };
  std::string report = In(Bold, print(PlaceOf(finding)), style) + ": " +
                       In(Colours[static_cast<size_t>(finding.severity)],
                          print(Rules::NameOf(finding.severity)), style) +
                       ": " + print(rule.number) + " " + print(rule.name) + ": " +
                       print(finding.message) + "\n" + Excerpt(finding, style) +
                       "   result: " + print(finding.consequence) +
                       "\n   advice: " + print(AdviceOf(finding)) + "\n";
  if (verbose)
    for (const Text& detail : finding.details)
      report += "      " + print(detail) + "\n";
  return report;
}

}  // namespace

namespace Reports {

Text Summary(const Check::Answer& answer) {
  const auto counts = answer.Counts();
  if (answer.findings.empty())
    return u"nothing found";
  return Join(Words::Count(counts[0], u"fatal fault", u"fatal faults"), u", ",
              Words::Count(counts[1], u"error", u"errors"), u", ",
              Words::Count(counts[2], u"warning", u"warnings"), u", ",
              Words::Count(counts[3], u"note", u"notes"));
}

std::string AsText(const Check::Answer& answer, const Console::Style& style, bool verbose) {
  std::string report;
  for (const Finding& finding : answer.findings)
    report += OfFinding(finding, style, verbose);
  return report + Console::Printable(Summary(answer), style) + "\n";
}

std::string AsShort(const Check::Answer& answer, const Console::Style& style) {
  std::string report;
  for (const Finding& finding : answer.findings) {
    const Text place = finding.source ? PlaceOf(finding) : Join(finding.file, u":0:0");
    report += Console::Printable(
                  Join(place, u": ", Rules::NameOf(finding.severity), u": ", finding.message, u": ",
                       finding.consequence, u" [", Rules::Of(finding.rule).number, u"]"),
                  style) +
              "\n";
  }
  return report;
}

}  // namespace Reports
