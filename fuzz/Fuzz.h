#pragma once

#include "platform/NativePath.h"
#include "platform/Text.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

/// What the fuzz targets share.
namespace Fuzz {

/// Ends the program with its name and a core for the fuzzer if the promise does not hold.
inline void Require(bool holds, const char* promise) {
  if (holds)
    return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

/// The bytes up to the next line feed, taken off the front of the input with it.
[[nodiscard]] inline std::string_view TakeField(std::string_view& input) {
  const std::string_view field = input.substr(0, input.find('\n'));
  input.remove_prefix(std::min(field.size() + 1, input.size()));
  return field;
}

/// A file that holds one input after the other, for readers that take a path. One a process.
class InputFile {
 public:
  InputFile()
      : native_((std::filesystem::temp_directory_path() /
                 ("orvalis-fuzz-" + std::to_string(::getpid())))
                    .string()) {}

  ~InputFile() { ::unlink(native_.c_str()); }

  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  /// Puts the bytes into the file.
  void Hold(std::string_view bytes) const {
    std::ofstream file(native_, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  /// The file's path as the program composes it.
  [[nodiscard]] Text Path() const { return NativePath::FromBytes(native_); }

 private:
  std::string native_;
};

}  // namespace Fuzz
