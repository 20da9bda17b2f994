#include "cli/Commands.h"
#include "cli/Console.h"
#include "platform/NativePath.h"
#include "platform/ProgramInfo.h"

#include <CLI/CLI.hpp>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <exception>

namespace {

constexpr auto All = {&Commands::AddCheck, &Commands::AddFind, &Commands::AddNew,
                      &Commands::AddTemplate, &Commands::AddExport};

int Run(int argc, char** argv) {
  CLI::App app("What makers of maps and languages for Orvalis get beside the viewer");
  app.name("orvalis-world");
  app.set_version_flag("--version", "orvalis-world " + NativePath::ToBytes(ProgramInfo::Version));
  app.require_subcommand(1);
  int status = EXIT_SUCCESS;
  for (const auto add : All)
    add(app, status);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == EXIT_SUCCESS ? EXIT_SUCCESS : Commands::WrongUse;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  // Who reads the output may have gone; writing then fails and says so.
  std::signal(SIGPIPE, SIG_IGN);
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    Console::Complain(error.what());
    return Commands::WrongUse;
  }
}
