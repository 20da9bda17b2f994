#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace Composer {

/// Writes 16-bit PCM of two channels as a RIFF wave file; false where that fails.
[[nodiscard]] bool WriteWave(const std::filesystem::path& file,
                             const std::vector<std::int16_t>& samples, int sampleRate);

}  // namespace Composer
