#include "help/help_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tool {
namespace {

constexpr std::size_t lineLength = 80;
constexpr std::size_t textColumn = 26;

// The words of a text in lines, each behind an indentation. The first line is behind `start`.
std::string wrapped(std::string start, std::string_view text, std::size_t indent) {
  std::string lines;
  std::string line = std::move(start);
  bool isEmpty = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!isEmpty && line.size() + 1 + word.size() > lineLength) {
      lines += line + '\n';
      line.assign(indent, ' ');
      isEmpty = true;
    }
    if (!isEmpty) line += ' ';
    line += word;
    isEmpty = false;
  }
  return lines + line + '\n';
}

std::string entry(const std::string& name, const std::string& text) {
  std::string start = fmt::format("  {:<{}}", name, textColumn - 2);
  std::string lines;
  if (name.size() + 2 >= textColumn) {
    lines = fmt::format("  {}\n", name);
    start.assign(textColumn, ' ');
  }
  return lines + wrapped(std::move(start), text, textColumn);
}

std::string sectionText(const Section& section) {
  if (section.heading.empty())
    return '\n' + wrapped("", fmt::format("{}", fmt::join(section.lines, " ")), 0);
  return fmt::format("\n{}:\n{}\n", section.heading, fmt::join(section.lines, "\n"));
}

std::string choicesText(const OptionDescription& option) {
  if (option.choices.empty()) return option.text;
  return fmt::format("{}: {}", option.text, fmt::join(option.choices, ", "));
}

std::string optionsText(const CommandDescription& command, const char* heading, bool arguments) {
  std::string text;
  for (const OptionDescription& option : command.options)
    if (option.isArgument() == arguments) text += entry(label(option), choicesText(option));
  return text.empty() ? text : fmt::format("\n{}:\n{}", heading, text);
}

}  // namespace

std::string helpText(const CommandDescription& command) {
  std::string text = fmt::format("Usage: {}\n\n{}\n", usage(command), command.text);
  if (!command.commands.empty()) text += "\nCommands:\n";
  for (const CommandDescription& other : command.commands) text += entry(other.word(), other.text);
  text += optionsText(command, "Arguments", true) + optionsText(command, "Options", false);
  for (const Section& section : command.sections) text += sectionText(section);
  return text;
}

}  // namespace tool
