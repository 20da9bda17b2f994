#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/SmallestWorld.h"
#include "cli/WorldFolder.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <memory>
#include <set>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr int Failed = 1;
constexpr const char* Viewer = "orvalis";
constexpr const char* Companion = "orvalis-world";

struct NewOptions {
  std::string folder;
  std::string world;
  bool empty = false;
};

// Copies what the world's files are, not their links, so that nothing leads back to the original.
class Copy {
 public:
  bool Folder(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (!seen_.insert(fs::canonical(from, error)).second)
      return true;
    fs::create_directories(to, error);
    bool copied = !error;
    for (fs::directory_iterator entry(from, error), end; entry != end && !error;
         entry.increment(error)) {
      const fs::path target = to / entry->path().filename();
      std::error_code none;
      if (fs::is_directory(entry->path(), none))
        copied &= Folder(entry->path(), target);
      else if (fs::is_regular_file(entry->path(), none) && !IsProgram(entry->path()))
        copied &= File(entry->path(), target);
    }
    return copied && !error;
  }

  static bool File(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::copy_file(from, to, error);
    if (!error)
      fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add,
                      error);
    return !error;
  }

 private:
  static bool IsProgram(const fs::path& path) {
    return path.filename() == Viewer || path.filename() == Companion;
  }

  std::set<fs::path> seen_;
};

// Beside this program, or where the package has it: what lies in its bin is a script.
fs::path ViewerPath() {
  const fs::path own = PosixFile::ExecutableFolder();
  const fs::path packaged = own / "../lib/orvalis" / Viewer;
  std::error_code error;
  return fs::exists(packaged, error) ? packaged : own / Viewer;
}

bool IsFree(const fs::path& folder) {
  std::error_code error;
  return !fs::exists(folder, error) ||
         (fs::is_directory(folder, error) && fs::is_empty(folder, error));
}

bool IsInside(const fs::path& folder, const fs::path& world) {
  std::error_code error;
  const fs::path name =
      fs::weakly_canonical(folder, error).lexically_relative(fs::canonical(world, error));
  return !name.empty() && !name.native().starts_with("..");
}

int Fail(int status, const std::string& why) {
  Console::Complain(why);
  return status;
}

int Run(const NewOptions& options) {
  const fs::path folder = options.folder;
  if (!IsFree(folder))
    return Fail(Commands::WrongUse, options.folder + " is there already and not empty");
  bool made = false;
  if (options.empty) {
    made = SmallestWorld::Write(options.folder);
  } else {
    const auto world = WorldFolder::Find(options.world, {});
    if (!world)
      return Fail(Commands::WrongUse,
                  "there is no world to copy; --world names one, --empty begins anew");
    if (IsInside(folder, NativePath::ToBytes(*world)))
      return Fail(Commands::WrongUse, options.folder + " lies in the world that it would copy");
    made = Copy().Folder(NativePath::ToBytes(*world), folder);
  }
  if (!made)
    return Fail(Failed, options.folder + " could not be written");
  std::string next = "Your world is in " + options.folder + ".\n";
  if (Copy::File(ViewerPath(), folder / Viewer))
    next += "Start it:        " + (folder / Viewer).native() + "\n";
  else
    next += "The viewer was not found: copy it into the folder.\n";
  next +=
      "Change it:       the .data files name what the maps show\nCheck it:        orvalis-world "
      "check " +
      options.folder + "\nTranslate it:    orvalis-world template --world " + options.folder + "\n";
  return Console::Write(next) ? 0 : Failed;
}

}  // namespace

void Commands::AddNew(CLI::App& app, int& status) {
  const auto options = std::make_shared<NewOptions>();
  CLI::App* command = app.add_subcommand("new", "Makes a program folder of your own");
  command->add_option("folder", options->folder, "A folder that is not there yet, or empty")
      ->required();
  command->add_option("--world", options->world, "The world to copy");
  command->add_flag("--empty", options->empty, "The smallest world that works instead of a copy");
  command->callback([options, &status] { status = Run(*options); });
}
