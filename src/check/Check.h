#pragma once

#include "check/Finding.h"
#include "check/Index.h"

#include <array>
#include <functional>

/// Everything that is wrong with a world, as the viewer's own readers see it.
namespace Check {

/// What is asked.
struct Question {
  /// The world's folder, without a separator at its end.
  Text folder;
  /// Whether the language of this folder, or of this name, is looked at.
  std::function<bool(TextView)> wantsLanguage = [](TextView) { return true; };
  PictureOf pictureOf;
  /// Numbers of rules, or their first letters; empty for all.
  std::vector<Text> select;
  /// Numbers of rules, or their first letters, that are not looked for.
  std::vector<Text> ignore;
  /// Files that are taken for other than they are.
  std::vector<Index::Assumed> assumed;
};

/// A world and what was found in it, the worst first.
struct Answer {
  explicit Answer(const Question& question)
      : index(question.folder, question.pictureOf, question.wantsLanguage, question.assumed) {}

  Index index;
  std::vector<Finding> findings;

  /// How many findings of each severity there are.
  [[nodiscard]] std::array<size_t, 4> Counts() const;
};

/// Checks the world. Never stops at a fault, and writes nothing.
[[nodiscard]] std::unique_ptr<Answer> Run(const Question& question);

/// Whether the rule is one of these: by its number or the letter of its group.
[[nodiscard]] bool IsOneOf(const std::vector<Text>& numbers, const Rules::Rule& rule);

}  // namespace Check
