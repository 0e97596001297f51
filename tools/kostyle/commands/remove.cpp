#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "basics/failure.h"
#include "basics/output.h"
#include "basics/terminal.h"
#include "basics/text.h"
#include "commands/commands.h"
#include "reading/reasons.h"
#include "writing/removing.h"
#include "writing/settled_styles.h"
#include "writing/waiting.h"

namespace tool {
namespace {

struct RemoveOptions {
  std::vector<std::string> ids;
  StyleDirectories directories;
  bool yes = false;
  std::chrono::seconds limit = usualLimit;
};

// Another file with the style's identifier takes its place. Which of the two is not wanted, only the
// user can tell.
struct Removal {
  Removal(const Text& id, const Manager& manager) : file(manager.userStyle(id)) {
    for (const fs::path& path : filesThatRepeat(id, manager.results()))
      others.push_back(shownPath(path));
  }

  void requireOnlyOne() const {
    if (!others.empty())
      throw Refused(fmt::format(
          "{} is left as it is: its identifier is also that of {}; delete the file that is not "
          "wanted, or answer on a terminal",
          file.shown(), fmt::join(others, ", ")));
  }

  RemovableFile file;
  std::vector<std::string> others;
};

// Anything but a yes is a no.
bool isWanted(const Removal& removal) {
  std::string question = fmt::format("Remove {}", removal.file.shown());
  if (!removal.others.empty())
    question += fmt::format(", so that {} takes its place", printable(removal.others.front()));
  printOnStderr(question + "? [y/N] ");
  std::string answer;
  if (!std::getline(std::cin, answer)) printOnStderr("\n");
  return answer == "y" || answer == "Y" || answer == "yes";
}

std::vector<Text> idsOf(const RemoveOptions& options) {
  std::vector<Text> ids;
  for (const std::string& argument : options.ids) {
    Text id = fromUtf8(argument);
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) ids.push_back(std::move(id));
  }
  return ids;
}

int remove(const RemoveOptions& options) {
  requireExisting(options.directories);
  const std::vector<Text> ids = idsOf(options);
  const auto manager = settledStyles(options.directories, ids, options.limit);
  // All of them are found before the first is removed.
  std::vector<Removal> removals;
  removals.reserve(ids.size());
  const bool asks = !options.yes && canAsk();
  for (const Text& id : ids) {
    removals.emplace_back(id, *manager);
    if (!asks) removals.back().requireOnlyOne();
  }
  for (const Removal& removal : removals)
    if (!asks || isWanted(removal)) removal.file.remove(options.limit);
  return exitOk;
}

}  // namespace

void addRemoveCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<RemoveOptions>();
  CLI::App* command = app.add_subcommand("remove", "Deletes user styles and their files");
  command->add_option("ID", options->ids, "Identifier of a style")->required();
  addDirectoryOptions(*command, options->directories);
  command->get_option("--user")->required();
  command->add_flag("-y,--yes", options->yes, "Do not ask, also on a terminal")
      ->disable_flag_override();
  addWaitOption(*command, options->limit);
  command->footer(R"(Prints nothing. On a terminal it asks for each style; anything but y is a no.
When one of the styles is not found, none is removed. An identifier that several files have is refused where nobody is
asked.

Examples:
  kostyle remove 5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201 --user styles/user --yes)");
  command->callback([options, &chosen] { chosen = [options] { return remove(*options); }; });
}

}  // namespace tool
