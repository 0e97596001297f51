#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/text.h"
#include "commands/commands.h"
#include "reading/manager.h"
#include "writing/mutable_style.h"
#include "writing/notices.h"
#include "writing/saving.h"
#include "writing/style_edits.h"

namespace tool {
namespace {

struct SetOptions {
  std::string id;
  StyleDirectories directories;
  StyleEdits edits;
};

// The library writes to the user directory and then renames the file, which fails across volumes: the
// directory that the style lies in is made the user directory.
StyleDirectories besideStyle(const StyleDirectories& directories, const Text& id) {
  const Manager manager(directories);
  StyleDirectories own;
  own.user = pathOf(TextView(Style_path(manager.userStyle(id)))).parent_path();
  return own;
}

int change(const SetOptions& options) {
  if (changesNothing(options.edits)) throw WrongUse("nothing is to be changed");
  requireExisting(options.directories);
  const Text id = fromUtf8(options.id);
  const Manager manager(besideStyle(options.directories, id));
  KoStyleStyle* style = manager.userStyle(id);
  const std::string vendor = toUtf8(Style_vendor(style));
  MutableStyle mutableStyle(manager);
  mutableStyle.copy(style);
  mutableStyle.apply(options.edits);
  const Losses losses = saveOver(mutableStyle, style, options.edits.pretty);
  if (!vendor.empty()) noticeLostVendor(vendor);
  noticeLosses(losses);
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
  command->footer(
      R"(Prints the identifier and the path of the file. What is deleted is deleted before anything is added.
The file loses its vendor text, if it has one, and whatever else no style can hold.

Examples:
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --name "Late drive"
  kostyle set 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --delete-genre Pop
    --add-genre Rock --delete-audio-effect Delay --param Reverb.mix=0.5 --delete-param Reverb.decay)");
  command->callback([options, &chosen] { chosen = [options] { return change(*options); }; });
}

}  // namespace tool
