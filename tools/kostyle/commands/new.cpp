#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <memory>

#include "basics/failure.h"
#include "commands/commands.h"
#include "writing/creating.h"
#include "writing/notices.h"
#include "writing/requested_change.h"
#include "writing/saving.h"
#include "writing/style_edits.h"
#include "writing/waiting.h"

namespace tool {
namespace {

struct NewOptions {
  StyleDirectories directories;
  StyleEdits edits;
  std::chrono::seconds limit = usualLimit;
};

int create(const NewOptions& options) {
  requireExistingButUser(options.directories);
  const StyleContent content = requestedChange(options.edits, {}).after;
  const auto isEmpty = [](const ChainContent& chain) { return chain.empty(); };
  if (std::all_of(content.chains.begin(), content.chains.end(), isEmpty))
    throw Refused(
        "the style has no effect; --audio-effect EFFECT --param EFFECT.NAME=VALUE gives it one");
  const SavedStyle saved = savedStyle(content, options.edits.pretty);
  const auto verify = [&](const std::string& bytes) {
    if (bytes != saved.bytes) throw Refused("the new file cannot be read back as it was written");
  };
  createStyleFile(*options.directories.user, {saved.id, saved.bytes}, verify, options.limit);
  noticeLosses(saved.losses);
  return exitOk;
}

}  // namespace

void addNewCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<NewOptions>();
  CLI::App* command = app.add_subcommand("new", "Creates a user style");
  addDirectoryOptions(*command, options->directories);
  command->get_option("--user")->required();
  addCreationOptions(*command, options->edits);
  addWaitOption(*command, options->limit);
  command->footer(
      R"(Prints the identifier and the path of the new file. The user directory is created when missing.

A VALUE without fraction and exponent is an int, another number a float, anything else text; TYPE says
otherwise. When both chains have an effect, audio:EFFECT.NAME and midi:EFFECT.NAME tell them apart.

Examples:
  kostyle new --user styles/user --name "Night drive" --language 0 --genre Synthwave \
    --audio-effect Filter --param Filter.cutoff=0.4 --param Filter.poles=4 --param Filter.mode=low
  kostyle new --user styles/user --name Steps --midi-effect Arp --param Arp.pattern:text=1221 --pretty)");
  command->callback([options, &chosen] { chosen = [options] { return create(*options); }; });
}

}  // namespace tool
