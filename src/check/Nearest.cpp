#include "check/Nearest.h"

#include "check/Words.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr size_t ShortWord = 5;

size_t MostSlips(size_t length) {
  return length <= ShortWord ? 1 : 2;
}

// Letters changed, left out, put in, or swapped with their neighbour; beyond `most`, any number
// above it.
size_t Slips(TextView a, TextView b, size_t most) {
  if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) > most)
    return most + 1;
  std::vector<size_t> before(b.size() + 1);
  std::vector<size_t> last(b.size() + 1);
  std::vector<size_t> row(b.size() + 1);
  std::iota(last.begin(), last.end(), size_t{0});
  for (size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const size_t changed = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, changed});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], before[j - 2] + 1);
    }
    if (*std::ranges::min_element(row) > most)
      return most + 1;
    std::swap(before, last);
    std::swap(last, row);
  }
  return last.back();
}

template <typename Name, typename TextOf>
Name NearestIn(TextView word, std::span<const Name> candidates, TextOf textOf) {
  const Text wanted = Texts::Lower(word);
  Name best{};
  size_t most = MostSlips(word.size());
  for (const Name& candidate : candidates) {
    const size_t slips = Slips(wanted, Texts::Lower(textOf(candidate)), most);
    if (slips > most || (slips == most && !best.empty()))
      continue;
    best = candidate;
    most = slips;
  }
  return best;
}

}  // namespace

namespace Nearest {

std::string_view Of(std::string_view word, std::span<const std::string_view> candidates) {
  return NearestIn<std::string_view>(Words::Decoded(word), candidates, &Words::Decoded);
}

Text Of(TextView word, std::span<const Text> candidates) {
  return NearestIn<Text>(word, candidates, [](const Text& text) { return TextView(text); });
}

}  // namespace Nearest
