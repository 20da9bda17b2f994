#include "i18n/PrefixIndex.h"

#include "platform/Windows1252.h"

#include <algorithm>
#include <bit>

namespace {

constexpr uint32_t Free = 0xFFFFFFFF;
constexpr uint32_t EmptyHash = 2166136261U;

// The hash of a text that is one unit longer, so that all prefixes of a text cost one pass.
constexpr uint32_t Extended(uint32_t hash, char16_t unit) {
  return (hash ^ unit) * 16777619U;
}

constexpr uint64_t BitOf(size_t length) {
  return uint64_t{1} << std::min<size_t>(length, 63);
}

}  // namespace

PrefixIndex::PrefixIndex(std::span<const Text> prefixes) {
  ends_.reserve(prefixes.size());
  for (const Text& prefix : prefixes)
    ends_.push_back(joined_.append(prefix).size());
  AddAll();
}

PrefixIndex::PrefixIndex(std::span<const std::string_view> prefixes) {
  std::string bytes;
  ends_.reserve(prefixes.size());
  for (const std::string_view prefix : prefixes)
    ends_.push_back(bytes.append(prefix).size());
  joined_ = Windows1252::Decode(bytes);
  AddAll();
}

void PrefixIndex::AddAll() {
  slots_.assign(std::bit_ceil(size() * 2 + 2), Slot{0, Free});
  for (uint32_t number = 0; number < size(); ++number)
    Add(number);
}

void PrefixIndex::Add(uint32_t number) {
  const TextView prefix = (*this)[number];
  uint32_t hash = EmptyHash;
  for (const char16_t unit : prefix)
    hash = Extended(hash, unit);
  if (Slot& slot = slots_[SlotOf(hash)]; slot.number == Free)
    slot = {hash, number};
  AddLength(prefix);
}

void PrefixIndex::AddLength(TextView prefix) {
  longest_ = std::max(longest_, prefix.size());
  if (prefix.empty())
    for (uint64_t& lengths : lengths_)
      lengths |= 1;
  else
    lengths_[prefix.front() % lengths_.size()] |= BitOf(prefix.size());
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
  const uint64_t lengths = lengths_[text.empty() ? 0 : text.front() % lengths_.size()];
  const auto widest = static_cast<size_t>(std::bit_width(lengths));
  const size_t end = std::min(text.size() + 1, widest == 64 ? longest_ + 1 : widest);
  for (size_t length = 0; length < end; ++length) {
    if (length > 0)
      hash = Extended(hash, text[length - 1]);
    if ((lengths & BitOf(length)) != 0)
      first = std::min(first, slots_[SlotOf(hash)].number);
  }
  if (first == Free)
    return std::nullopt;
  // A text that only shares its hash may have hidden the right one.
  return text.starts_with((*this)[first]) ? first : Scan(text);
}

std::optional<size_t> PrefixIndex::Scan(TextView text) const {
  for (size_t number = 0; number < size(); ++number)
    if (text.starts_with((*this)[number]))
      return number;
  return std::nullopt;
}
