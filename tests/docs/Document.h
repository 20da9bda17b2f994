#pragma once

#include "platform/NativePath.h"

#include <map>
#include <string>
#include <vector>

/// One page of docs/ as the tests see it: its fenced blocks and its tables.
struct Document {
  /// A fenced block; its first line is "```word name=value name="value with blanks"".
  struct Block {
    size_t line = 0;
    /// Number of the chapter ("## ") it stands in; the files of a chapter form one program folder.
    size_t chapter = 0;
    std::map<std::string, std::string> attributes;
    std::vector<std::string> body;
  };

  /// A row of a table, with the code marks around its cells removed.
  struct Row {
    /// The last heading above it, without its "#" signs.
    std::string heading;
    std::vector<std::string> cells;
  };

  std::vector<Block> blocks;
  std::vector<Row> rows;

  /// The page `name` of docs/; the heads of tables are left out.
  [[nodiscard]] static Document Read(const std::string& name);

  /// A cell without the code marks around it.
  [[nodiscard]] static std::string WithoutMarks(const std::string& cell);

  /// The rows of all tables directly below that heading.
  [[nodiscard]] std::vector<std::vector<std::string>> Table(const std::string& heading) const;
};

/// A text in UTF-8, as the pages are written.
inline constexpr auto* Narrow = &NativePath::ToBytes;
