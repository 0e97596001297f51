#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/output.h"
#include "basics/progress.h"
#include "basics/terminal.h"
#include "commands/commands.h"
#include "document/source_text.h"
#include "printing/line_diff.h"
#include "reading/named_file.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "writing/file_replacement.h"
#include "writing/own_form.h"
#include "writing/system_files.h"
#include "writing/waiting.h"

namespace tool {
namespace {

constexpr const char* standardStreams = "-";

struct FormatOptions {
  std::vector<std::string> files;
  bool compact = false;
  bool check = false;
  bool diff = false;
  bool lossy = false;
  std::chrono::seconds limit = usualLimit;
};

class Formatter {
 public:
  Formatter(const FormatOptions& options, Progress& progress)
      : options_(options), progress_(progress) {}

  /// False when the file is refused, or is only checked and would change.
  bool format(const std::string& argument) const {
    try {
      return argument == standardStreams ? formatStreams() : formatFile(argument);
    } catch (const OutputFailed&) {
      throw;
    } catch (const Refused& error) {
      progress_.erase();
      printError(error.what());
      return false;
    }
  }

 private:
  bool writesFiles() const { return !options_.check && !options_.diff; }

  NewContent formatted(const fs::path& path, const std::string& shown,
                       const std::string& before) const {
    const StyleContent style = contentOf(StyleFile(path, before).style());
    NewContent own = ownFormOrWhyNot(path, shown, before, style);
    progress_.erase();
    for (const std::string& lost : own.lost)
      (options_.lossy ? notice : printError)(fmt::format("{}: {}", shown, lost));
    if (!options_.lossy && !own.lost.empty())
      throw Refused(fmt::format("{}: not formatted; --lossy formats it all the same", shown));
    return own;
  }

  NewContent ownFormOrWhyNot(const fs::path& path, const std::string& shown, const std::string& before,
                             const StyleContent& style) const {
    try {
      return ownForm(path, before, style, !options_.compact);
    } catch (const Refused& error) {
      const std::string why = error.what();
      throw Refused(why.compare(0, shown.size(), shown) == 0 ? why : shown + ": " + why);
    }
  }

  // What would become of a file that is not written.
  bool show(const std::string& shown, const std::string& before, const std::string& after) const {
    if (after == before) return true;
    if (options_.diff) {
      const SourceText source(before);
      const std::string text = source.utf8({0, static_cast<std::uint32_t>(source.end())});
      print(unifiedDiff(shown, text, after, takesColors()));
    } else {
      print(printable(shown) + '\n');
    }
    return !options_.check;
  }

  bool formatStreams() const {
    const std::string shown = "stdin";
    const std::string before = readStandardInput();
    const NewContent after = formatted(shown, shown, before);
    requireStyle(shown, after.bytes, after.style);
    if (!writesFiles()) return show(shown, before, after.bytes);
    printBytes(after.bytes);
    return true;
  }

  bool formatFile(const std::string& argument) const {
    const fs::path path = pathOf(argument);
    const std::string shown = shownPath(path);
    requireRegularFile(path);
    const fs::path file = throughLinks(path);
    if (!writesFiles()) {
      const std::string before = readBytes(file);
      return show(shown, before, formatted(path, shown, before).bytes);
    }
    requireWriteAccess(file);
    const FolderLock lock(file.parent_path(), options_.limit);
    const std::string before = readBytes(file);
    const NewContent after = formatted(path, shown, before);
    const auto verify = [&](const std::string& bytes) { requireStyle(path, bytes, after.style); };
    replaceContent(lock, file, {before, after.bytes}, verify, options_.limit);
    if (after.bytes == before) return true;
    try {
      print(printable(shown) + '\n');
      flushOutput();
    } catch (const Refused&) {
      FileReplacement(lock, file, before).finish(options_.limit);
      throw;
    }
    return true;
  }

  const FormatOptions& options_;
  Progress& progress_;
};

int format(const FormatOptions& options) {
  if (std::count(options.files.begin(), options.files.end(), standardStreams) > 1)
    throw WrongUse("the standard input is named twice");
  Progress progress("formatting");
  const Formatter formatter(options, progress);
  bool isFine = true;
  for (std::size_t i = 0; i < options.files.size(); ++i) {
    if (options.files[i].empty()) throw WrongUse("the path of a file is empty");
    progress.tell(i, options.files.size());
    isFine = formatter.format(options.files[i]) && isFine;
  }
  return isFine ? exitOk : exitRefused;
}

}  // namespace

void addFormatCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<FormatOptions>();
  CLI::App* command = app.add_subcommand("format", "Writes style files in the library's own form");
  command->add_option("FILE", options->files, "Style file; - is the standard input and output")
      ->required();
  auto* compact = command->add_flag("--compact", options->compact, "Write everything in one line");
  auto* check = command->add_flag("--check", options->check,
                                  "Write nothing; the exit code is 1 when a file would change");
  auto* diff =
      command->add_flag("--diff", options->diff, "Write nothing; print what would change in the lines");
  auto* lossy = command->add_flag("--lossy", options->lossy,
                                  "Format also what loses something, and name it on stderr");
  for (CLI::Option* flag : {compact, check, diff, lossy}) flag->disable_flag_override();
  addWaitOption(*command, options->limit);
  command->footer(
      R"(Prints the paths of the files that change. The form is UTF-8 without a mark, with the members in the
library's order, indented by four spaces. A file that holds more than the library writes is left as it is, and what
would be lost is listed: the vendor, unknown members, digits that no float has.

Examples:
  kostyle format --lossy styles/user/square_dance.kostyle
  kostyle format --diff styles/system/first_lesson.kostyle styles/user/kitchen_demo.kostyle
  kostyle format --compact - < styles/system/first_lesson.kostyle > small.kostyle)");
  command->callback([options, &chosen] { chosen = [options] { return format(*options); }; });
}

}  // namespace tool
