#include "platform/PosixFile.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int64_t NanosecondsPerSecond = 1'000'000'000;
constexpr mode_t WriteBits = S_IWUSR | S_IWGRP | S_IWOTH;

int64_t Nanoseconds(const timespec& time) {
  return int64_t{time.tv_sec} * NanosecondsPerSecond + time.tv_nsec;
}

PosixFile::Stamp StampOf(const struct stat& status) {
  return {status.st_dev, status.st_ino, static_cast<uint64_t>(status.st_size),
          Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim)};
}

// An open file that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}

  ~Descriptor() {
    if (number_ >= 0)
      ::close(number_);
  }

  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] int Number() const { return number_; }

  [[nodiscard]] bool Open() const { return number_ >= 0; }

 private:
  int number_;
};

// The file that a chain of links ends at, also where that file does not exist yet.
std::string LinkTarget(std::string path) {
  constexpr int mostLinks = 40;
  for (int i = 0; i < mostLinks; ++i) {
    std::string target(4096, '\0');
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length <= 0)
      break;
    target.resize(static_cast<size_t>(length));
    path = target.front() == '/' ? target : PosixFile::FolderOf(path).append("/").append(target);
  }
  return path;
}

bool WriteAll(int file, const std::string& bytes) {
  size_t written = 0;
  while (written < bytes.size()) {
    const ssize_t step = ::write(file, bytes.data() + written, bytes.size() - written);
    if (step <= 0)
      return false;
    written += static_cast<size_t>(step);
  }
  return true;
}

mode_t ModeOfNewFile() {
  // POSIX tells it only in exchange for another.
  const mode_t masked = ::umask(0);
  ::umask(masked);
  return mode_t{0666} & ~masked;
}

// The permissions for the new file: those of the old one; none if that is not to be written.
std::optional<mode_t> WritableMode(const std::string& path) {
  struct stat status {};

  if (::stat(path.c_str(), &status) != 0)
    return ModeOfNewFile();
  if (!S_ISREG(status.st_mode) || (status.st_mode & WriteBits) == 0)
    return std::nullopt;
  return status.st_mode & mode_t{07777};
}

// The mode is set last: the owner's change clears bits of it.
void CopyOwnership(int file, const std::string& from, mode_t mode) {
  struct stat status {};

  if (::stat(from.c_str(), &status) == 0 && ::fchown(file, status.st_uid, status.st_gid) != 0)
    mode &= mode_t{0777};
  ::fchmod(file, mode);
}

// In the child: forks again, so that nobody has to wait for the program. Its start closes the pipe;
// a failure writes to it.
[[noreturn]] void Become(char* const* words, const char* folder, int report) {
  ::setsid();
  if (::fork() > 0)
    ::_exit(0);
  if (!folder || ::chdir(folder) == 0)
    ::execvp(words[0], words);
  const char failed = 1;
  [[maybe_unused]] const ssize_t told = ::write(report, &failed, 1);
  ::_exit(1);
}

}  // namespace

namespace PosixFile {

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos)
    return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

bool Exists(const std::string& path) {
  struct stat status {};

  return ::stat(path.c_str(), &status) == 0;
}

std::optional<Stamp> RegularFile(const std::string& path) {
  struct stat status {};

  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
    return std::nullopt;
  return StampOf(status);
}

OpenFile::OpenFile(const std::string& path)
    : number_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)) {
  struct stat status {};

  if (number_ >= 0 && ::fstat(number_, &status) == 0 && S_ISREG(status.st_mode)) {
    stamp_ = StampOf(status);
  } else if (number_ >= 0) {
    ::close(number_);
    number_ = -1;
  }
}

OpenFile::~OpenFile() {
  if (number_ >= 0)
    ::close(number_);
}

std::string OpenFile::Part(uint64_t offset, size_t count) const {
  std::string bytes(std::min<uint64_t>(count, stamp_.size - std::min(offset, stamp_.size)), '\0');
  size_t have = 0;
  while (have < bytes.size()) {
    const ssize_t step = ::pread(number_, bytes.data() + have, bytes.size() - have,
                                 static_cast<off_t>(offset + have));
    if (step <= 0)
      break;
    have += static_cast<size_t>(step);
  }
  bytes.resize(have);
  return bytes;
}

std::string OpenFile::Alias() const {
  return "/proc/self/fd/" + std::to_string(number_);
}

std::optional<Contents> Read(const std::string& path, size_t maximum) {
  const OpenFile file(path);
  const Stamp& stamp = file.FileStamp();
  if (!file.IsOpen() || stamp.size > maximum)
    return std::nullopt;
  return Contents{file.Part(0, static_cast<size_t>(stamp.size)), stamp};
}

bool Replace(const std::string& path, const std::string& bytes) {
  const std::string target = LinkTarget(path);
  const auto mode = WritableMode(target);
  if (!mode)
    return false;
  std::string temporary = target + ".XXXXXX";
  const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.Open())
    return false;
  CopyOwnership(file.Number(), target, *mode);
  if (!WriteAll(file.Number(), bytes) || ::fsync(file.Number()) != 0 ||
      ::rename(temporary.c_str(), target.c_str()) != 0) {
    ::unlink(temporary.c_str());
    return false;
  }
  const Descriptor folder(
      ::open(PosixFile::FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.Open())
    ::fsync(folder.Number());
  return true;
}

std::vector<std::string> Entries(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(folder.c_str()), ::closedir);
  if (!listing)
    return names;
  while (const dirent* entry = ::readdir(listing.get())) {
    std::string name = static_cast<const char*>(entry->d_name);
    if (name != "." && name != "..")
      names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string ExecutableFolder() {
  const std::unique_ptr<char, void (*)(void*)> path(::realpath("/proc/self/exe", nullptr),
                                                    std::free);
  return path ? PosixFile::FolderOf(path.get()) : ".";
}

bool ChangeFolder(const std::string& folder) {
  return ::chdir(folder.c_str()) == 0;
}

bool StartDetached(const std::string& program, const std::vector<std::string>& arguments,
                   const std::string& folder) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  int report[2];
  if (::pipe2(report, O_CLOEXEC) != 0)
    return false;
  const Descriptor reader(report[0]);
  const pid_t child = ::fork();
  if (child == 0)
    Become(words.data(), folder.empty() ? nullptr : folder.c_str(), report[1]);
  ::close(report[1]);
  char failed = 0;
  const bool started = child > 0 && ::read(report[0], &failed, 1) == 0;
  if (child > 0)
    ::waitpid(child, nullptr, 0);
  return started;
}

int64_t Now() {
  timespec time{};
  ::clock_gettime(CLOCK_REALTIME, &time);
  return Nanoseconds(time);
}

}  // namespace PosixFile
