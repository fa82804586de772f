// All commands of `lintavo`. Each has a file of its own with its options, its words
// for the command line and its action; a new one gets a declaration here and a line
// in the list.
#pragma once

#include <span>

namespace CLI {
class App;
}

namespace lintavo::tools {

class Console;

/// Adds a command with its options to the command line. Its action runs when the
/// command line is parsed; `console` outlives the run.
using AddCommand = void (*)(CLI::App& app, Console& console);

void AddShow(CLI::App& app, Console& console);
void AddCheck(CLI::App& app, Console& console);
void AddDraw(CLI::App& app, Console& console);
void AddSheet(CLI::App& app, Console& console);
void AddFit(CLI::App& app, Console& console);
void AddSet(CLI::App& app, Console& console);
void AddPosition(CLI::App& app, Console& console);
void AddForm(CLI::App& app, Console& console);
void AddParts(CLI::App& app, Console& console);
void AddExport(CLI::App& app, Console& console);
void AddConvert(CLI::App& app, Console& console);

/// In the order in which the help names them.
std::span<const AddCommand> AllCommands();

}  // namespace lintavo::tools
