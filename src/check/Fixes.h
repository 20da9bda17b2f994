#pragma once

#include "check/Check.h"

#include <string>
#include <vector>

/// Mending what was found, as far as it can be shown that nothing else changes.
namespace Fixes {

/// A file and what it becomes.
struct Change {
  const Source* source = nullptr;
  std::vector<Edit> edits;
  std::string bytes;
};

/// The changes that mend the answer's findings: each proved by asking all readers again with the
/// changed bytes. A fix stays away if something beside what it names would change, or if there
/// would be a mistake that was not there before. `unsafe` tries what the author must judge as well.
[[nodiscard]] std::vector<Change> Plan(const Check::Question& question, Check::Answer& answer,
                                       bool unsafe);

}  // namespace Fixes
