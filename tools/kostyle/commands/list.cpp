#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "basics/failure.h"
#include "basics/text.h"
#include "commands/commands.h"
#include "printing/style_json.h"
#include "printing/table.h"
#include "reading/attributes.h"
#include "reading/manager.h"
#include "reading/reasons.h"
#include "reading/unopened.h"

namespace tool {
namespace {

struct ListOptions {
  StyleDirectories directories;
  bool json = false;
};

std::vector<KoStyleCreationResult*> refusals(std::vector<KoStyleCreationResult*> results) {
  const auto taken = [](KoStyleCreationResult* result) {
    return StyleCreationResult_error(result) == KOSTYLE_OK;
  };
  results.erase(std::remove_if(results.begin(), results.end(), taken), results.end());
  return results;
}

Row headings() {
  Row row{"KIND", "NAME", "ID", "LANGUAGES"};
  for (const TextList& list : textLists())
    if (list.heading) row.push_back(list.heading);
  row.push_back("EFFECTS");
  return row;
}

Row rowOf(KoStyleStyle* style) {
  Row row{kindText(Style_type(style)), toUtf8(Style_name(style)), toUtf8(Style_id(style)),
          fmt::format("{}", fmt::join(languages(style), ", "))};
  for (const TextList& list : textLists())
    if (list.heading) row.push_back(fmt::format("{}", fmt::join(values(list, style), ", ")));
  row.push_back(fmt::format("{}", Style_numAudioEffect(style) + Style_numMidiEffect(style)));
  for (std::string& cell : row) cell = printable(cell);
  return row;
}

std::string listText(const Listing& listing) {
  std::vector<Row> rows{headings()};
  for (KoStyleStyle* style : listing.styles) rows.push_back(rowOf(style));
  std::string text = table(rows);
  const auto addRefusal = [&](const std::string& path, const std::string& why) {
    text += fmt::format("{}: {}\n", printable(path), printable(why));
  };
  if (!listing.allRead()) text += "\nRefused:\n";
  for (KoStyleCreationResult* result : listing.refused)
    addRefusal(pathToUtf8(StyleCreationResult_filePath(result)), reason(result));
  for (const fs::path& path : listing.unopened) addRefusal(shownPath(path), "cannot be opened");
  return text;
}

int list(const ListOptions& options) {
  requireExisting(options.directories);
  const Manager manager(options.directories);
  const auto results = manager.results();
  const Listing listing{manager.styles(), refusals(results),
                        unopenedFiles(options.directories, results)};
  const auto write = options.json ? listJson : listText;
  fmt::print("{}", write(listing));
  return listing.allRead() ? exitOk : exitRefused;
}

}  // namespace

void addListCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<ListOptions>();
  CLI::App* command = app.add_subcommand("list", "Lists the styles of directories");
  addDirectoryOptions(*command, options->directories);
  command->get_option("--system")->required();
  command->add_flag("--json", options->json, "Print JSON, with effects and parameters")
      ->disable_flag_override();
  command->footer(
      R"(Files that were refused follow the styles, each with the reason; the exit code is 1 then.

Examples:
  kostyle list --system styles/system
  kostyle list --system styles/system --user styles/user --user-extra more --json)");
  command->callback([options, &chosen] { chosen = [options] { return list(*options); }; });
}

}  // namespace tool
