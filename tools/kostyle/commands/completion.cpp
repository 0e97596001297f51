#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/output.h"
#include "commands/commands.h"
#include "help/completion.h"

namespace tool {
namespace {

int complete(const CLI::App& app, const std::string& shell) {
  const auto write = shell == "bash" ? bashCompletion : shell == "zsh" ? zshCompletion : fishCompletion;
  print(write(describe(app)));
  return exitOk;
}

}  // namespace

void addCompletionCommand(CLI::App& app, Command& chosen) {
  const auto shell = std::make_shared<std::string>();
  CLI::App* command =
      app.add_subcommand("completion", "Prints a script by which a shell completes the command line");
  command->add_option("SHELL", *shell, "Shell that it is for")
      ->check(CLI::IsMember({"bash", "zsh", "fish"}))
      ->required();
  command->footer(
      R"(The Debian package installs all three. Elsewhere a line in the start file of the shell does it.

Examples:
  kostyle completion bash > kostyle.bash
  kostyle completion fish > kostyle.fish)");
  command->callback(
      [&app, shell, &chosen] { chosen = [&app, shell] { return complete(app, *shell); }; });
}

}  // namespace tool
