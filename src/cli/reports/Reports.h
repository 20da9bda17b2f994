#pragma once

#include "check/Check.h"
#include "cli/Console.h"

#include <string>

/// What was found, in the forms that people and programs read.
namespace Reports {

/// For people: each finding with its line, what it does and what to do about it. `verbose` lists
/// what stands behind a count.
[[nodiscard]] std::string AsText(const Check::Answer& answer, const Console::Style& style,
                                 bool verbose);

/// One line a finding, as editors read them.
[[nodiscard]] std::string AsShort(const Check::Answer& answer, const Console::Style& style);

/// Everything, for programs.
[[nodiscard]] std::string AsJson(const Check::Answer& answer);

/// SARIF 2.1.0, for services that show findings beside code; the 5,000 worst.
[[nodiscard]] std::string AsSarif(const Check::Answer& answer);

/// How many findings of each severity there are, in words.
[[nodiscard]] Text Summary(const Check::Answer& answer);

}  // namespace Reports
