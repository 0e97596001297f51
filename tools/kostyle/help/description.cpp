#include "help/description.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <string_view>

namespace tool {
namespace {

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

// The parser tells the type together with its rules: "TEXT:{a,b}", "N:INT in [1 - 9]".
std::string withoutRules(const std::string& type) {
  const std::size_t rule = std::min(type.find(":{"), type.rfind(':', type.find(" in [")));
  return type.find(" in [") == type.npos ? type.substr(0, type.find(":{")) : type.substr(0, rule);
}

std::vector<std::string> choicesOf(const std::string& type) {
  const std::size_t open = type.find(":{");
  if (open == type.npos || type.back() != '}') return {};
  return split(type.substr(open + 2, type.size() - open - 3), ',');
}

ValueKind kindOf(const OptionDescription& option) {
  constexpr std::array<std::string_view, 5> files{"FILE", "PATH", "STYLE", "A", "B"};
  if (option.value.empty()) return ValueKind::none;
  if (!option.choices.empty()) return ValueKind::choice;
  if (option.value == "DIR") return ValueKind::directory;
  const bool isFile = std::find(files.begin(), files.end(), option.value) != files.end();
  return isFile ? ValueKind::file : ValueKind::text;
}

// Paragraphs stand apart by an empty line; a first line that ends in a colon is a heading.
std::vector<Section> sectionsOf(const std::string& footer) {
  std::vector<Section> sections(1);
  for (const std::string& line : split(footer, '\n')) {
    Section& last = sections.back();
    if (line.empty()) {
      sections.emplace_back();
    } else if (last.lines.empty() && last.heading.empty() && line.back() == ':') {
      last.heading = line.substr(0, line.size() - 1);
    } else {
      last.lines.push_back(line);
    }
  }
  const auto isEmpty = [](const Section& section) { return section.lines.empty(); };
  sections.erase(std::remove_if(sections.begin(), sections.end(), isEmpty), sections.end());
  return sections;
}

}  // namespace

OptionDescription describe(const CLI::Option& option) {
  OptionDescription description;
  for (const std::string& name : option.get_snames()) description.names.push_back('-' + name);
  for (const std::string& name : option.get_lnames()) description.names.push_back("--" + name);
  const std::string type = option.get_type_name();
  description.choices = choicesOf(type);
  if (option.get_positional()) {
    description.value = option.get_name(true);
  } else if (option.get_items_expected_max() > 0) {
    description.value = withoutRules(type);
  }
  description.kind = kindOf(description);
  description.text = option.get_description();
  if (const std::string value = option.get_default_str();
      !value.empty() && description.kind != ValueKind::none)
    description.text += fmt::format("; {} when not given", value);
  description.isRequired = option.get_required();
  description.repeats = option.get_items_expected_max() > 1;
  return description;
}

CommandDescription describe(const CLI::App& command) {
  CommandDescription description;
  const CLI::App* const parent = command.get_parent();
  description.name = parent ? parent->get_name() + ' ' + command.get_name() : command.get_name();
  description.text = command.get_description();
  for (const CLI::Option* option : command.get_options({}))
    description.options.push_back(describe(*option));
  std::stable_partition(description.options.begin(), description.options.end(),
                        [](const OptionDescription& option) { return option.isArgument(); });
  description.sections = sectionsOf(command.get_footer());
  for (const CLI::App* subcommand : command.get_subcommands({}))
    description.commands.push_back(describe(*subcommand));
  return description;
}

std::string usage(const CommandDescription& command) {
  std::string text = command.name;
  for (const OptionDescription& option : command.options)
    if (!option.isArgument() && option.isRequired) text += ' ' + label(option);
  text += " [OPTION]...";
  for (const OptionDescription& option : command.options) {
    if (!option.isArgument()) continue;
    text += fmt::format(option.isRequired ? " {}" : " [{}]", option.value);
    if (option.repeats) text += "...";
  }
  if (!command.commands.empty()) text += " COMMAND";
  return text;
}

std::string label(const OptionDescription& option) {
  std::string text = fmt::format("{}", fmt::join(option.names, ", "));
  if (!text.empty() && !option.value.empty()) text += ' ';
  return text + option.value;
}

}  // namespace tool
