#include <fmt/format.h>

#include <string>
#include <vector>

#include "help/completion.h"

namespace tool {
namespace {

// What stands before the cursor, and how files and words are offered.
constexpr const char* bashStart =
    R"(# Completion of kostyle for bash, as "kostyle completion bash" prints it.
_kostyle() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command= word
  # bash takes --option=value apart.
  if [ "$current" = = ]; then
    current=
  elif [ "$previous" = = ]; then
    previous=${COMP_WORDS[COMP_CWORD-2]}
  fi
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case $word in
      {commands}) command=$word; break ;;
    esac
  done
  COMPREPLY=()
  case "$command $previous" in
)";
constexpr const char* bashMiddle = R"(  esac
  case "$command" in
)";
constexpr const char* bashEnd = R"(  esac
}
complete -F _kostyle kostyle
)";

constexpr const char* completeFiles =
    "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- \"$current\")";
constexpr const char* completeDirectories =
    "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- \"$current\")";

std::string words(const std::vector<std::string>& list) {
  return fmt::format("mapfile -t COMPREPLY < <(compgen -W '{}' -- \"$current\")", fmt::join(list, " "));
}

std::string valueCase(const std::string& command, const OptionDescription& option) {
  if (option.isArgument() || option.kind == ValueKind::none) return {};
  std::string patterns;
  for (const std::string& name : option.names)
    patterns += fmt::format("{}'{} {}'", patterns.empty() ? "" : "|", command, name);
  const std::string offered = option.kind == ValueKind::file        ? completeFiles
                              : option.kind == ValueKind::directory ? completeDirectories
                              : option.kind == ValueKind::choice    ? words(option.choices)
                                                                    : std::string(":");
  return fmt::format("    {}) {}; return ;;\n", patterns, offered);
}

std::vector<std::string> optionNames(const CommandDescription& command) {
  std::vector<std::string> names;
  for (const OptionDescription& option : command.options)
    names.insert(names.end(), option.names.begin(), option.names.end());
  return names;
}

std::string argumentsCase(const CommandDescription& command) {
  std::string offered = ":";
  for (const OptionDescription& option : command.options) {
    if (!option.isArgument()) continue;
    if (option.kind == ValueKind::file) offered = completeFiles;
    if (option.kind == ValueKind::choice) offered = words(option.choices);
  }
  return fmt::format(
      "    {})\n      case $current in\n        -*) {} ;;\n        *) {} ;;\n      esac ;;\n",
      command.word(), words(optionNames(command)), offered);
}

}  // namespace

std::string bashCompletion(const CommandDescription& tool) {
  std::vector<std::string> commands;
  commands.reserve(tool.commands.size());
  for (const CommandDescription& command : tool.commands) commands.push_back(command.word());
  std::string text = bashStart;
  const std::string place = "{commands}";
  text.replace(text.find(place), place.size(), fmt::format("{}", fmt::join(commands, "|")));
  for (const CommandDescription& command : tool.commands)
    for (const OptionDescription& option : command.options) text += valueCase(command.word(), option);
  text += bashMiddle;
  for (const CommandDescription& command : tool.commands) text += argumentsCase(command);
  std::vector<std::string> first = commands;
  for (const std::string& name : optionNames(tool)) first.push_back(name);
  text += fmt::format("    '') {} ;;\n", words(first));
  return text + bashEnd;
}

}  // namespace tool
