#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/output.h"
#include "commands/commands.h"
#include "printing/style_document.h"
#include "printing/style_tree.h"
#include "reading/manager.h"
#include "reading/named_file.h"
#include "reading/style_content.h"
#include "reading/style_file.h"

namespace tool {
namespace {

constexpr const char* inputName = "-";

struct ShowOptions {
  std::vector<std::string> styles;
  StyleDirectories directories;
  bool json = false;
};

class Shower {
 public:
  explicit Shower(const ShowOptions& options) : options_(options) {}

  void add(const std::string& argument) {
    if (argument == inputName) {
      addStyle(StyleFile("stdin", readStandardInput()).style(), {"file", "stdin"});
    } else if (namesFile(argument, options_.directories)) {
      const fs::path path = pathOf(argument);
      addStyle(StyleFile(path).style(), {"file", shownPath(path)});
    } else {
      if (!manager_) manager_.emplace(options_.directories);
      KoStyleStyle* style = namedStyle(argument, *manager_);
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
