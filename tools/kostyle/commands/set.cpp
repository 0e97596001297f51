#include <CLI/CLI.hpp>
#include <chrono>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/text.h"
#include "commands/commands.h"
#include "reading/manager.h"
#include "writing/changing.h"
#include "writing/style_edits.h"

namespace tool {
namespace {

struct SetOptions {
  std::string id;
  StyleDirectories directories;
  StyleEdits edits;
  unsigned secondsToWait = 10;
};

int change(const SetOptions& options) {
  if (changesNothing(options.edits)) throw WrongUse("nothing is to be changed");
  requireExisting(options.directories);
  const Manager manager(options.directories);
  changeStyle(manager.userStyle(fromUtf8(options.id)), options.edits,
              std::chrono::seconds(options.secondsToWait));
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
  command
      ->add_option("--wait", options->secondsToWait,
                   "How long to wait for another program that uses the file, 10 when not given")
      ->type_name("SECONDS")
      ->check(CLI::Range(0U, 86400U));
  command->footer(
      R"(Prints the identifier and the path of the file. What is deleted is deleted before anything is added.
Everything else in the file stays byte for byte; with --reformat, what is lost is named on stderr.

A parameter keeps its type, unless TYPE is given. One that the effect does not have is added with --add, and
with audio:EFFECT.NAME or midi:EFFECT.NAME so is the effect.

Examples:
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --name "Late drive"
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --delete-genre Pop
    --add-genre Rock --delete-audio-effect Delay --param Reverb.mix=0.5 --delete-param Reverb.decay
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --add --param Reverb.size:text=7)");
  command->callback([options, &chosen] { chosen = [options] { return change(*options); }; });
}

}  // namespace tool
