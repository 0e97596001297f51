#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "basics/failure.h"
#include "basics/output.h"
#include "basics/terminal.h"
#include "basics/text.h"
#include "checking/near_name.h"
#include "commands/commands.h"
#include "printing/style_columns.h"
#include "printing/style_json.h"
#include "printing/table.h"
#include "reading/manager.h"
#include "reading/reasons.h"
#include "reading/style_filter.h"
#include "reading/unopened.h"

namespace tool {
namespace {

struct ListOptions {
  StyleDirectories directories;
  StyleFilter filter;
  std::vector<std::string> columns;
  std::string sort;
  bool wide = false;
  bool json = false;
};

std::vector<KoStyleCreationResult*> refusals(std::vector<KoStyleCreationResult*> results) {
  const auto taken = [](KoStyleCreationResult* result) {
    return StyleCreationResult_error(result) == KOSTYLE_OK;
  };
  results.erase(std::remove_if(results.begin(), results.end(), taken), results.end());
  return results;
}

std::vector<std::string> columnNames() {
  std::vector<std::string> names;
  for (const StyleColumn& column : styleColumns()) names.push_back(column.name);
  return names;
}

const StyleColumn& columnOf(const std::string& name) {
  const auto& all = styleColumns();
  return *std::find_if(all.begin(), all.end(),
                       [&](const StyleColumn& column) { return column.name == name; });
}

std::vector<StyleColumn> columnsOf(const std::vector<std::string>& names) {
  std::vector<StyleColumn> columns;
  for (const std::string& name : names) {
    columns.push_back(columnOf(name));
    columns.back().importance = 0;
  }
  if (!names.empty()) return columns;
  for (const StyleColumn& column : styleColumns())
    if (column.isUsual) columns.push_back(column);
  return columns;
}

std::string tableText(const Listing& listing, const ListOptions& options) {
  const std::vector<StyleColumn> chosen = columnsOf(options.columns);
  std::vector<TableColumn> columns;
  columns.reserve(chosen.size());
  for (const StyleColumn& column : chosen) columns.push_back({column.heading, column.importance});
  std::vector<Row> rows;
  for (KoStyleStyle* style : listing.styles) {
    Row row;
    for (const StyleColumn& column : chosen) row.push_back(printable(cellOf(column, style)));
    rows.push_back(std::move(row));
  }
  return table(columns, rows, options.wide ? std::nullopt : outputWidth());
}

std::string listText(const Listing& listing, const ListOptions& options) {
  std::string text = tableText(listing, options);
  if (!listing.allRead()) text += "\nRefused:\n";
  for (KoStyleCreationResult* result : listing.refused) {
    const std::string file = pathToUtf8(StyleCreationResult_filePath(result));
    text += printable(refusal(file, result, listing.allStyles)) + '\n';
  }
  for (const fs::path& path : listing.unopened) text += printable(whyUnopened(path)) + '\n';
  return text;
}

int list(const ListOptions& options) {
  const StyleDirectories& directories = options.directories;
  if (!directories.system && !directories.user) throw WrongUse("--system or --user is required");
  requireExisting(directories);
  const StyleColumn* const key = options.sort.empty() ? nullptr : &columnOf(options.sort);
  const Manager manager(directories);
  const auto results = manager.results();
  Listing listing{{}, manager.styles(), refusals(results), unopenedFiles(directories, results)};
  for (KoStyleStyle* style : listing.allStyles)
    if (options.filter.matches(style)) listing.styles.push_back(style);
  if (key) sortStyles(listing.styles, *key);
  print(options.json ? listJson(listing) : listText(listing, options));
  return listing.allRead() ? exitOk : exitRefused;
}

}  // namespace

void addListCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<ListOptions>();
  CLI::App* command = app.add_subcommand("list", "Lists the styles of directories");
  addDirectoryOptions(*command, options->directories);
  addFilterOptions(*command, options->filter);
  command->add_option("--columns", options->columns, "Columns to be shown, separated by commas")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("NAMES")
      ->check(CLI::IsMember(columnNames()));
  command->add_option("--sort", options->sort, "Column by which the styles are sorted")
      ->type_name("NAME")
      ->check(CLI::IsMember(columnNames()));
  command->add_flag("--wide", options->wide, "Leave no column out and cut no text")
      ->disable_flag_override();
  command->add_flag("--json", options->json, "Print JSON, with effects and parameters")
      ->disable_flag_override();
  command->footer(
      R"(On a terminal columns are left out and texts cut until a line fits. Without --sort the styles stand in the order in
which they are read. Of filters every one has to match, and of one that
is repeated one value.

Files that were refused follow the styles, each with the reason; the exit code is 1 then.

Examples:
  kostyle list --user styles/user
  kostyle list --system styles/system --genre House --genre Techno --sort name
  kostyle list --system styles/system --columns name,path --text night
  kostyle list --system styles/system --user styles/user --json)");
  command->callback([options, &chosen] { chosen = [options] { return list(*options); }; });
}

}  // namespace tool
