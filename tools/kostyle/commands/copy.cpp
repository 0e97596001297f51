#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/files.h"
#include "commands/commands.h"
#include "editing/new_identifier.h"
#include "reading/named_file.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "writing/changing.h"
#include "writing/creating.h"
#include "writing/mutable_style.h"
#include "writing/notices.h"
#include "writing/style_edits.h"
#include "writing/waiting.h"

namespace tool {
namespace {

struct CopyOptions {
  std::string style;
  StyleDirectories directories;
  StyleEdits edits;
  std::chrono::seconds limit = usualLimit;
};

fs::path copiedFile(const CopyOptions& options) {
  StyleDirectories existing = options.directories;
  if (!isDirectory(*existing.user)) {
    existing.user.reset();
    existing.userExtra.clear();
  }
  return namedFile(options.style, existing).path;
}

struct Copy {
  Text id;
  StyleChange change;
  NewContent content;
};

Copy copyOf(const fs::path& source, const StyleEdits& edits) {
  const std::string bytes = readBytes(source);
  RequestedChange requested = requestedChange(edits, contentOf(StyleFile(source, bytes).style()));
  requireTaken(requested.change);
  requested.after.id = newIdentifier();
  requested.change.id = requested.after.id;
  NewContent content = changedContent(source, bytes, requested, edits);
  return {requested.after.id, std::move(requested.change), std::move(content)};
}

int copyStyle(const CopyOptions& options) {
  requireExistingButUser(options.directories);
  const fs::path source = copiedFile(options);
  const Copy copy = copyOf(source, options.edits);
  const auto verify = [&](const std::string& bytes) {
    requireStyle(source, bytes, copy.content.style, copy.change);
  };
  createStyleFile(*options.directories.user, {copy.id, copy.content.bytes}, verify, options.limit);
  noticeLost(copy.content.lost);
  return exitOk;
}

}  // namespace

void addCopyCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<CopyOptions>();
  CLI::App* command = app.add_subcommand("copy", "Makes a user style of another style");
  command->add_option("STYLE", options->style, "Path of a style file, or identifier of a style")
      ->required();
  addDirectoryOptions(*command, options->directories);
  command->get_option("--user")->required();
  addChangeOptions(*command, options->edits);
  addWaitOption(*command, options->limit);
  command->footer(
      R"(Prints the new identifier and the path of the new file. The user directory is created when missing.
Everything else in the file comes along byte for byte, but for what the options change, as with "kostyle set".

Examples:
  kostyle copy morning-light --system styles/system --user styles/user --name "My morning"
  kostyle copy styles/system/morning_light.kostyle --user styles/user --add-genre House --param Reverb.mix=0.3)");
  command->callback([options, &chosen] { chosen = [options] { return copyStyle(*options); }; });
}

}  // namespace tool
