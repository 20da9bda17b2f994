#pragma once

#include "platform/Text.h"

#include <cstdint>
#include <optional>
#include <span>

/// The kinds of mistakes that authors of maps and languages make, one row each: reports, the
/// manual and the explanations on the command line are made from these rows.
namespace Rules {

/// How bad a mistake is for who plays: the program ends; what was written is lost, unreachable or
/// in a wrong place; something is seen wrong or missed; a hint.
enum class Severity : std::uint8_t { Fatal, Error, Warning, Note };

/// Whether such a line is a mistake for certain.
enum class Confidence : std::uint8_t { Sure, Guess };

/// Who may mend it: nobody but the author; the program; the program if the author says so; the
/// program, as far as it can show that nothing else changes.
enum class Fixing : std::uint8_t { None, Safe, Unsafe, Proved };

// clang-format off
enum class Id : std::uint8_t {
  W01, W02, W03, W04, W05, W06, W07, W08, W09, W10, W11,
  F01, F02, F03, F04, F05, F06, F07, F08, F09, F10, F11, F12, F13, F14, F15, F16, F17,
  S01, S02, S03, S04, S05, S06, S07, S08, S09, S10,
  P01, P02, P03, P04, P05, P06, P07, P08, P09, P10, P11, P12, P13, P14, P15,
  L01, L02, L03, L04, L05,
  I01, I02, I03, I04, I05, I06, I07, I08, I09,
  G01, G02, G03,
  T01, T02, T03, T04, T05, T06, T07, T08, T09, T10, T11, T12, T13, T14, T15, T16, T17, T18, T19,
  T20, T21, T22,
};

// clang-format on

/// One kind of mistake.
struct Rule {
  Id id;
  /// As "S03".
  TextView number;
  /// As "header-indented".
  TextView name;
  Severity severity;
  Confidence confidence;
  Fixing fixing;
  /// What it looks like.
  TextView example;
  /// What who plays gets of it.
  TextView consequence;
  /// What to do about it.
  TextView advice;
};

/// All rows, in the order of `Id`.
[[nodiscard]] std::span<const Rule> All();

/// The row of this kind.
[[nodiscard]] const Rule& Of(Id id);

/// The row of this number, letter case set aside; null if there is none.
[[nodiscard]] const Rule* Find(TextView number);

/// "fatal", "error", "warning" or "note".
[[nodiscard]] TextView NameOf(Severity severity);

/// The severity of that name; none for any other text.
[[nodiscard]] std::optional<Severity> SeverityOf(TextView name);

}  // namespace Rules
