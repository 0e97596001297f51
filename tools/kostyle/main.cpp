#include <fmt/format.h>
#include <kostyle/version.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "basics/failure.h"
#include "basics/output.h"
#include "basics/text.h"
#include "commands/commands.h"

namespace {

constexpr const char* examples = R"(Examples:
  kostyle list --system styles/system --user styles/user
  kostyle show morning-light --system styles/system
  kostyle new --user styles/user --name "Night drive" --audio-effect Filter --param Filter.cutoff=0.4
  kostyle check styles/system styles/user
  kostyle catalog styles/system styles/user -o styles.html

"kostyle COMMAND --help" tells more. Exit code: 0 success, 1 refused, 2 wrong use.)";

// The arguments do not hold the program's own name.
int run(std::vector<std::string> arguments) {
  CLI::App app("Checks, lists, shows and edits .kostyle style files.", "kostyle");
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "kostyle " KOSTYLE_VERSION_STRING);
  app.require_subcommand(0, 1);
  app.footer(examples);
  tool::Command chosen;
  tool::addCheckCommand(app, chosen);
  tool::addListCommand(app, chosen);
  tool::addShowCommand(app, chosen);
  tool::addNewCommand(app, chosen);
  tool::addSetCommand(app, chosen);
  tool::addRemoveCommand(app, chosen);
  tool::addCatalogCommand(app, chosen);
  try {
    std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the back
    app.parse(std::move(arguments));
  } catch (const CLI::Success& help) {
    const int exitCode = app.exit(help);
    tool::flushOutput();
    return exitCode;
  } catch (const CLI::ParseError& error) {
    throw tool::WrongUse(error.what());
  }
  if (!chosen)
    throw tool::WrongUse("a command is required: check, list, show, new, set, remove or catalog");
  const int exitCode = chosen();
  tool::flushOutput();
  return exitCode;
}

int fail(const std::exception& error, int exitCode) noexcept {
  try {
    fmt::print(stderr, "kostyle: {}\n", tool::printable(error.what()));
  } catch (const std::exception&) {  // without stderr the exit code alone tells
    return exitCode;
  }
  return exitCode;
}

#if defined(_WIN32)
std::vector<std::string> inUtf8(int count, wchar_t** arguments) {
  std::vector<std::string> utf8;
  for (int i = 0; i < count; ++i) {
    if (!tool::isUnicode(arguments[i])) throw tool::WrongUse("an argument is not valid Unicode");
    utf8.push_back(tool::toUtf8(arguments[i]));
  }
  return utf8;
}
#else
std::vector<std::string> inUtf8(int count, char** arguments) { return {arguments, arguments + count}; }
#endif

template <typename Char>
int runToExitCode(int count, Char** arguments) noexcept {
  try {
    return run(inUtf8(count - 1, arguments + 1));
  } catch (const tool::WrongUse& error) {
    return fail(error, tool::exitWrongUse);
  } catch (const std::exception& error) {
    return fail(error, tool::exitRefused);
  }
}

}  // namespace

#if defined(_WIN32)
int wmain(int count, wchar_t** arguments) { return runToExitCode(count, arguments); }
#else
int main(int count, char** arguments) { return runToExitCode(count, arguments); }
#endif
