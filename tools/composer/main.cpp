#include <cstdio>

#include "Instruments.h"
#include "Loop.h"
#include "Score.h"
#include "WaveFile.h"

namespace {

constexpr double RoomShare = 0.42;
constexpr double Peak = 0.80;

double SideOf(Score::Voice voice) {
  switch (voice) {
    case Score::Voice::Lute:
      return 0.38;
    case Score::Voice::Flute:
      return 0.64;
    case Score::Voice::Bass:
    case Score::Voice::Pad:
      break;
  }
  return 0.5;
}

std::size_t SampleOf(double beat) {
  return static_cast<std::size_t>(beat * 60 / Score::BeatsPerMinute * Instruments::SampleRate);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: composer FILE.wav\n", stderr);
    return 2;
  }
  Composer::Loop loop(SampleOf(Score::Bars * Score::BeatsPerBar));
  unsigned seed = 1;
  for (const Score::Note& note : Score::Piece()) {
    loop.add(Instruments::Play(note, seed++), SampleOf(note.start), SideOf(note.voice));
  }
  loop.addRoom(RoomShare);
  if (!Composer::WriteWave(argv[1], loop.samples(Peak), Instruments::SampleRate)) {
    std::fprintf(stderr, "composer: cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}
