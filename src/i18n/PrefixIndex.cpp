#include "i18n/PrefixIndex.h"

#include "mapdata/files/NameHash.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <bit>
#include <string>

namespace {

constexpr uint64_t WordOf(char16_t unit) {
  // Not 0, so that every prefix has another hash.
  return uint64_t{unit} + 1;
}

// The first text of a hash stands for all that share it.
bool OfSameHash(uint32_t) {
  return true;
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
  table_.Reset(size());
  for (uint32_t number = 0; number < size(); ++number)
    Add(number);
}

void PrefixIndex::Add(uint32_t number) {
  const TextView prefix = (*this)[number];
  NameHash hash;
  for (const char16_t unit : prefix)
    hash.Add(WordOf(unit));
  table_.Add(hash.Value(), number, OfSameHash);
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

std::optional<size_t> PrefixIndex::FirstPrefixOf(TextView text) const {
  std::optional<size_t> first;
  NameHash hash;
  const uint64_t lengths = lengths_[text.empty() ? 0 : text.front() % lengths_.size()];
  const auto widest = static_cast<size_t>(std::bit_width(lengths));
  const size_t end = std::min(text.size() + 1, widest == 64 ? longest_ + 1 : widest);
  for (size_t length = 0; length < end; ++length) {
    if (length > 0)
      hash.Add(WordOf(text[length - 1]));
    if ((lengths & BitOf(length)) == 0)
      continue;
    if (const auto found = table_.Find(hash.Value(), OfSameHash))
      first = std::min<size_t>(first.value_or(*found), *found);
  }
  if (!first)
    return std::nullopt;
  // A text that only shares its hash may have hidden the right one.
  return text.starts_with((*this)[*first]) ? first : Scan(text);
}

std::optional<size_t> PrefixIndex::Scan(TextView text) const {
  for (size_t number = 0; number < size(); ++number)
    if (text.starts_with((*this)[number]))
      return number;
  return std::nullopt;
}
