#pragma once

#include "mapdata/files/NameTable.h"
#include "platform/Text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// A list of texts that finds the first of them that another text begins with, in time that grows
/// with that text's length and not with the list's.
class PrefixIndex {
 public:
  PrefixIndex() = default;
  explicit PrefixIndex(std::span<const Text> prefixes);
  /// Of texts in Windows-1252.
  explicit PrefixIndex(std::span<const std::string_view> prefixes);

  /// The number of the first text that is a prefix of `text`; none if there is no such text. The
  /// empty text is a prefix of every other.
  [[nodiscard]] std::optional<size_t> FirstPrefixOf(TextView text) const;

  [[nodiscard]] TextView operator[](size_t number) const {
    const size_t begin = number == 0 ? 0 : ends_[number - 1];
    return TextView(joined_).substr(begin, ends_[number] - begin);
  }

  [[nodiscard]] size_t size() const { return ends_.size(); }

 private:
  void AddAll();
  void Add(uint32_t number);
  void AddLength(TextView prefix);
  [[nodiscard]] std::optional<size_t> Scan(TextView text) const;

  // All texts in one, and where each ends: thousands of small ones cost more to allocate than to
  // read.
  Text joined_;
  std::vector<size_t> ends_;
  HashTable table_;
  // A bit for each length of the texts that share the low bits of a first unit, so that most
  // lengths need no look-up. The last bit stands for all longer ones too.
  std::array<uint64_t, 64> lengths_{};
  size_t longest_ = 0;
};
