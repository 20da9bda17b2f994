#pragma once

#include "platform/PosixFile.h"

/// Wave files, looked at before the desktop plays them: sound libraries take the memory that a
/// header claims before they look for the samples.
namespace WaveFile {

/// Whether the file is a whole wave file of uncompressed samples, as many as there may be. Only its
/// headers are read.
[[nodiscard]] bool IsPlayable(const PosixFile::OpenFile& file);

}  // namespace WaveFile
