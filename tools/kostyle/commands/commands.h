// The commands. Each adds itself to the command line; when it is the one given, it puts what is to be
// run, which returns the exit code, into `chosen`. Help, manual page and completion tell what was
// added.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace tool {

using Command = std::function<int()>;
using AddCommand = void (*)(CLI::App& app, Command& chosen);

void addCatalogCommand(CLI::App& app, Command& chosen);
void addCheckCommand(CLI::App& app, Command& chosen);
void addCompletionCommand(CLI::App& app, Command& chosen);
void addCopyCommand(CLI::App& app, Command& chosen);
void addDiffCommand(CLI::App& app, Command& chosen);
void addEditCommand(CLI::App& app, Command& chosen);
void addFormatCommand(CLI::App& app, Command& chosen);
void addListCommand(CLI::App& app, Command& chosen);
void addManualCommand(CLI::App& app, Command& chosen);
void addNewCommand(CLI::App& app, Command& chosen);
void addRemoveCommand(CLI::App& app, Command& chosen);
void addSetCommand(CLI::App& app, Command& chosen);
void addShowCommand(CLI::App& app, Command& chosen);
void addStatsCommand(CLI::App& app, Command& chosen);

/// In the order in which the help lists them.
inline constexpr AddCommand allCommands[] = {
    addListCommand,   addShowCommand,    addCheckCommand,      addStatsCommand,  addDiffCommand,
    addNewCommand,    addCopyCommand,    addSetCommand,        addEditCommand,   addFormatCommand,
    addRemoveCommand, addCatalogCommand, addCompletionCommand, addManualCommand,
};

}  // namespace tool
