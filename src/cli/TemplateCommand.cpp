#include "check/Template.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Pictures.h"
#include "cli/WorldFolder.h"
#include "platform/NativePath.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace {

struct TemplateOptions {
  std::string world;
  std::string language;
  std::string output = "-";
  bool german = false;
  bool missing = false;
};

int Run(const TemplateOptions& options) {
  const auto world = WorldFolder::Find(options.world, {});
  if (!world) {
    Console::Complain("there is no world here; --world names its folder");
    return Commands::WrongUse;
  }
  const Text wanted = NativePath::FromBytes(options.language);
  Index index(*world, &Pictures::SizeOf, [&wanted](TextView name) { return name == wanted; }, {});
  if (!wanted.empty() && (index.languages.empty() || !index.languages.front().file)) {
    Console::Complain("there is no language \"" + options.language + "\" in this world");
    return Commands::WrongUse;
  }
  const Template::Question question = {wanted.empty() ? nullptr : &index.languages.front(),
                                       options.german, options.missing};
  return Console::Put(options.output, Template::Make(index, question)) ? 0 : Commands::WrongUse;
}

}  // namespace

void Commands::AddTemplate(CLI::App& app, int& status) {
  const auto options = std::make_shared<TemplateOptions>();
  CLI::App* command =
      app.add_subcommand("template", "Prints a language file that is ready to be filled in");
  command->add_option("--world", options->world, "The world's folder");
  CLI::Option* language =
      command->add_option("--lang", options->language, "A language whose texts are taken over");
  command->add_flag("--german", options->german, "German texts instead of English ones");
  command->add_flag("--missing", options->missing, "Only what the language lacks")->needs(language);
  command->add_option("-o,--output", options->output, "The file to write; - is the output");
  command->callback([options, &status] { status = Run(*options); });
}
