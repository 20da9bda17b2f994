#include "platform/WaveFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

std::string Little(uint32_t number, size_t count) {
  std::string bytes;
  for (size_t i = 0; i < count; ++i)
    bytes.push_back(static_cast<char>(number >> (8 * i)));
  return bytes;
}

std::string Wave(uint32_t claimed, size_t present, uint32_t format = 1) {
  return "RIFF" + Little(claimed + 36, 4) + "WAVEfmt " + Little(16, 4) + Little(format, 2) +
         Little(1, 2) + Little(22050, 4) + Little(44100, 4) + Little(2, 2) + Little(16, 2) +
         "data" + Little(claimed, 4) + std::string(present, '\0');
}

}  // namespace

TEST(WaveFile, OnlyWholeFilesOfPlainSamplesArePlayed) {
  const struct {
    const char* what;
    std::string bytes;
    bool playable;
  } table[] = {
      {"whole", Wave(64, 64), true},
      {"other chunk first", Wave(64, 64).insert(12, "LIST" + Little(3, 4) + "abc" + '\0'), true},
      {"cut off", Wave(64, 60), false},
      {"claims 4 GB", Wave(0xFFFFFFFF, 64), false},
      {"of no format", Wave(64, 64, 0), true},
      {"compressed", Wave(64, 64, 85), false},
      {"no samples", Wave(0, 0), false},
      {"no format", "RIFF" + Little(12, 4) + "WAVEdata" + Little(4, 4) + "abcd", false},
      {"no wave file", "ID3 something else altogether", false},
      {"empty", "", false},
  };

  const TemporaryFolder folder;
  const auto isPlayable = [&folder](const char* name) {
    return WaveFile::IsPlayable(PosixFile::OpenFile(folder.Native(name)));
  };
  for (const auto& row : table) {
    folder.Write("a.wav", row.bytes);
    EXPECT_EQ(isPlayable("a.wav"), row.playable) << row.what;
  }
  EXPECT_FALSE(isPlayable("none.wav"));
  EXPECT_FALSE(isPlayable(""));
  constexpr uint32_t claimed = 500'000'000;
  folder.Write("long.wav", Wave(claimed, 0));
  std::filesystem::resize_file(folder.Native("long.wav"), claimed + Wave(0, 0).size());
  EXPECT_TRUE(isPlayable("long.wav"));
}
