#include <CLI/CLI.hpp>

#include "basics/failure.h"
#include "basics/output.h"
#include "commands/commands.h"
#include "help/manual_page.h"

namespace tool {

void addManualCommand(CLI::App& app, Command& chosen) {
  CLI::App* command = app.add_subcommand("manual", "Prints the manual page");
  command->footer(R"(It is in the form that man reads.

Examples:
  kostyle manual > kostyle.1)");
  command->callback([&app, &chosen] {
    chosen = [&app] {
      print(manualPage(describe(app)));
      return exitOk;
    };
  });
}

}  // namespace tool
