#pragma once

#include "check/Rules.h"
#include "check/Source.h"

#include <string>
#include <vector>

/// Bytes of a file to be replaced.
struct Edit {
  const Source* source = nullptr;
  size_t offset = 0;
  size_t length = 0;
  std::string bytes;
};

/// One mistake: where it stands, what it does to who plays, and what to do about it.
struct Finding {
  Rules::Id rule{};
  Rules::Severity severity{};
  /// The path below the world's folder.
  Text file;
  /// Null for what concerns a file that is no profile file, or that is not there.
  const Source* source = nullptr;
  size_t offset = 0;
  size_t length = 0;
  Text section;
  Text key;
  Text message;
  Text consequence;
  Text advice;
  /// What mends it; empty where only the author can.
  std::vector<Edit> edits;
  /// Whether the edits change nothing but what the finding tells.
  bool isSafe = false;
  /// What a line that counts stands for.
  std::vector<Text> details;
};

/// What the checks found, in the order in which they looked.
class Findings {
 public:
  /// A mistake in these words of the file.
  Finding& Add(Rules::Id rule, const Source& source, std::string_view words);

  /// A mistake of a whole file, given by its path below the world's folder.
  Finding& Add(Rules::Id rule, Text file);

  /// The file lacks the section that it is read for, and none of its lines counts.
  void AddNoSection(Rules::Id rule, const Source& source, TextView section);

  /// How many findings of the rule there are: what takes time is only told of the first ones.
  [[nodiscard]] size_t CountOf(Rules::Id rule) const { return counts_[static_cast<size_t>(rule)]; }

  /// Whether nearest names are still to be sought for the rule.
  [[nodiscard]] bool IsWorthHelp(Rules::Id rule) const { return CountOf(rule) <= MostHelped; }

  std::vector<Finding> all;

 private:
  static constexpr size_t MostHelped = 20;

  Finding& Count(Finding finding);

  std::vector<size_t> counts_ = std::vector<size_t>(Rules::All().size());
};
