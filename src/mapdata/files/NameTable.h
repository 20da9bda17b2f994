#pragma once

#include "mapdata/files/NameHash.h"
#include "mapdata/files/ProfileLines.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// An open-addressing table of numbers; users know what a number stands for.
class HashTable {
 public:
  /// Empties the table and makes room for that many numbers.
  void Reset(size_t count) { slots_.assign(std::bit_ceil(count * 2 + 2), {}); }

  /// Registers the number, unless one of this hash is there for which `same` holds.
  template <typename Same>
  void Add(uint32_t hash, uint32_t number, Same same) {
    if (Slot& slot = slots_[SlotOf(hash, same)]; slot.number == Free)
      slot = {number, hash};
  }

  /// The first number registered of those with this hash for which `same` holds.
  template <typename Same>
  [[nodiscard]] std::optional<uint32_t> Find(uint32_t hash, Same same) const {
    const uint32_t number = slots_.empty() ? Free : slots_[SlotOf(hash, same)].number;
    return number == Free ? std::nullopt : std::optional(number);
  }

 private:
  static constexpr uint32_t Free = 0xFFFFFFFF;

  struct Slot {
    uint32_t number = Free;
    uint32_t hash = 0;
  };

  template <typename Same>
  [[nodiscard]] size_t SlotOf(uint32_t hash, Same same) const {
    const size_t mask = slots_.size() - 1;
    size_t at = hash & mask;
    while (slots_[at].number != Free && (slots_[at].hash != hash || !same(slots_[at].number)))
      at = (at + 1) & mask;
    return at;
  }

  std::vector<Slot> slots_;
};

/// Names found in any letter case: the first that differs in the case of ASCII letters alone, else
/// the first that differs in that of any letter of the code page. A file may hold "Š" and "š" as
/// two keys.
class NameTable {
 public:
  /// Registers the names 0 to `count` - 1, which `nameAt` gives.
  template <typename NameAt>
  void Build(size_t count, NameAt nameAt) {
    size_t beyondAscii = 0;
    ascii_.Reset(count);
    for (uint32_t i = 0; i < count; ++i) {
      const std::string_view name = nameAt(i);
      beyondAscii += IsAscii(name) ? 0 : 1;
      ascii_.Add(AsciiHash(name), i,
                 [&](uint32_t other) { return ProfileLines::SameAscii(nameAt(other), name); });
    }
    if (beyondAscii == 0)
      return;
    folded_.Reset(beyondAscii);
    for (uint32_t i = 0; i < count; ++i)
      if (const std::string_view name = nameAt(i); !IsAscii(name))
        folded_.Add(FoldedHash(name), i,
                    [&](uint32_t other) { return ProfileLines::SameName(nameAt(other), name); });
  }

  template <typename NameAt>
  [[nodiscard]] std::optional<uint32_t> Find(std::string_view name, NameAt nameAt) const {
    const auto found = ascii_.Find(
        AsciiHash(name), [&](uint32_t i) { return ProfileLines::SameAscii(nameAt(i), name); });
    if (found || IsAscii(name))
      return found;
    return folded_.Find(FoldedHash(name),
                        [&](uint32_t i) { return ProfileLines::SameName(nameAt(i), name); });
  }

 private:
  [[nodiscard]] static bool IsAscii(std::string_view name) {
    return std::none_of(name.begin(), name.end(),
                        [](char byte) { return static_cast<unsigned char>(byte) > 0x7F; });
  }

  // No plain functions: the compiler calls those for each byte.
  [[nodiscard]] static uint32_t AsciiHash(std::string_view name) {
    return NameHash::Of(name, [](unsigned char byte) { return ProfileLines::LowerAscii(byte); });
  }

  [[nodiscard]] static uint32_t FoldedHash(std::string_view name) {
    return NameHash::Of(name, [](unsigned char byte) { return Windows1252::Fold(byte); });
  }

  HashTable ascii_;
  // Only of names with letters beyond ASCII: for all others it would equal the first table.
  HashTable folded_;
};
