#include <fmt/format.h>

#include <string>
#include <string_view>

#include "help/completion.h"

namespace tool {
namespace {

std::string quotedForFish(std::string_view text) {
  std::string result = "'";
  for (const char c : text) {
    if (c == '\'' || c == '\\') result += '\\';
    result += c;
  }
  return result + '\'';
}

std::string offered(const OptionDescription& option) {
  switch (option.kind) {
    case ValueKind::none:
      return {};
    case ValueKind::text:
      return " -x";
    case ValueKind::choice:
      return fmt::format(" -x -a {}", quotedForFish(fmt::format("{}", fmt::join(option.choices, " "))));
    case ValueKind::file:
      return " -r -F";
    case ValueKind::directory:
      break;
  }
  return " -x -a '(__fish_complete_directories)'";
}

std::string optionLines(const CommandDescription& command, const std::string& condition) {
  std::string lines;
  for (const OptionDescription& option : command.options) {
    lines += fmt::format("complete -c kostyle -n {}", condition);
    for (const std::string& name : option.names)
      lines += name[1] == '-' ? fmt::format(" -l {}", name.substr(2))
                              : fmt::format(" -s {}", name.substr(1));
    if (option.isArgument()) {
      lines +=
          option.kind == ValueKind::choice
              ? fmt::format(" -a {}", quotedForFish(fmt::format("{}", fmt::join(option.choices, " "))))
          : option.kind == ValueKind::file ? " -F"
                                           : "";
      lines += '\n';
    } else {
      lines += fmt::format("{} -d {}\n", offered(option), quotedForFish(option.text));
    }
  }
  return lines;
}

}  // namespace

std::string fishCompletion(const CommandDescription& tool) {
  std::string text =
      "# Completion of kostyle for fish, as \"kostyle completion fish\" prints it.\n"
      "complete -c kostyle -f\n";
  text += optionLines(tool, "__fish_use_subcommand");
  for (const CommandDescription& command : tool.commands)
    text += fmt::format("complete -c kostyle -n __fish_use_subcommand -a {} -d {}\n", command.word(),
                        quotedForFish(command.text));
  for (const CommandDescription& command : tool.commands)
    text += optionLines(command, quotedForFish("__fish_seen_subcommand_from " + command.word()));
  return text;
}

}  // namespace tool
