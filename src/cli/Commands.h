#pragma once

namespace CLI {
class App;
}

/// The commands of the program. Each adds itself with its options, and sets the exit status when
/// it was chosen and has run.
namespace Commands {

/// The exit status where the program was called wrongly, or could not do what it was to.
inline constexpr int WrongUse = 2;

void AddCheck(CLI::App& app, int& status);
void AddFind(CLI::App& app, int& status);
void AddExport(CLI::App& app, int& status);
void AddNew(CLI::App& app, int& status);
void AddTemplate(CLI::App& app, int& status);

}  // namespace Commands
