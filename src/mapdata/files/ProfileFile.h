#pragma once

#include "mapdata/files/NameTable.h"
#include "mapdata/files/ProfileLines.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What became of reading a file.
enum class ReadState { Read, Missing, Empty, TooLarge, Unreadable };

/// A place in a file as an editor counts it: lines and characters from 1.
struct Place {
  size_t line = 1;
  size_t column = 1;
  bool operator==(const Place&) const = default;
};

/// One profile file, read once: its bytes and an index of its sections and keys. All names, keys
/// and values are views of these bytes, in Windows-1252, and can be asked for their place.
///
/// Two readers look at it and differ. Values are looked up without regard to letter case and to
/// blanks around names, in the first section of a name, and don't see lines that begin with ";".
/// The key list of a section needs the header line to be exactly "[name]" and takes every line.
class ProfileFile {
 public:
  /// Longer values are cut to this number of characters.
  static constexpr size_t LongestValue = 2047;

  struct Section {
    /// Without the blanks around it.
    std::string_view name;
    /// The whole line, with the blanks before and the text behind the name, without its end.
    std::string_view header;
    /// All lines up to the next header.
    std::string_view body;
  };

  explicit ProfileFile(std::string bytes, ReadState state = ReadState::Read);
  ProfileFile(const ProfileFile&) = delete;
  ProfileFile& operator=(const ProfileFile&) = delete;

  /// What became of reading it; a file that was not read is an empty one.
  [[nodiscard]] ReadState State() const { return state_; }

  [[nodiscard]] std::string_view Bytes() const { return bytes_; }

  /// All sections in file order, those of one name and those without included.
  [[nodiscard]] std::span<const Section> Sections() const { return sections_; }

  /// The lines before the first header, without the byte order mark.
  [[nodiscard]] ProfileLines::Lines LinesBefore() const;

  /// The lines of one section.
  [[nodiscard]] static ProfileLines::Lines Lines(const Section& section) {
    return ProfileLines::Lines(section.body);
  }

  /// The lines of the key list of the first section whose header line is exactly "[section]". It
  /// ends at the next line that begins with "[": an indented header ends none.
  [[nodiscard]] ProfileLines::Lines ListedLines(std::string_view section) const;

  /// The value of the first line with that key in the first section of that name, without the
  /// blanks and the one pair of quotes around it; none if there is no such line or it has no "=".
  [[nodiscard]] std::optional<std::string_view> Value(std::string_view section,
                                                      std::string_view key) const;

  /// The same, "" where there is none.
  [[nodiscard]] std::string_view Read(std::string_view section, std::string_view key) const {
    return Value(section, key).value_or(std::string_view());
  }

  /// The keys of `ListedLines` in file order.
  [[nodiscard]] std::vector<std::string_view> KeyNames(std::string_view section) const;

  /// Where the first character of a view into this file stands; none for any other view. The first
  /// question goes once through the file.
  [[nodiscard]] std::optional<Place> PlaceOf(std::string_view part) const;

  /// The file's bytes with the value set: in the first line of that key, else in a new line after
  /// the section's last line that is not blank, else in a new section at the end. Every other line
  /// stays; a last line without an end gets one.
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

  // Built at the first look-up in the section: most sections of a large file are never asked.
  struct KeyIndex {
    bool built = false;
    std::vector<KeyLine> lines;
    NameTable names;
  };

  [[nodiscard]] std::string_view Contents() const;
  [[nodiscard]] uint32_t Offset(std::string_view part) const;
  [[nodiscard]] std::string_view Key(const KeyLine& line) const;
  void IndexSections();
  [[nodiscard]] const KeyIndex& Keys(size_t section) const;
  [[nodiscard]] std::optional<size_t> FindSection(std::string_view name) const;
  [[nodiscard]] const KeyLine* FindKey(std::string_view section, std::string_view key) const;
  [[nodiscard]] std::string_view LineEnd() const;
  [[nodiscard]] std::string WithLineAt(size_t at, std::string_view lines) const;
  [[nodiscard]] std::string WithLineChanged(const KeyLine& line, std::string_view value) const;

  std::string bytes_;
  ReadState state_;
  std::vector<Section> sections_;
  mutable std::vector<KeyIndex> keys_;
  // The section found last: questions come by sections.
  mutable std::optional<size_t> lastFound_;
  NameTable sectionNames_;
  // Over the whole header lines, letter case counting.
  HashTable headers_;
  // Where each line starts.
  mutable std::vector<uint32_t> lineStarts_;
};
