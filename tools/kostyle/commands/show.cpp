#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <system_error>

#include "basics/failure.h"
#include "commands/commands.h"
#include "printing/style_json.h"
#include "printing/style_tree.h"
#include "reading/manager.h"
#include "reading/style_file.h"

namespace tool {
namespace {

struct ShowOptions {
  std::string style;
  StyleDirectories directories;
  bool json = false;
};

bool isFile(const fs::path& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored);
}

void print(const ShowOptions& options, KoStyleStyle* style, const StyleSource& source) {
  const auto write = options.json ? styleJson : styleTree;
  fmt::print("{}", write(style, source));
}

int show(const ShowOptions& options) {
  const StyleDirectories& directories = options.directories;
  requireExisting(directories);
  const fs::path path = pathOf(options.style);
  if (isFile(path)) {
    print(options, StyleFile(path).style(), {"file", shownPath(path)});
  } else if (directories.system || directories.user) {
    const Manager manager(directories);
    KoStyleStyle* style = manager.style(fromUtf8(options.style));
    print(options, style, sourceOf(style));
  } else {
    throw WrongUse(
        fmt::format("{}: no such file; an identifier needs --system or --user", options.style));
  }
  return exitOk;
}

}  // namespace

void addShowCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* command = app.add_subcommand("show", "Shows one style whole");
  command->add_option("STYLE", options->style, "Path of a style file, or identifier of a style")
      ->required();
  addDirectoryOptions(*command, options->directories);
  command->add_flag("--json", options->json, "Print JSON")->disable_flag_override();
  command->footer(
      R"(A file is shown by itself, whatever lies beside it. When no file has the name STYLE, it is the
identifier of a style in the directories.

Examples:
  kostyle show styles/system/morning_light.kostyle
  kostyle show morning-light --system styles/system --json)");
  command->callback([options, &chosen] { chosen = [options] { return show(*options); }; });
}

}  // namespace tool
