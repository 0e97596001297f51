// The commands. Each adds itself to the command line; when it is the one given, it puts what is to be
// run, which returns the exit code, into `chosen`.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace tool {

using Command = std::function<int()>;

void addCatalogCommand(CLI::App& app, Command& chosen);
void addCheckCommand(CLI::App& app, Command& chosen);
void addListCommand(CLI::App& app, Command& chosen);
void addShowCommand(CLI::App& app, Command& chosen);
void addNewCommand(CLI::App& app, Command& chosen);
void addSetCommand(CLI::App& app, Command& chosen);
void addRemoveCommand(CLI::App& app, Command& chosen);

}  // namespace tool
