#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What the program needs of the system's files, by POSIX; paths are the system's bytes.
namespace PosixFile {

/// What tells two states of a file apart. Times are in nanoseconds since 1970.
struct Stamp {
  uint64_t device = 0;
  uint64_t inode = 0;
  uint64_t size = 0;
  int64_t modified = 0;
  int64_t changed = 0;
  bool operator==(const Stamp&) const = default;
};

/// A file's bytes, and its stamp when they were read.
struct Contents {
  std::string bytes;
  Stamp stamp;
};

/// The folder that a path names something in, without a separator at its end; "." if it names none.
[[nodiscard]] std::string FolderOf(const std::string& path);

/// Whether anything stands under the path.
[[nodiscard]] bool Exists(const std::string& path);

/// The stamp of a regular file, links followed; none for anything else.
[[nodiscard]] std::optional<Stamp> RegularFile(const std::string& path);

/// The whole regular file; none if there is none, it can't be read, or it is larger than
/// `maximum` bytes. Never waits for a device or a pipe.
[[nodiscard]] std::optional<Contents> Read(const std::string& path, size_t maximum);

/// A regular file open for reading, for callers that want parts of it. Never waits for a device or
/// a pipe.
class OpenFile {
 public:
  explicit OpenFile(const std::string& path);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  /// False if there is no such file or it can't be read; it is then of 0 bytes.
  [[nodiscard]] bool IsOpen() const { return number_ >= 0; }

  [[nodiscard]] const Stamp& FileStamp() const { return stamp_; }

  /// Up to `count` bytes from the offset on, fewer at the file's end or if reading fails.
  [[nodiscard]] std::string Part(uint64_t offset, size_t count) const;

  /// A path of ASCII letters that opens the same file while this object lives, for libraries that
  /// take only paths of some encoding.
  [[nodiscard]] std::string Alias() const;

 private:
  int number_;
  Stamp stamp_;
};

/// Puts the bytes in the place of the file, or creates it: written beside it, flushed, renamed
/// over it, the folder flushed; at no moment is the old content gone before the new is safe. The
/// permissions stay, a symbolic link stays one. False, and nothing changed, if the file is
/// read-only or any step fails.
bool Replace(const std::string& path, const std::string& bytes);

/// The names in a folder in byte order, "." and ".." left out; none if it can't be listed.
[[nodiscard]] std::vector<std::string> Entries(const std::string& folder);

/// The folder of the running executable, symbolic links resolved.
[[nodiscard]] std::string ExecutableFolder();

/// Makes the folder the current directory; false if that fails.
bool ChangeFolder(const std::string& folder);

/// Starts a program, found as a shell would, and doesn't wait for it. An empty folder is the
/// current one. False if there is no such program or folder.
bool StartDetached(const std::string& program, const std::vector<std::string>& arguments,
                   const std::string& folder = {});

/// Nanoseconds since 1970.
[[nodiscard]] int64_t Now();

}  // namespace PosixFile
