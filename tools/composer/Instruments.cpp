#include "Instruments.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Instruments {

namespace {

constexpr double TwoPi = 6.283185307179586;

double Frequency(int pitch) {
  return 440 * std::pow(2.0, (pitch - 69) / 12.0);
}

double Seconds(double beats) {
  return beats * 60 / Score::BeatsPerMinute;
}

std::size_t Samples(double seconds) {
  return static_cast<std::size_t>(seconds * SampleRate);
}

/// White noise, -1 to 1.
class Noise {
 public:
  explicit Noise(unsigned seed) : state_(seed * 2654435761U + 1) {}

  [[nodiscard]] double next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_ / 2147483648.0 - 1;
  }

 private:
  std::uint32_t state_;
};

// The last moments go to silence evenly; a cut would click.
void FadeOut(std::vector<double>& sound, double seconds) {
  const std::size_t length = std::min(sound.size(), Samples(seconds));
  for (std::size_t i = 0; i < length; ++i) {
    sound[sound.size() - 1 - i] *= static_cast<double>(i) / static_cast<double>(length);
  }
}

void FadeIn(std::vector<double>& sound, double seconds) {
  const std::size_t length = std::min(sound.size(), Samples(seconds));
  for (std::size_t i = 0; i < length; ++i) {
    sound[i] *= static_cast<double>(i) / static_cast<double>(length);
  }
}

// A string's shape when the finger leaves it: noise, the smoother the softer the touch, without
// offset and of the same energy for every pitch.
std::vector<double> Struck(std::size_t size, unsigned seed, double touch) {
  std::vector<double> string(size);
  Noise noise(seed);
  double smooth = 0;
  double smoother = 0;
  double sum = 0;
  for (double& sample : string) {
    smooth += (noise.next() - smooth) * touch;
    smoother += (smooth - smoother) * touch;
    sample = smoother;
    sum += sample;
  }
  double energy = 0;
  for (double& sample : string) {
    sample -= sum / static_cast<double>(size);
    energy += sample * sample;
  }
  const double gain = 0.35 / std::sqrt(energy / static_cast<double>(size));
  for (double& sample : string) {
    sample *= gain;
  }
  return string;
}

// A burst of noise that runs round a string and loses its brightness on the way.
std::vector<double> Pluck(const Score::Note& note, unsigned seed, double touch, double ring) {
  const double period = SampleRate / Frequency(note.pitch);
  const auto size = static_cast<std::size_t>(period - 0.5);
  // The averaging filter delays by half a sample; an all-pass gives what is still missing.
  const double missing = period - 0.5 - static_cast<double>(size);
  const double tuning = (1 - missing) / (1 + missing);
  std::vector<double> string = Struck(size, seed, touch);
  const double loss = std::pow(0.001, period / (ring * SampleRate));
  std::vector<double> sound(Samples(ring));
  double before = 0;
  double passedIn = 0;
  double passedOut = 0;
  for (std::size_t i = 0; i < sound.size(); ++i) {
    double& cell = string[i % size];
    sound[i] = cell;
    const double damped = loss * (cell + before) / 2;
    before = cell;
    const double tuned = tuning * damped + passedIn - tuning * passedOut;
    passedIn = damped;
    passedOut = tuned;
    cell = tuned;
  }
  for (double& sample : sound) {
    sample *= note.strength;
  }
  FadeIn(sound, 0.004);
  FadeOut(sound, 0.3);
  return sound;
}

double Envelope(double time, double length, double attack, double release) {
  const double rise = std::min(1.0, time / attack);
  const double fall = std::clamp((length + release - time) / release, 0.0, 1.0);
  return rise * rise * (3 - 2 * rise) * fall * fall;
}

std::vector<double> Flute(const Score::Note& note, unsigned seed) {
  const double length = Seconds(note.length) * 0.94;
  constexpr double Release = 0.14;
  std::vector<double> sound(Samples(length + Release));
  Noise noise(seed);
  double breath = 0;
  double phase = 0;
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const double time = static_cast<double>(i) / SampleRate;
    const double waver = std::min(1.0, time / 0.6) * 0.0045 * std::sin(TwoPi * 5.1 * time);
    phase += TwoPi * Frequency(note.pitch) * (1 + waver) / SampleRate;
    breath += (noise.next() - breath) * 0.16;
    const double tone = std::sin(phase) + 0.22 * std::sin(2 * phase) + 0.07 * std::sin(3 * phase);
    const double air = breath * (0.05 + 0.22 * std::exp(-time * 26));
    sound[i] = note.strength * Envelope(time, length, 0.06, Release) * (0.55 * tone + air);
  }
  return sound;
}

std::vector<double> Pad(const Score::Note& note) {
  const double length = Seconds(note.length);
  constexpr double Release = 1.1;
  std::vector<double> sound(Samples(length + Release));
  const double frequency = Frequency(note.pitch);
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const double time = static_cast<double>(i) / SampleRate;
    double tone = 0;
    for (const double detune : {0.9975, 1.0, 1.0026}) {
      const double angle = TwoPi * frequency * detune * time;
      tone += std::sin(angle) + 0.3 * std::sin(2 * angle) + 0.08 * std::sin(3 * angle);
    }
    sound[i] = note.strength * Envelope(time, length, 0.8, Release) * tone / 3;
  }
  return sound;
}

}  // namespace

std::vector<double> Play(const Score::Note& note, unsigned seed) {
  switch (note.voice) {
    case Score::Voice::Lute:
      return Pluck(note, seed, 0.42, 2.6);
    case Score::Voice::Bass:
      return Pluck(note, seed, 0.20, 3.6);
    case Score::Voice::Flute:
      return Flute(note, seed);
    case Score::Voice::Pad:
      return Pad(note);
  }
  return {};
}

}  // namespace Instruments
