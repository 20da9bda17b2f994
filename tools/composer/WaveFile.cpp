#include "WaveFile.h"

#include <fstream>
#include <string>

namespace Composer {

namespace {

constexpr std::uint32_t Channels = 2;
constexpr std::uint32_t BytesPerFrame = Channels * 2;

// The format is little-endian on every machine.
void Append(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) {
    bytes += static_cast<char>((value >> (8 * i)) & 0xFFU);
  }
}

std::string Header(std::uint32_t dataSize, std::uint32_t sampleRate) {
  std::string bytes = "RIFF";
  Append(bytes, 36 + dataSize, 4);
  bytes += "WAVEfmt ";
  Append(bytes, 16, 4);
  Append(bytes, 1, 2);
  Append(bytes, Channels, 2);
  Append(bytes, sampleRate, 4);
  Append(bytes, sampleRate * BytesPerFrame, 4);
  Append(bytes, BytesPerFrame, 2);
  Append(bytes, 16, 2);
  bytes += "data";
  Append(bytes, dataSize, 4);
  return bytes;
}

}  // namespace

bool WriteWave(const std::filesystem::path& file, const std::vector<std::int16_t>& samples,
               int sampleRate) {
  std::string bytes = Header(static_cast<std::uint32_t>(samples.size() * 2),
                             static_cast<std::uint32_t>(sampleRate));
  for (const std::int16_t sample : samples) {
    Append(bytes, static_cast<std::uint16_t>(sample), 2);
  }
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  return stream.good();
}

}  // namespace Composer
