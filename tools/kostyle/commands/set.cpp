#include <CLI/CLI.hpp>
#include <chrono>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/text.h"
#include "commands/commands.h"
#include "reading/manager.h"
#include "writing/changing.h"
#include "writing/settled_styles.h"
#include "writing/style_edits.h"
#include "writing/waiting.h"

namespace tool {
namespace {

struct SetOptions {
  std::string id;
  StyleDirectories directories;
  StyleEdits edits;
  std::chrono::seconds limit = usualLimit;
};

int change(const SetOptions& options) {
  if (changesNothing(options.edits)) throw WrongUse("nothing is to be changed");
  requireExisting(options.directories);
  const Text id = fromUtf8(options.id);
  const auto manager = settledStyles(options.directories, {id}, options.limit);
  changeStyle(manager->userStyle(id), options.edits, options.limit);
  return exitOk;
}

}  // namespace

void addSetCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<SetOptions>();
  CLI::App* command = app.add_subcommand("set", "Changes a user style");
  command->add_option("ID", options->id, "Identifier of the style")->required();
  addDirectoryOptions(*command, options->directories);
  command->get_option("--user")->required();
  addChangeOptions(*command, options->edits);
  addWaitOption(*command, options->limit);
  command->footer(
      R"(Prints the identifier and the path of the file. What is deleted is deleted before anything is added.
Everything else in the file stays byte for byte; with --reformat, what is lost is named on stderr.

A parameter keeps its type, unless TYPE is given. One that the effect does not have is added with --add, and
with audio:EFFECT.NAME or midi:EFFECT.NAME so is the effect.

Examples:
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --name "Late drive"
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --delete-genre Pop \
    --add-genre Rock --param Reverb.mix=0.5 --audio-effect Delay --param Delay.time=0.3
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --add --param Reverb.size:text=7)");
  command->callback([options, &chosen] { chosen = [options] { return change(*options); }; });
}

}  // namespace tool
