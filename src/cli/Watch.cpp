#include "cli/Watch.h"

#include "cli/Console.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <system_error>
#include <thread>

namespace {

namespace fs = std::filesystem;

constexpr auto Pause = std::chrono::milliseconds(250);

using Stamps = std::map<std::string, PosixFile::Stamp>;

// Links to folders are not followed: one may lead to itself.
Stamps StampsOf(const std::string& folder) {
  Stamps stamps;
  std::error_code error;
  for (fs::recursive_directory_iterator entry(folder, error), end; entry != end && !error;
       entry.increment(error))
    if (const auto stamp = PosixFile::RegularFile(entry->path().native()))
      stamps.emplace(entry->path().native(), *stamp);
  return stamps;
}

// Waits until something differs from `known` and stays as it is: editors write in steps.
Stamps NextState(const std::string& folder, const Stamps& known) {
  Stamps last = known;
  for (;;) {
    std::this_thread::sleep_for(Pause);
    Stamps now = StampsOf(folder);
    if (now == last && now != known)
      return now;
    last = std::move(now);
  }
}

}  // namespace

int Watch::Repeat(const Text& folder, const std::function<int()>& run) {
  const std::string native = NativePath::ToBytes(folder);
  Stamps known = StampsOf(native);
  for (;;) {
    const int status = run();
    if (status > 1 || !Console::Write("-- waiting for changes\n"))
      return status;
    known = NextState(native, known);
  }
}
