#pragma once

namespace CLI {
class App;
}

/// The commands of the program. Each adds itself with its options, and sets the exit status when
/// it was chosen and has run.
namespace Commands {

void AddCheck(CLI::App& app, int& status);
void AddFind(CLI::App& app, int& status);
void AddExport(CLI::App& app, int& status);
void AddNew(CLI::App& app, int& status);
void AddTemplate(CLI::App& app, int& status);

}  // namespace Commands
