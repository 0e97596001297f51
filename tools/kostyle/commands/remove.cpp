#include <fmt/format.h>
#include <kostyle/helpers.h>

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/text.h"
#include "commands/commands.h"
#include "reading/manager.h"

namespace tool {
namespace {

struct RemoveOptions {
  std::string id;
  StyleDirectories directories;
};

int remove(const RemoveOptions& options) {
  requireExisting(options.directories);
  const Manager manager(options.directories);
  KoStyleStyle* style = manager.userStyle(fromUtf8(options.id));
  const std::string path = pathToUtf8(Style_path(style));
  const int error = UserStyle_remove(style);
  if (error != KOSTYLE_OK) throw Refused(fmt::format("{}: {}", path, KoStyle_codeText(error)));
  return exitOk;
}

}  // namespace

void addRemoveCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<RemoveOptions>();
  CLI::App* command = app.add_subcommand("remove", "Deletes a user style and its file");
  command->add_option("ID", options->id, "Identifier of the style")->required();
  addDirectoryOptions(*command, options->directories);
  command->get_option("--user")->required();
  command->footer(R"(Prints nothing.

Example:
  kostyle remove 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user)");
  command->callback([options, &chosen] { chosen = [options] { return remove(*options); }; });
}

}  // namespace tool
