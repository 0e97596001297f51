#include "help/command_line.h"

#include <fmt/core.h>
#include <kostyle/version.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <utility>

#include "basics/common_options.h"
#include "basics/failure.h"
#include "basics/output.h"
#include "help/help_text.h"
#include "help/usage_mistake.h"

namespace tool {
namespace {

constexpr const char* footer = R"("kostyle COMMAND --help" tells more.

Examples:
  kostyle list --user styles/user
  kostyle show morning-light --system styles/system
  kostyle new --user styles/user --name "Night drive" --audio-effect Filter --param Filter.cutoff=0.4
  kostyle check styles/system styles/user
  kostyle catalog styles/system styles/user -o styles.html

Exit codes:
  0  success
  1  a file, a style or the library stands against it
  2  wrong use: the command line is wrong

Environment:
  COLUMNS   how many columns "list" may fill; without it, those of the terminal
  NO_COLOR  no colours, also on a terminal
  VISUAL    the editor of "edit", a command that waits until the text is closed
  EDITOR    the same where VISUAL is not set

Files:
  kostyle.lock  in a folder whose files are being changed, so that no change is lost to another kostyle
  kostyle.new   new content on its way to a file's place)";

class Help : public CLI::FormatterBase {
 public:
  std::string make_help(const CLI::App* command, std::string, CLI::AppFormatMode) const override {
    return helpText(describe(*command));
  }
};

void fill(CLI::App& app, Command& chosen) {
  app.allow_windows_style_options(false);
  app.formatter(std::make_shared<Help>());
  app.set_help_flag("-h,--help", "Print this help and end");
  app.set_version_flag("-V,--version", "kostyle " KOSTYLE_VERSION_STRING, "Print the version and end");
  app.require_subcommand(0, 1);
  app.footer(footer);
  addCommonOptions(app);
  for (const AddCommand add : allCommands) add(app, chosen);
  for (CLI::App* command : app.get_subcommands({})) addCommonOptions(*command);
}

}  // namespace

int runCommandLine(std::vector<std::string> arguments) {
  CLI::App app("Checks, lists, shows, makes and changes styles for music applications", "kostyle");
  Command chosen;
  fill(app, chosen);
  int exitCode = exitOk;
  try {
    std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the back
    app.parse(std::move(arguments));
    if (!chosen) throw WrongUse("a command is required; \"kostyle --help\" lists them");
    exitCode = chosen();
  } catch (const CLI::CallForHelp&) {
    print(app.help());
  } catch (const CLI::CallForVersion&) {
    print("kostyle " KOSTYLE_VERSION_STRING "\n");
  } catch (const CLI::ParseError& error) {
    throw WrongUse(usageMistake(app, error));
  }
  flushOutput();
  return exitCode;
}

}  // namespace tool
