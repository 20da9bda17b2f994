#pragma once

#include <span>
#include <vector>

namespace Score {

inline constexpr double BeatsPerMinute = 96;
inline constexpr int BeatsPerBar = 3;
inline constexpr int Bars = 16;

enum class Voice { Lute, Bass, Flute, Pad };

/// One note of the piece.
struct Note {
  Voice voice;
  /// Beats from the start of the piece.
  double start;
  /// Beats.
  double length;
  /// Half tones, 69 is A of 440 Hz.
  int pitch;
  /// 0 to 1.
  double strength;
};

/// The whole piece: a slow dance in the Dorian mode, the lute's strain, then the flute's.
[[nodiscard]] std::vector<Note> Piece();

}  // namespace Score
