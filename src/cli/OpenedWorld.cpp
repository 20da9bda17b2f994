#include "cli/OpenedWorld.h"

#include "cli/Console.h"
#include "cli/WorldFolder.h"
#include "i18n/LanguageList.h"
#include "mapdata/files/FileSystem.h"
#include "platform/NativePath.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace {

// A world may lack some of its regions.
bool IsThere(const World& world) {
  return std::ranges::any_of(world.paths.regions, [](const ProgramPaths::RegionFiles& region) {
    return FileSystem::FileExists(region.data);
  });
}

// By its own name, or by that of its folder.
bool Choose(World& world, TextView name) {
  IniOps::Snapshot files(world.cache);
  if (name == LOCAL::German) {
    world.language.Choose(files, Text(LOCAL::BuiltIn));
    return true;
  }
  const auto list = LanguageList::Read(files, world.paths.languageRoot);
  const auto is = [&](const LanguageList::Entry& entry) {
    return entry.name == name ||
           entry.file == LOCAL::FileOfLanguage(world.paths.languageRoot, name, u".lng");
  };
  const auto found = std::ranges::find_if(list, is);
  if (found == list.end() || name.empty())
    return false;
  world.language.Choose(files, found->file);
  world.language.CacheTranslationTable(files);
  return true;
}

void ChooseAsSet(World& world) {
  const Text folder = world.ChosenLanguage();
  IniOps::Snapshot files(world.cache);
  world.language.Start(files, folder);
  world.language.CacheTranslationTable(files);
}

}  // namespace

namespace OpenedWorld {

void AddOptions(CLI::App& command, Choice& choice) {
  command.add_option("--world", choice.world, "The world's folder");
  command.add_option("--lang", choice.language, "The language to read it in; Deutsch is German");
  command.add_option("--region", choice.regions, "Only this region; may be given again")
      ->allow_extra_args(false);
  command.add_option("--section", choice.sections, "Only this section; may be given again")
      ->allow_extra_args(false);
}

std::optional<Contents> Read(const Choice& choice) {
  const auto folder = WorldFolder::Find(choice.world, {});
  if (!folder) {
    Console::Complain("there is no world here; --world names its folder");
    return std::nullopt;
  }
  auto world = std::make_unique<World>(*folder);
  if (!IsThere(*world)) {
    Console::Complain("there is no world in " + NativePath::ToBytes(*folder));
    return std::nullopt;
  }
  if (choice.language.empty()) {
    ChooseAsSet(*world);
  } else if (!Choose(*world, NativePath::FromBytes(choice.language))) {
    Console::Complain("there is no language \"" + choice.language + "\" in this world");
    return std::nullopt;
  }
  const Share::Selection selection = {Console::FromArguments(choice.regions),
                                      Console::FromArguments(choice.sections)};
  auto maps = Share::Read(*world);
  if (const auto missing = Share::Missing(maps, selection)) {
    Console::Complain("there is no \"" + NativePath::ToBytes(*missing) + "\" in this world");
    return std::nullopt;
  }
  Share::Narrow(maps, selection);
  return Contents{std::move(world), std::move(maps)};
}

}  // namespace OpenedWorld
