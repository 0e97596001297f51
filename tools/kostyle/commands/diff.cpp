#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <exception>
#include <map>
#include <memory>
#include <string>

#include "basics/failure.h"
#include "basics/output.h"
#include "basics/terminal.h"
#include "commands/commands.h"
#include "printing/differences.h"
#include "reading/named_file.h"
#include "reading/reasons.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "reading/unopened.h"

namespace tool {
namespace {

struct DiffOptions {
  std::string before;
  std::string after;
  StyleDirectories directories;
  bool json = false;
};

struct ReadStyle {
  std::string path;
  StyleContent content;
};

// The styles of a directory by identifier. What cannot be read is told.
std::map<Text, ReadStyle> stylesIn(const std::string& argument, bool& allRead) {
  StyleDirectories directories;
  directories.system = pathOf(argument);
  const std::string prefix = directories.system->has_filename() ? argument + '/' : argument;
  const auto shownIn = [&](const fs::path& path) { return prefix + shownPath(path.filename()); };
  const Manager manager(directories);
  const auto tell = [&](const std::string& why) {
    printError(why);
    allRead = false;
  };
  const auto results = manager.results();
  for (KoStyleCreationResult* result : results) {
    const fs::path path = pathOf(TextView(StyleCreationResult_filePath(result)));
    if (StyleCreationResult_error(result) != KOSTYLE_OK)
      tell(refusal(shownIn(path), result, manager.styles()));
  }
  for (const fs::path& path : unopenedFiles(directories, results))
    tell(whyUnopened(path == pathOf(libraryPath(*directories.system))
                         ? *directories.system
                         : *directories.system / path.filename()));
  std::map<Text, ReadStyle> styles;
  for (KoStyleStyle* style : manager.styles())
    styles.emplace(Style_id(style),
                   ReadStyle{shownIn(pathOf(TextView(Style_path(style)))), contentOf(style)});
  return styles;
}

std::vector<StylePair> pairsOf(const std::map<Text, ReadStyle>& before,
                               const std::map<Text, ReadStyle>& after) {
  std::map<Text, StylePair> pairs;
  const auto pair = [&](const Text& id, const ReadStyle& style) -> StylePair& {
    StylePair& it = pairs[id];
    it.id = id;
    it.name = style.content.name;
    return it;
  };
  for (const auto& [id, style] : before) pair(id, style).before = style.path;
  for (const auto& [id, style] : after) pair(id, style).after = style.path;
  std::vector<StylePair> differing;
  for (auto& [id, it] : pairs) {
    const bool areBoth = !it.before.empty() && !it.after.empty();
    if (areBoth) it.differences = differences(before.at(id).content, after.at(id).content);
    if (!areBoth || !it.differences.empty()) differing.push_back(std::move(it));
  }
  return differing;
}

std::vector<StylePair> compareFiles(const DiffOptions& options) {
  const auto read = [&](const std::string& argument) {
    const fs::path path = namedFile(argument, options.directories).path;
    return ReadStyle{shownPath(path), contentOf(StyleFile(path).style())};
  };
  const ReadStyle before = read(options.before);
  const ReadStyle after = read(options.after);
  auto found = differences(before.content, after.content);
  if (found.empty()) return {};
  return {{before.path, after.path, after.content.id, after.content.name, std::move(found)}};
}

int diff(const DiffOptions& options) {
  requireExisting(options.directories);
  bool allRead = true;
  std::vector<StylePair> pairs;
  const bool isDirectoryBefore = isDirectory(pathOf(options.before));
  const bool isDirectoryAfter = isDirectory(pathOf(options.after));
  if (isDirectoryBefore != isDirectoryAfter)
    throw WrongUse(
        fmt::format("{} is a directory, {} is none: two directories are compared, or two styles",
                    isDirectoryBefore ? options.before : options.after,
                    isDirectoryBefore ? options.after : options.before));
  if (isDirectoryBefore) {
    const auto before = stylesIn(options.before, allRead);
    pairs = pairsOf(before, stylesIn(options.after, allRead));
  } else {
    pairs = compareFiles(options);
  }
  print(options.json ? differencesJson(pairs) : differencesText(pairs, takesColors()));
  flushOutput();
  if (!allRead) return exitWrongUse;
  return pairs.empty() ? exitOk : exitRefused;
}

}  // namespace

void addDiffCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<DiffOptions>();
  CLI::App* command = app.add_subcommand("diff", "Tells what differs in meaning between styles");
  command->add_option("A", options->before, "Style file, identifier, or directory")->required();
  command->add_option("B", options->after, "What it is compared with")->required();
  addDirectoryOptions(*command, options->directories);
  command->add_flag("--json", options->json, "Print JSON")->disable_flag_override();
  command->footer(
      R"(Layout, encoding, the order of lists and of parameters, and what readers leave out are no differences;
the order of effects is one. Of two directories, the styles with one identifier are compared. Exit code: 0 the
same, 1 different, 2 trouble.

Examples:
  kostyle diff styles/system/morning_light.kostyle styles/system/concrete_club.kostyle
  kostyle diff morning-light concrete-club --system styles/system
  kostyle diff --json styles/system styles/user)");
  command->callback([options, &chosen] {
    chosen = [options] {
      try {
        return diff(*options);
      } catch (const std::exception& error) {  // 1 would say that they differ
        throw WrongUse(error.what());
      }
    };
  });
}

}  // namespace tool
