#pragma once

#include "mapdata/files/ProfileFile.h"
#include "mapdata/files/ProfileLines.h"
#include "platform/Text.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// One file of a world with the places of everything in it. All views are of the file's bytes.
class Source {
 public:
  /// What a file is to the program.
  enum class Kind { Settings, Data, Info, Pictures, Language };

  static constexpr size_t None = static_cast<size_t>(-1);

  /// One line as both readers of profile files take it.
  struct Line {
    ProfileLines::Line text;
    ProfileLines::Entry entry;
    /// Whether the list of keys takes it, and what of it.
    bool isListed = false;
    std::string_view listed;
    /// The number of the section that the reader of values finds it in; `None` above the first.
    size_t section = None;
    /// The number of the section whose key list it is in; `None` above the first.
    size_t listedIn = None;
  };

  /// One section by its header line.
  struct Section {
    std::string_view name;
    std::string_view header;
    /// The number of the header's line.
    size_t line = 0;
    /// Behind the last line of its values, and of its key list.
    size_t end = 0;
    size_t listEnd = 0;
    /// Whether the header is the name in brackets and nothing else.
    bool plain = false;
    /// Whether it is the first of exactly this header, and so the one whose keys are listed.
    bool listed = false;
    /// Whether look-ups of this name find their values here.
    bool found = false;

    /// Whether keys and values of this name come from the same lines.
    [[nodiscard]] bool IsSound() const { return plain && listed && found; }
  };

  /// `name` is the path below the world's folder, "/" between its parts.
  Source(Kind kind, Text path, Text name, std::shared_ptr<const ProfileFile> file);

  Kind kind;
  Text path;
  Text name;

  [[nodiscard]] const ProfileFile& File() const { return *file_; }

  [[nodiscard]] std::string_view Bytes() const { return file_->Bytes(); }

  [[nodiscard]] const std::vector<Line>& Lines() const { return lines_; }

  /// How many lines have a key and a value.
  [[nodiscard]] size_t EntryCount() const;

  [[nodiscard]] const std::vector<Section>& Sections() const { return sections_; }

  /// The number of the section whose values a look-up of this name finds; `None` without one.
  [[nodiscard]] size_t FindSection(std::string_view name) const;

  /// The number of the section whose keys are listed under this name; `None` without one.
  [[nodiscard]] size_t FindListed(std::string_view name) const;

  /// The number of the first byte of the part.
  [[nodiscard]] size_t Offset(std::string_view part) const {
    return static_cast<size_t>(part.data() - Bytes().data());
  }

  /// The line and column of a byte, both from 1.
  [[nodiscard]] Place PlaceOf(size_t offset) const;

  /// The line that holds the byte, without its end.
  [[nodiscard]] std::string_view LineAt(size_t offset) const;

 private:
  void AddLine(const ProfileLines::Line& text, size_t section, size_t listedIn);
  void ReadLines();
  void CloseSections();

  std::shared_ptr<const ProfileFile> file_;
  std::vector<Line> lines_;
  std::vector<Section> sections_;
  std::unordered_map<std::string, size_t> names_;
  std::unordered_map<std::string, size_t> headers_;
};
