#include "Score.h"

#include <array>

namespace Score {

namespace {

/// A melody note; pitch 0 is a rest.
struct Step {
  int pitch;
  double length;
};

/// Bass and the three upper tones of a bar's chord.
struct Chord {
  int bass;
  std::array<int, 3> tones;
};

constexpr Chord Dm{38, {57, 62, 65}};
constexpr Chord Am{45, {57, 60, 64}};
constexpr Chord F{41, {57, 60, 65}};
constexpr Chord C{36, {55, 60, 64}};
constexpr Chord G{43, {55, 59, 62}};

constexpr Chord Harmony[Bars] = {Dm, Am, F, C, Dm, Am, G, Dm, F, C, Dm, Am, F, C, G, Dm};

constexpr Step LuteStrain[] = {{74, 1},   {77, 1}, {76, 0.5}, {74, 0.5}, {76, 1.5}, {72, 0.5},
                               {69, 1},   {72, 1}, {77, 1},   {76, 0.5}, {77, 0.5}, {79, 2},
                               {76, 1},   {77, 1}, {81, 1},   {79, 0.5}, {77, 0.5}, {76, 1.5},
                               {74, 0.5}, {72, 1}, {71, 1},   {74, 0.5}, {72, 0.5}, {71, 0.5},
                               {67, 0.5}, {74, 2}, {69, 1}};

constexpr Step FluteStrain[] = {{81, 1},   {81, 0.5}, {79, 0.5}, {77, 1},   {79, 1.5}, {76, 0.5},
                                {72, 1},   {77, 1},   {76, 0.5}, {74, 0.5}, {77, 1},   {76, 2},
                                {69, 1},   {72, 0.5}, {74, 0.5}, {76, 0.5}, {77, 0.5}, {79, 1},
                                {76, 1},   {79, 0.5}, {76, 0.5}, {72, 1},   {71, 1},   {74, 1},
                                {72, 0.5}, {71, 0.5}, {74, 2.5}, {0, 0.5}};

/// Long tones of the flute above the second half of the lute's strain.
constexpr Step FluteAnswer[] = {{69, 2}, {72, 1}, {76, 3}, {74, 2}, {71, 1}, {69, 2.5}, {0, 0.5}};

/// What the lute sings below the flute.
constexpr Step LuteAnswer[] = {{72, 2}, {69, 1}, {67, 2}, {69, 1}, {69, 2}, {72, 1},
                               {72, 1}, {71, 1}, {69, 1}, {69, 2}, {72, 1}, {67, 1},
                               {72, 1}, {67, 1}, {67, 1}, {71, 1}, {67, 1}, {69, 3}};

// Which chord tone each eighth of a bar plucks; the first is left to the bass.
constexpr int Pattern[] = {0, 1, 2, 1, 2};

void Sing(std::vector<Note>& notes, std::span<const Step> steps, Voice voice, int bar,
          double strength) {
  double start = bar * BeatsPerBar;
  for (const Step& step : steps) {
    if (step.pitch > 0) {
      // The first beat of a bar is the heavy one.
      const bool heavy =
          static_cast<int>(start) % BeatsPerBar == 0 && start == static_cast<int>(start);
      notes.push_back({voice, start, step.length, step.pitch, strength * (heavy ? 1.0 : 0.86)});
    }
    start += step.length;
  }
}

void Accompany(std::vector<Note>& notes, int bar) {
  const Chord& chord = Harmony[bar];
  const double start = bar * BeatsPerBar;
  notes.push_back({Voice::Bass, start, BeatsPerBar, chord.bass, 0.62});
  double eighth = start + 0.5;
  for (const int tone : Pattern) {
    notes.push_back({Voice::Lute, eighth, 1.5, chord.tones[static_cast<std::size_t>(tone)], 0.30});
    eighth += 0.5;
  }
  for (const int tone : chord.tones) {
    notes.push_back({Voice::Pad, start, BeatsPerBar, tone, 0.16});
  }
}

}  // namespace

std::vector<Note> Piece() {
  std::vector<Note> notes;
  for (int bar = 0; bar < Bars; ++bar) {
    Accompany(notes, bar);
  }
  Sing(notes, LuteStrain, Voice::Lute, 0, 0.80);
  Sing(notes, FluteAnswer, Voice::Flute, 4, 0.26);
  Sing(notes, FluteStrain, Voice::Flute, 8, 0.46);
  Sing(notes, LuteAnswer, Voice::Lute, 8, 0.46);
  return notes;
}

}  // namespace Score
