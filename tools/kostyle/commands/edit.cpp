#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "commands/commands.h"
#include "reading/named_file.h"
#include "writing/editing.h"
#include "writing/waiting.h"

namespace tool {
namespace {

struct EditOptions {
  std::string style;
  StyleDirectories directories;
  std::chrono::seconds limit = usualLimit;
};

int edit(const EditOptions& options) {
  requireExisting(options.directories);
  const NamedFile named = namedFile(options.style, options.directories);
  if (named.isSystemStyle)
    throw Refused(
        fmt::format("{}: a system style is never changed; \"kostyle copy\" makes a user style of it",
                    options.style));
  editStyle(named.path, options.directories, options.limit);
  return exitOk;
}

}  // namespace

void addEditCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<EditOptions>();
  CLI::App* command = app.add_subcommand("edit", "Opens a style in an editor");
  command->add_option("STYLE", options->style, "Path of a style file, or identifier of a style")
      ->required();
  addDirectoryOptions(*command, options->directories);
  addWaitOption(*command, options->limit);
  command->footer(
      R"(The editor is the command in VISUAL or EDITOR, and has to wait until the text is closed: EDITOR="code --wait".
It shows the file as UTF-8, one that is written in one line with many. What "kostyle check" calls an error is refused,
a warning is told. The file keeps its encoding, mark and line ends. A text that is not written is kept, and the
message tells where. Prints the identifier and the path of the file.

Examples:
  kostyle edit styles/user/kitchen_demo.kostyle
  kostyle edit 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user)");
  command->callback([options, &chosen] { chosen = [options] { return edit(*options); }; });
}

}  // namespace tool
