#pragma once

#include "platform/NativePath.h"
#include "platform/Text.h"
#include "support/Content.h"

#include <cstdlib>

/// A folder of a test's own, gone with its object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvalis-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }

  ~TemporaryFolder() { std::filesystem::remove_all(path_); }

  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The bytes of a path in the folder.
  [[nodiscard]] std::string Native(const std::string& name) const { return path_ + '/' + name; }

  /// A path in the folder as the program composes it.
  [[nodiscard]] Text Path(TextView name) const {
    return Texts::Join(NativePath::FromBytes(path_), u"/", name);
  }

  /// The folder itself as the program knows it, without a separator at its end.
  [[nodiscard]] Text Folder() const { return NativePath::FromBytes(path_); }

  /// Writes a file, and the folders that it needs.
  void Write(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories(std::filesystem::path(Native(name)).parent_path());
    std::ofstream(Native(name), std::ios::binary) << bytes;
  }

  [[nodiscard]] std::string Read(const std::string& name) const { return ContentOf(Native(name)); }

 private:
  std::string path_;
};
