#include "platform/WaveFile.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

constexpr size_t FileHeaderSize = 12;
constexpr size_t ChunkHeaderSize = 8;
constexpr size_t SmallestFormat = 16;
constexpr uint32_t LastUncompressed = 1;
// Real files have a handful; each costs a read.
constexpr int MaximumChunks = 1000;

// `count` bytes at an offset as a number, the lowest first.
uint32_t Number(std::string_view bytes, size_t at, size_t count) {
  uint32_t number = 0;
  for (size_t i = count; i > 0; --i)
    number = number << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  return number;
}

// Tag 0, which names no format, is played as plain samples too.
bool IsUncompressed(std::string_view format) {
  return format.size() >= SmallestFormat && Number(format, 0, 2) <= LastUncompressed &&
         Number(format, 2, 2) > 0 && Number(format, 4, 4) > 0;
}

bool HasWholeSamples(const PosixFile::OpenFile& file) {
  const uint64_t end = file.FileStamp().size;
  uint64_t at = FileHeaderSize;
  bool known = false;
  for (int chunk = 0; chunk < MaximumChunks; ++chunk) {
    const std::string header = file.Part(at, ChunkHeaderSize);
    if (header.size() < ChunkHeaderSize)
      return false;
    const uint64_t size = Number(header, 4, 4);
    at += ChunkHeaderSize;
    if (size > end - at)
      return false;
    if (header.starts_with("data"))
      return known && size > 0;
    known = known || (header.starts_with("fmt ") && size >= SmallestFormat &&
                      IsUncompressed(file.Part(at, SmallestFormat)));
    // Chunks begin at even offsets.
    at = std::min(at + size + size % 2, end);
  }
  return false;
}

}  // namespace

namespace WaveFile {

bool IsPlayable(const PosixFile::OpenFile& file) {
  const std::string header = file.Part(0, FileHeaderSize);
  return header.size() == FileHeaderSize && header.starts_with("RIFF") &&
         header.ends_with("WAVE") && HasWholeSamples(file);
}

}  // namespace WaveFile
