#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One profile file, read once: its bytes and an index of its sections and keys. All names, keys
/// and values are views of these bytes, in Windows-1252.
///
/// Two readers look at it and differ. Values are looked up without regard to letter case and to
/// blanks around names, in the first section of a name, and don't see lines that begin with ";".
/// The key list of a section needs the header line to be exactly "[name]" and takes every line.
class ProfileFile {
 public:
  explicit ProfileFile(std::string bytes);
  ProfileFile(const ProfileFile&) = delete;
  ProfileFile& operator=(const ProfileFile&) = delete;

  /// The value of the first line with that key in the first section of that name, without the
  /// blanks and the one pair of quotes around it; none if there is no such line or it has no "=".
  [[nodiscard]] std::optional<std::string_view> Value(std::string_view section,
                                                      std::string_view key) const;

  /// The names of all sections in file order, duplicates included, without blanks around them.
  [[nodiscard]] std::vector<std::string_view> SectionNames() const;

  /// The texts before the first "=" of every line of the first section whose header line is
  /// exactly "[section]", in file order, spaces around them removed; lines of spaces are skipped.
  [[nodiscard]] std::vector<std::string_view> KeyNames(std::string_view section) const;

  /// The file's bytes with the value set: in the first line of that key, else in a new line after
  /// the last key of the section, else in a new section at the end. Every other line stays.
  [[nodiscard]] std::string WithValue(std::string_view section, std::string_view key,
                                      std::string_view value) const;

 private:
  // Where key and value stand in the file: half the memory that views take.
  struct KeyLine {
    uint32_t key;
    uint32_t keyLength;
    uint32_t value;
    // `NoValue` for a line without "=".
    uint32_t valueLength;
  };

  static constexpr uint32_t NoValue = 0xFFFFFFFF;

  // A slot of an open-addressing table of names that ignores letter case.
  struct Slot {
    uint32_t number;
    uint32_t hash;
  };

  using Slots = std::vector<Slot>;

  struct Section {
    std::string_view name;
    // The whole line, with the blanks before and the text behind the name.
    std::string_view header;
    std::string_view body;
    // Built at the first look-up in the section: most sections of a large file are never asked.
    mutable bool indexed = false;
    mutable std::vector<KeyLine> lines;
    mutable Slots slots;
  };

  [[nodiscard]] std::string_view Lines() const;
  [[nodiscard]] uint32_t Offset(std::string_view part) const;
  [[nodiscard]] std::string_view Key(const KeyLine& line) const;
  void IndexSections();
  void IndexKeys(const Section& section) const;
  [[nodiscard]] const Section* FindSection(std::string_view name) const;
  [[nodiscard]] std::string_view LinesBelow(std::string_view header) const;
  [[nodiscard]] const KeyLine* FindKey(std::string_view section, std::string_view key) const;
  [[nodiscard]] std::string_view LineEnd() const;

  std::string bytes_;
  std::vector<Section> sections_;
  // The section found last: questions come by sections.
  mutable const Section* lastFound_ = nullptr;
  Slots sectionSlots_;
  // Over the whole header lines, letter case counting.
  Slots headerSlots_;
};
