#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/output.h"
#include "commands/commands.h"
#include "printing/style_document.h"
#include "printing/style_tree.h"
#include "reading/manager.h"
#include "reading/style_content.h"
#include "reading/style_file.h"

namespace tool {
namespace {

constexpr const char* inputName = "-";

struct ShowOptions {
  std::vector<std::string> styles;
  StyleDirectories directories;
  bool json = false;

  bool haveDirectories() const { return directories.system || directories.user; }
};

// Whether an argument is the path of a file. What else has the name may yet be an identifier.
bool namesFile(const ShowOptions& options, const std::string& argument) {
  const fs::path path = pathOf(argument);
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::is_regular_file(status)) return true;
  if (fs::exists(status) && !fs::is_directory(status))
    throw Refused(fmt::format("{}: not a regular file", argument));
  if (options.haveDirectories()) return false;
  if (fs::is_directory(status))
    throw WrongUse(
        fmt::format("{}: a directory, not a file; \"kostyle list\" lists its styles", argument));
  throw WrongUse(fmt::format(
      "{}: {}; an identifier needs --system or --user", argument,
      error && error != std::errc::no_such_file_or_directory ? error.message() : "no such file"));
}

class Shower {
 public:
  explicit Shower(const ShowOptions& options) : options_(options) {}

  void add(const std::string& argument) {
    if (argument == inputName) {
      addStyle(StyleFile("stdin", readStandardInput()).style(), {"file", "stdin"});
    } else if (namesFile(options_, argument)) {
      const fs::path path = pathOf(argument);
      addStyle(StyleFile(path).style(), {"file", shownPath(path)});
    } else {
      if (!manager_) manager_.emplace(options_.directories);
      KoStyleStyle* style = manager_->style(fromUtf8(argument));
      addStyle(style, sourceOf(style));
    }
  }

  const std::string& text() const { return text_; }

 private:
  void addStyle(KoStyleStyle* style, const StyleSource& source) {
    if (!options_.json && !text_.empty()) text_ += '\n';
    text_ += options_.json ? styleDocument(contentOf(style)) : styleTree(style, source);
  }

  const ShowOptions& options_;
  std::optional<Manager> manager_;
  std::string text_;
};

int show(const ShowOptions& options) {
  requireExisting(options.directories);
  if (std::count(options.styles.begin(), options.styles.end(), inputName) > 1)
    throw WrongUse("the standard input is named twice");
  Shower shower(options);
  for (const std::string& argument : options.styles) shower.add(argument);
  print(shower.text());
  return exitOk;
}

}  // namespace

void addShowCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* command = app.add_subcommand("show", "Shows styles whole");
  command
      ->add_option(
          "STYLE", options->styles,
          "Path of a style file, identifier of a style, or - for a style on the standard input")
      ->required();
  addDirectoryOptions(*command, options->directories);
  command->add_flag("--json", options->json, "Print each style in the form of its file")
      ->disable_flag_override();
  command->footer(
      R"(A file is shown by itself, whatever lies beside it. When no file has the name STYLE, it is the
identifier of a style in the directories. With --json one document follows the other; what is printed of one
style can be saved and read again.

Examples:
  kostyle show styles/system/morning_light.kostyle
  kostyle show morning-light concrete-club --system styles/system
  kostyle show morning-light --system styles/system --json > copy.kostyle
  kostyle show - < styles/system/morning_light.kostyle)");
  command->callback([options, &chosen] { chosen = [options] { return show(*options); }; });
}

}  // namespace tool
