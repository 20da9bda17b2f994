#include "platform/WaveFile.h"

#include "platform/PosixFile.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace {

constexpr size_t LargestFile = size_t{64} * 1024 * 1024;
constexpr size_t FileHeaderSize = 12;
constexpr size_t ChunkHeaderSize = 8;
constexpr size_t SmallestFormat = 16;
constexpr uint32_t Uncompressed = 1;

// `count` bytes at an offset as a number, the lowest first.
uint32_t Number(std::string_view bytes, size_t at, size_t count) {
  uint32_t number = 0;
  for (size_t i = count; i > 0; --i)
    number = number << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  return number;
}

bool IsPcm(std::string_view format) {
  return format.size() >= SmallestFormat && Number(format, 0, 2) == Uncompressed &&
         Number(format, 2, 2) > 0 && Number(format, 4, 4) > 0;
}

bool HasWholeSamples(std::string_view chunks) {
  bool known = false;
  while (chunks.size() >= ChunkHeaderSize) {
    const std::string_view name = chunks.substr(0, 4);
    const size_t size = Number(chunks, 4, 4);
    chunks.remove_prefix(ChunkHeaderSize);
    if (size > chunks.size())
      return false;
    if (name == "data")
      return known && size > 0;
    known = known || (name == "fmt " && IsPcm(chunks.substr(0, size)));
    // Chunks begin at even offsets.
    chunks.remove_prefix(std::min(size + size % 2, chunks.size()));
  }
  return false;
}

}  // namespace

namespace WaveFile {

bool IsPlayable(const std::string& path) {
  const auto file = PosixFile::Read(path, LargestFile);
  if (!file || file->bytes.size() < FileHeaderSize)
    return false;
  const std::string_view bytes = file->bytes;
  return bytes.starts_with("RIFF") && bytes.substr(8, 4) == "WAVE" &&
         HasWholeSamples(bytes.substr(FileHeaderSize));
}

}  // namespace WaveFile
