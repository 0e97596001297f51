#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "basics/failure.h"
#include "basics/output.h"
#include "basics/terminal.h"
#include "commands/commands.h"
#include "printing/table.h"
#include "printing/value_json.h"
#include "reading/manager.h"
#include "reading/tally.h"
#include "reading/unopened.h"

namespace tool {
namespace {

struct StatsOptions {
  std::vector<std::string> directories;
  bool json = false;
};

struct Stats {
  std::size_t files = 0;
  std::size_t read = 0;
  std::vector<Tally> tallies;
};

using Entry = std::pair<std::vector<Value>, std::size_t>;

// What most styles have comes first.
std::vector<Entry> inOrder(const Tally& tally) {
  std::vector<Entry> entries(tally.styles.begin(), tally.styles.end());
  std::stable_sort(entries.begin(), entries.end(),
                   [](const Entry& a, const Entry& b) { return a.second > b.second; });
  return entries;
}

std::string shown(const Value& value) {
  const auto* const text = std::get_if<Text>(&value);
  return text ? printable(toUtf8(*text)) : valueText(value);
}

std::string heading(std::string word) {
  for (char& letter : word) letter = static_cast<char>(std::toupper(letter));
  return word;
}

std::string statsText(const Stats& stats, std::optional<std::size_t> width) {
  std::string text = table({{"FILES"}, {"READ"}, {"REFUSED"}},
                           {{fmt::format("{}", stats.files), fmt::format("{}", stats.read),
                             fmt::format("{}", stats.files - stats.read)}},
                           width);
  for (const Tally& tally : stats.tallies) {
    if (tally.styles.empty()) continue;
    std::vector<TableColumn> columns;
    for (const char* const column : tally.columns) columns.push_back({heading(column)});
    columns.push_back({"STYLES"});
    std::vector<Row> rows;
    for (const auto& [names, count] : inOrder(tally)) {
      Row row;
      for (const Value& name : names) row.push_back(shown(name));
      row.push_back(fmt::format("{}", count));
      rows.push_back(std::move(row));
    }
    text += '\n' + table(columns, rows, width);
  }
  return text;
}

std::string statsJson(const Stats& stats) {
  rapidjson::StringBuffer buffer;
  JsonWriter writer(buffer);
  writer.StartObject();
  writeMember(writer, "files", stats.files);
  writeMember(writer, "read", stats.read);
  writeMember(writer, "refused", stats.files - stats.read);
  for (const Tally& tally : stats.tallies) {
    writer.Key(tally.key);
    writer.StartArray();
    for (const auto& [names, count] : inOrder(tally)) {
      writer.StartObject();
      for (std::size_t i = 0; i < names.size(); ++i) {
        writer.Key(tally.columns[i]);
        writeValue(writer, names[i]);
      }
      writeMember(writer, "styles", count);
      writer.EndObject();
    }
    writer.EndArray();
  }
  writer.EndObject();
  return linesOf(buffer);
}

int stats(const StatsOptions& options) {
  StyleDirectories directories;
  for (const std::string& argument : options.directories) {
    if (argument.empty()) throw WrongUse("the path of a directory is empty");
    const fs::path path = pathOf(argument);
    if (!directories.system) {
      directories.system = path;
    } else {
      directories.systemExtra.push_back(path);
    }
  }
  requireExisting(directories);
  const Manager manager(directories);
  const auto results = manager.results();
  const auto styles = manager.styles();
  const Stats all{results.size() + unopenedFiles(directories, results).size(), styles.size(),
                  talliesOf(styles)};
  print(options.json ? statsJson(all) : statsText(all, outputWidth()));
  return all.read == all.files ? exitOk : exitRefused;
}

}  // namespace

void addStatsCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<StatsOptions>();
  CLI::App* command = app.add_subcommand("stats", "Counts what the styles of directories have");
  command->add_option("DIR", options->directories, "Directory of style files")->required();
  command->add_flag("--json", options->json, "Print JSON")->disable_flag_override();
  command->footer(
      R"(Counts files, and the styles that have a genre, language, effect or parameter; what most of them have
comes first. The directories are read as those of one application, which refuses an identifier that repeats. The
exit code is 1 when a file is refused; "kostyle check" tells why.

Examples:
  kostyle stats styles/system
  kostyle stats styles/system styles/user --json)");
  command->callback([options, &chosen] { chosen = [options] { return stats(*options); }; });
}

}  // namespace tool
