#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "basics/common_options.h"
#include "basics/failure.h"
#include "basics/output.h"
#include "basics/paths.h"
#include "basics/progress.h"
#include "basics/terminal.h"
#include "checking/check_run.h"
#include "commands/commands.h"
#include "printing/findings.h"

namespace tool {
namespace {

constexpr const char* standardInput = "-";

struct CheckCommandOptions {
  std::vector<std::string> paths;
  std::string filesFrom;
  std::string format = "text";
  std::string severity = "note";
  bool strict = false;
  unsigned jobs = std::max(1U, std::thread::hardware_concurrency());
};

// The lines of a file or of the standard input.
std::vector<std::string> listedPaths(const std::string& list) {
  std::ifstream file;
  if (list != standardInput) {
    if (isDirectory(pathOf(list))) throw Refused(list + ": a directory, not a list of paths");
    file.open(pathOf(list));
    if (!file)
      throw Refused(fmt::format("{}: the list cannot be opened: {}", list,
                                std::generic_category().message(errno)));
  }
  std::istream& lines = list == standardInput ? std::cin : file;
  std::vector<std::string> paths;
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) paths.push_back(line);
  }
  if (lines.bad()) throw Refused(list + ": the list cannot be read");
  return paths;
}

std::vector<std::string> pathsOf(const CheckCommandOptions& options) {
  std::vector<std::string> paths = options.paths;
  if (!options.filesFrom.empty()) {
    const std::vector<std::string> listed = listedPaths(options.filesFrom);
    paths.insert(paths.end(), listed.begin(), listed.end());
  } else if (paths.empty()) {
    throw WrongUse("a file, a directory or --files-from is required");
  }
  for (const std::string& path : paths)
    if (path.empty()) throw WrongUse("the path of a file is empty");
  const auto times = std::count(paths.begin(), paths.end(), standardInput);
  if (times + (options.filesFrom == standardInput ? 1 : 0) > 1)
    throw WrongUse("the standard input is named twice");
  return paths;
}

Severity severityOf(const std::string& name) {
  for (const Severity severity : {Severity::warning, Severity::error})
    if (name == severityName(severity)) return severity;
  return Severity::note;
}

std::string formatted(const std::vector<FileReport>& reports, const std::string& format) {
  if (format == "json") return findingsJson(reports);
  if (format == "sarif") return findingsSarif(reports);
  if (format == "github") return findingsGithub(reports);
  return findingsText(reports, takesColors());
}

std::vector<FileReport> checked(const std::vector<Input>& inputs, CheckOptions options) {
  Progress progress("checking");
  options.progress = [&](std::size_t done, std::size_t all) { progress.tell(done, all); };
  return checkAll(inputs, options);
}

int check(const CheckCommandOptions& options) {
  CheckOptions checkOptions;
  checkOptions.maxSize = std::min(commonOptions().maxSize, SourceText::maxSize);
  checkOptions.jobs = options.jobs;
  auto reports = checked(inputsOf(pathsOf(options)), std::move(checkOptions));
  const Counts counts = countsOf(reports);
  const Severity severity = severityOf(options.severity);
  // What decides about the exit code is told.
  dropBelow(options.strict ? std::min(severity, Severity::warning) : severity, reports);
  print(formatted(reports, options.format));
  return counts.errors > 0 || (options.strict && counts.warnings > 0) ? exitRefused : exitOk;
}

}  // namespace

void addCheckCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<CheckCommandOptions>();
  CLI::App* command =
      app.add_subcommand("check", "Tells what readers refuse or leave out of style files");
  command->add_option("PATH", options->paths,
                      "Style file, or directory of style files; - is the standard input");
  command
      ->add_option("--files-from", options->filesFrom,
                   "Check the paths that a file lists, one in a line; - is the standard input")
      ->type_name("FILE");
  command->add_option("--format", options->format, "Form of the output")
      ->check(CLI::IsMember({"text", "json", "sarif", "github"}))
      ->capture_default_str();
  command->add_option("--severity", options->severity, "Least severity of what is told")
      ->check(CLI::IsMember({"note", "warning", "error"}))
      ->capture_default_str();
  command->add_flag("--strict", options->strict, "Warnings count as errors")->disable_flag_override();
  command->add_option("--jobs", options->jobs, "Files that are checked at the same time")
      ->check(CLI::Range(1U, 256U))
      ->type_name("N");
  command->footer(
      R"(Each finding names file, line and column, the rule, and what became of it. The rules are listed in the
documentation. Paths stand in the order in which an application would read them. Exit code: 0 nothing is refused,
1 errors, or warnings with --strict.

Examples:
  kostyle check styles/system styles/user
  kostyle check --strict --format github styles
  git -c core.quotePath=off diff --name-only --diff-filter=d -- '*.kostyle' | kostyle check --files-from -)");
  command->callback([options, &chosen] { chosen = [options] { return check(*options); }; });
}

}  // namespace tool
