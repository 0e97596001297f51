#include <fmt/format.h>

#include <string>
#include <string_view>

#include "help/completion.h"

namespace tool {
namespace {

constexpr const char* zshStart = R"(#compdef kostyle
# Completion of kostyle for zsh, as "kostyle completion zsh" prints it.
_kostyle() {
  local context state state_descr line ret=1
  typeset -A opt_args
  local -a commands=(
)";
constexpr const char* zshEnd = R"(      esac
      ;;
  esac
  return ret
}
if [ "$funcstack[1]" = _kostyle ]; then
  _kostyle "$@"
else
  compdef _kostyle kostyle
fi
)";

// In quotation marks, with what the function would take for its own marks escaped.
std::string quotedForZsh(std::string_view text, std::string_view marks) {
  std::string result;
  for (const char c : text) {
    if (marks.find(c) != marks.npos) result += '\\';
    if (c == '\'') {
      result += "'\\''";
    } else {
      result += c;
    }
  }
  return result;
}

std::string action(const OptionDescription& option) {
  switch (option.kind) {
    case ValueKind::file:
      return "_files";
    case ValueKind::directory:
      return "_files -/";
    case ValueKind::choice:
      return fmt::format("({})", fmt::join(option.choices, " "));
    default:
      return "()";
  }
}

std::string valueSpec(const OptionDescription& option) {
  if (option.kind == ValueKind::none) return {};
  return fmt::format(":{}:{}", quotedForZsh(option.value, ":"), action(option));
}

std::string optionSpecs(const CommandDescription& command, const char* indent) {
  std::string specs;
  for (const OptionDescription& option : command.options) {
    if (option.isArgument()) {
      specs += fmt::format(" \\\n{}'{}{}'", indent, option.repeats ? "*" : "", valueSpec(option));
      continue;
    }
    for (const std::string& name : option.names) {
      const char* const joint = option.kind == ValueKind::none ? "" : name[1] == '-' ? "=" : "+";
      specs += fmt::format(" \\\n{}'{}{}{}[{}]{}'", indent, option.repeats ? "*" : "", name, joint,
                           quotedForZsh(option.text, ":[]"), valueSpec(option));
    }
  }
  return specs;
}

}  // namespace

std::string zshCompletion(const CommandDescription& tool) {
  std::string text = zshStart;
  for (const CommandDescription& command : tool.commands)
    text += fmt::format("    '{}:{}'\n", command.word(), quotedForZsh(command.text, ":"));
  text += fmt::format(
      "  )\n  _arguments -C{} \\\n    '1: :->command' \\\n    '*:: :->arguments' && ret=0\n"
      "  case $state in\n    command)\n      _describe -t commands command commands && ret=0\n      "
      ";;\n"
      "    arguments)\n      case $words[1] in\n",
      optionSpecs(tool, "    "));
  for (const CommandDescription& command : tool.commands)
    text += fmt::format("        {})\n          _arguments -s{} && ret=0\n          ;;\n",
                        command.word(), optionSpecs(command, "            "));
  return text + zshEnd;
}

}  // namespace tool
