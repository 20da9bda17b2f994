#pragma once

#include <string>

/// Wave files, looked at before the desktop plays them: sound libraries take the memory that a
/// header claims before they look for the samples.
namespace WaveFile {

/// Whether the file (path in the system's bytes) is a whole wave file of uncompressed samples, at
/// most 64 MB long.
[[nodiscard]] bool IsPlayable(const std::string& path);

}  // namespace WaveFile
