#include "i18n/PrefixIndex.h"

#include <algorithm>
#include <bit>

namespace {

constexpr uint32_t Free = 0xFFFFFFFF;
constexpr uint32_t EmptyHash = 2166136261U;

// The hash of a text that is one unit longer, so that all prefixes of a text cost one pass.
constexpr uint32_t Extended(uint32_t hash, char16_t unit) {
  return (hash ^ unit) * 16777619U;
}

}  // namespace

PrefixIndex::PrefixIndex(std::vector<Text> prefixes)
    : prefixes_(std::move(prefixes)),
      slots_(std::bit_ceil(prefixes_.size() * 2 + 2), Slot{0, Free}) {
  for (uint32_t number = 0; number < prefixes_.size(); ++number)
    Add(number);
}

void PrefixIndex::Add(uint32_t number) {
  const Text& prefix = prefixes_[number];
  uint32_t hash = EmptyHash;
  for (const char16_t unit : prefix)
    hash = Extended(hash, unit);
  if (Slot& slot = slots_[SlotOf(hash)]; slot.number == Free)
    slot = {hash, number};
  if (lengths_.size() <= prefix.size())
    lengths_.resize(prefix.size() + 1);
  lengths_[prefix.size()] = true;
}

size_t PrefixIndex::SlotOf(uint32_t hash) const {
  const size_t mask = slots_.size() - 1;
  // The low bits alone hardly depend on the upper half of the hash.
  size_t at = (hash ^ (hash >> 15U)) & mask;
  while (slots_[at].number != Free && slots_[at].hash != hash)
    at = (at + 1) & mask;
  return at;
}

std::optional<size_t> PrefixIndex::FirstPrefixOf(TextView text) const {
  uint32_t first = Free;
  uint32_t hash = EmptyHash;
  const size_t lengths = std::min(lengths_.size(), text.size() + 1);
  for (size_t length = 0; length < lengths; ++length) {
    if (length > 0)
      hash = Extended(hash, text[length - 1]);
    if (lengths_[length])
      first = std::min(first, slots_[SlotOf(hash)].number);
  }
  if (first == Free)
    return std::nullopt;
  // A text that only shares its hash may have hidden the right one.
  return text.starts_with(prefixes_[first]) ? first : Scan(text);
}

std::optional<size_t> PrefixIndex::Scan(TextView text) const {
  const auto found = std::find_if(prefixes_.begin(), prefixes_.end(),
                                  [text](const Text& prefix) { return text.starts_with(prefix); });
  if (found == prefixes_.end())
    return std::nullopt;
  return static_cast<size_t>(found - prefixes_.begin());
}
