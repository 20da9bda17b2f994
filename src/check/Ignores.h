#pragma once

#include "check/Finding.h"
#include "check/Index.h"

#include <vector>

/// What the author of a world does not want to be told of: the section "ignore" of
/// `orvalis-check.ini` beside the world, `RULE=pattern, pattern`, and lines
/// `; orvalis-check: ignore RULE, RULE` above the first section of a file.
///
/// A pattern is of the file's name, or of "file:section" or "file:section:key"; "*" stands for any
/// text.
class Ignores {
 public:
  explicit Ignores(Index& index);

  /// Whether the finding is one that the author meant.
  [[nodiscard]] bool Covers(const Finding& finding) const;

 private:
  struct Entry {
    Text rule;
    Text pattern;
  };

  void Read(const Source& source);

  std::vector<Entry> entries_;
};
