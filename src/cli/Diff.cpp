#include "cli/Diff.h"

#include "check/Words.h"
#include "mapdata/files/ProfileLines.h"

#include <algorithm>
#include <span>
#include <vector>

namespace {

std::vector<std::string_view> LinesOf(std::string_view bytes) {
  std::vector<std::string_view> lines;
  for (const ProfileLines::Line& line : ProfileLines::Lines(bytes))
    lines.push_back(line.raw);
  return lines;
}

using Lines = std::span<const std::string_view>;

// A file that was written anew has no lines in common.
constexpr size_t MostSkipped = 1000;

// Where the two go on alike: the nearest pair of lines that are the same.
std::pair<size_t, size_t> Meet(Lines before, Lines after) {
  const size_t most = std::min(before.size() + after.size(), MostSkipped);
  for (size_t sum = 0; sum < most; ++sum)
    for (size_t skipped = 0; skipped <= sum; ++skipped)
      if (skipped < before.size() && sum - skipped < after.size() &&
          before[skipped] == after[sum - skipped])
        return {skipped, sum - skipped};
  return {before.size(), after.size()};
}

std::string Marked(char mark, std::string_view line, const Console::Style& style) {
  const std::string text = mark + Console::Printable(Words::Decoded(line), style);
  if (!style.colour)
    return text + "\n";
  return (mark == '-' ? "\x1B[31m" : "\x1B[32m") + text + "\x1B[0m\n";
}

std::string Hunk(size_t first, size_t second, Lines gone, Lines come, const Console::Style& style) {
  const auto range = [](size_t line, size_t count) {
    return std::to_string(count == 0 ? line : line + 1) + "," + std::to_string(count);
  };
  std::string hunk =
      "@@ -" + range(first, gone.size()) + " +" + range(second, come.size()) + " @@\n";
  for (const std::string_view line : gone)
    hunk += Marked('-', line, style);
  for (const std::string_view line : come)
    hunk += Marked('+', line, style);
  return hunk;
}

}  // namespace

std::string Diff::Of(const Fixes::Change& change, const Console::Style& style) {
  const std::string name = Console::Printable(change.source->name, style);
  std::string diff = "--- " + name + "\n+++ " + name + "\n";
  const auto before = LinesOf(change.source->Bytes());
  const auto after = LinesOf(change.bytes);
  size_t a = 0;
  size_t b = 0;
  while (a < before.size() || b < after.size()) {
    if (a < before.size() && b < after.size() && before[a] == after[b]) {
      ++a;
      ++b;
      continue;
    }
    const auto [gone, come] = Meet(Lines(before).subspan(a), Lines(after).subspan(b));
    diff += Hunk(a, b, Lines(before).subspan(a, gone), Lines(after).subspan(b, come), style);
    a += gone;
    b += come;
  }
  return diff;
}
