#pragma once

#include "mapdata/files/ProfileFile.h"
#include "platform/PosixFile.h"
#include "platform/Text.h"

#include <deque>
#include <memory>
#include <utility>
#include <vector>

/// Profile files: settings, entity data, descriptions, pictures and languages. A missing file,
/// section or key gives the default or an empty list; the file itself knows whether it was read.
namespace IniOps {

/// Larger files read as empty ones.
inline constexpr size_t LargestFile = 1'000'000'000;

/// Parsed files, kept from one event to the next while they stay the same on disk.
class Cache {
 public:
  /// The file as it is on disk now; one that can't be read is empty and knows why. Never null.
  [[nodiscard]] std::shared_ptr<const ProfileFile> Get(TextView file);

 private:
  struct Kept {
    Text path;
    PosixFile::Stamp stamp;
    std::shared_ptr<const ProfileFile> profile;
  };

  std::deque<Kept> kept_;
};

/// What one event sees of all files: each is looked at once, when first asked for. Not kept beyond
/// the event, so that the next one notices an edited file.
class Snapshot {
 public:
  explicit Snapshot(Cache& cache) : cache_(cache) {}

  /// The file itself, for callers with thousands of questions.
  [[nodiscard]] const ProfileFile& File(TextView file) { return *Shared(file); }

  /// The same to keep: two that are the same object hold the same contents.
  [[nodiscard]] const std::shared_ptr<const ProfileFile>& Shared(TextView file);

  /// Uses these contents for the file, which must not have been asked for before.
  void Assume(TextView file, std::shared_ptr<const ProfileFile> contents) {
    seen_.push_back({Text(file), std::move(contents)});
  }

  /// The value of the key, or the default if there is none or it is empty. Letter case and blanks
  /// around section and key don't count.
  [[nodiscard]] Text IniRead(TextView file, TextView section, TextView key, TextView defaultValue);

  /// The names of all sections in file order.
  [[nodiscard]] std::vector<Text> IniSectionNames(TextView file);

  /// The key names of the section whose header line is exactly "[section]", in file order; those
  /// of disabled lines begin with ";".
  [[nodiscard]] std::vector<Text> IniReadFile(TextView file, TextView section);

 private:
  struct Seen {
    Text path;
    std::shared_ptr<const ProfileFile> profile;
  };

  Cache& cache_;
  std::deque<Seen> seen_;
};

/// The same from a file that was read before.
[[nodiscard]] Text IniRead(const ProfileFile& file, TextView section, TextView key,
                           TextView defaultValue);

/// One question to the file as it stands now; see `Snapshot::IniRead`.
[[nodiscard]] Text IniRead(TextView file, TextView section, TextView key, TextView defaultValue);

/// See `Snapshot::IniSectionNames`.
[[nodiscard]] std::vector<Text> IniSectionNames(TextView file);

/// See `Snapshot::IniReadFile`.
[[nodiscard]] std::vector<Text> IniReadFile(TextView file, TextView section);

/// What became of writing a value.
enum class WriteState { Written, BreaksLine, NotInCodePage, Unreadable, NotWritable };

/// Sets the value; file, section and key are created as needed, every other line keeps its bytes.
/// A failed write, a line break, or a character that Windows-1252 lacks leaves the file as it was.
void IniWrite(TextView file, TextView section, TextView key, TextView value);

/// The same, and tells what became of it.
[[nodiscard]] WriteState Write(TextView file, TextView section, TextView key, TextView value);

}  // namespace IniOps
