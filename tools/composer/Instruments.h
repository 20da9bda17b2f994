#pragma once

#include <vector>

#include "Score.h"

namespace Instruments {

inline constexpr int SampleRate = 44100;

/// The sound of one note from its start until it has died away, one channel, about -1 to 1.
/// Equal notes with equal seeds sound equal.
[[nodiscard]] std::vector<double> Play(const Score::Note& note, unsigned seed);

}  // namespace Instruments
