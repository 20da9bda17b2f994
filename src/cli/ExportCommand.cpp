#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OpenedWorld.h"
#include "cli/formats/Csv.h"
#include "cli/formats/Json.h"
#include "cli/formats/Page.h"
#include "platform/NativePath.h"
#include "platform/ProgramInfo.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace {

struct ExportOptions {
  OpenedWorld::Choice choice;
  std::string format;
  std::string title = NativePath::ToBytes(ProgramInfo::Title);
  std::string output = "-";
  bool noPictures = false;
  bool noPortraits = false;
};

std::string Export(const ExportOptions& options, OpenedWorld::Contents& contents) {
  const Text title = NativePath::FromBytes(options.title);
  if (options.format == "csv")
    return Csv::OfWorld(contents.maps);
  if (options.format == "geojson")
    return Json::GeoJsonOf(contents.maps, title);
  return Page::Of(*contents.world, contents.maps,
                  {title, !options.noPictures, !options.noPortraits});
}

int Run(const ExportOptions& options) {
  auto contents = OpenedWorld::Read(options.choice);
  if (!contents)
    return Commands::WrongUse;
  return Console::Put(options.output, Export(options, *contents)) ? 0 : Commands::WrongUse;
}

}  // namespace

void Commands::AddExport(CLI::App& app, int& status) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App* command =
      app.add_subcommand("export", "Takes a world to the phone, to the wiki, to a spreadsheet");
  command->add_option("--format", options->format, "A page for any browser, a table, or points")
      ->required()
      ->check(CLI::IsMember({"html", "csv", "geojson"}));
  OpenedWorld::AddOptions(*command, options->choice);
  command->add_option("--title", options->title,
                      "What stands above the page; its ticks are kept under it");
  command->add_flag("--no-pictures", options->noPictures, "Leave the regions' pictures out");
  command->add_flag("--no-portraits", options->noPortraits, "Leave the entities' pictures out");
  command->add_option("-o,--output", options->output, "The file to write; - is the output");
  command->callback([options, &status] { status = Run(*options); });
}
