#pragma once

#include "app/World.h"
#include "share/SharedWorld.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

/// The world that a command is about, in the language and narrowed as the command line says.
namespace OpenedWorld {

/// What was said on the command line, as bytes.
struct Choice {
  std::string world;
  std::string language;
  std::vector<std::string> regions;
  std::vector<std::string> sections;
};

/// Adds the options --world, --lang, --region and --section to a command.
void AddOptions(CLI::App& command, Choice& choice);

/// A world with its language chosen, and the regions asked for.
struct Contents {
  std::unique_ptr<World> world;
  std::vector<Share::RegionMap> maps;
};

/// None, and a complaint, if there is no such world, language, region or section. Where no language
/// is named it is the one that the world's settings choose.
[[nodiscard]] std::optional<Contents> Read(const Choice& choice);

}  // namespace OpenedWorld
