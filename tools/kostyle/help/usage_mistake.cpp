#include "help/usage_mistake.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <vector>

#include "basics/text.h"
#include "checking/near_name.h"
#include "help/description.h"

namespace tool {
namespace {

std::string hint(const std::string& name, const std::vector<std::string>& known) {
  std::vector<Text> texts;
  texts.reserve(known.size());
  for (const std::string& other : known) texts.push_back(fromUtf8(other));
  return nearNameHint(fromUtf8(name), {texts.begin(), texts.end()});
}

const CLI::App& givenCommand(const CLI::App& app) {
  const auto given = app.get_subcommands();
  return given.empty() ? app : *given.front();
}

std::string unknownOption(const CommandDescription& command, const std::string& argument) {
  const std::string name = argument.substr(0, argument.find('='));
  std::vector<std::string> known;
  for (const OptionDescription& option : command.options)
    known.insert(known.end(), option.names.begin(), option.names.end());
  const std::string nearest = hint(name, known);
  return fmt::format(
      "{} has no option {}{}", command.name, name,
      nearest.empty() ? fmt::format("; \"{} --help\" lists them", command.name) : nearest);
}

std::string unknownCommand(const CommandDescription& tool, const std::string& name) {
  std::vector<std::string> known;
  known.reserve(tool.commands.size());
  for (const CommandDescription& command : tool.commands) known.push_back(command.word());
  const std::string nearest = name == "help"
                                  ? R"(; "kostyle --help" helps, and so does "kostyle COMMAND --help")"
                                  : hint(name, known);
  return fmt::format("there is no command {}{}", inQuotes(name),
                     nearest.empty() ? fmt::format("; there are {}", fmt::join(known, ", ")) : nearest);
}

// What stands in front of the command belongs to the tool itself.
std::string unexpected(const CLI::App& app) {
  const bool isInFront = !app.remaining().empty();
  const CLI::App& taker = isInFront ? app : givenCommand(app);
  const std::vector<std::string> arguments = taker.remaining();
  if (arguments.empty()) return "there is an argument too many";
  const CommandDescription command = describe(taker);
  const std::string& first = arguments.front();
  if (first.size() > 1 && first.front() == '-') return unknownOption(command, first);
  if (!command.commands.empty()) return unknownCommand(command, first);
  return fmt::format("{} is one argument too many: {}", inQuotes(first), usage(command));
}

std::string missing(const CLI::App& given, const CommandDescription& command) {
  for (const CLI::Option* option : given.get_options({}))
    if (option->get_required() && option->count() == 0)
      return fmt::format("{} is required: {}", option->get_name(), usage(command));
  return "an option is missing";
}

std::string needed(const CLI::App& given) {
  for (const CLI::Option* option : given.get_options({}))
    for (const CLI::Option* other : option->get_needs())
      if (option->count() > 0 && other->count() == 0)
        return fmt::format("{} needs {} beside it", option->get_name(), other->get_name());
  return "an option needs another one";
}

std::string excluded(const CLI::App& given) {
  for (const CLI::Option* option : given.get_options({}))
    for (const CLI::Option* other : option->get_excludes())
      if (option->count() > 0 && other->count() > 0)
        return fmt::format("{} and {} do not go together", option->get_name(), other->get_name());
  return "two options do not go together";
}

// The option that the parser's message names first, and of several there the longest.
const CLI::Option* namedOption(const CLI::App& given, const std::string& message) {
  const CLI::Option* found = nullptr;
  std::size_t first = message.npos;
  for (const CLI::Option* option : given.get_options({})) {
    const std::size_t place = message.find(option->get_single_name());
    if (place == message.npos || place > first) continue;
    if (place == first && option->get_single_name().size() < found->get_single_name().size()) continue;
    found = option;
    first = place;
  }
  return found;
}

// Some options stand in front of the command as well as behind it.
const CLI::Option* mistakenOption(const CLI::App& app, const std::string& message) {
  const CLI::Option* const own = namedOption(givenCommand(app), message);
  const CLI::Option* const inFront = namedOption(app, message);
  return own && (!inFront || inFront->results().empty()) ? own : inFront;
}

std::string wrongCount(const CLI::Option& option, const OptionDescription& description) {
  if (description.kind == ValueKind::none) return fmt::format("{} takes no value", label(description));
  if (option.results().size() > 1) return fmt::format("{} is given more than once", label(description));
  return fmt::format("{}: the value is missing", label(description));
}

// The parser tells a range as "N:INT in [1 - 9]".
std::string rangeHint(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const std::size_t open = type.find(" in [");
  if (open == type.npos || type.back() != ']') return "; a number is";
  const std::size_t first = open + 5;
  std::string range = type.substr(first, type.size() - 1 - first);
  if (const std::size_t dash = range.find(" - "); dash != range.npos) range.replace(dash, 3, " to ");
  return fmt::format("; a number from {} is", range);
}

std::string wrongValue(const CLI::Option& option, const OptionDescription& description) {
  for (const std::string& value : option.results()) {
    const auto& choices = description.choices;
    if (choices.empty() || std::find(choices.begin(), choices.end(), value) != choices.end()) continue;
    return fmt::format("{}: {} is none of {}{}", option.get_name(), inQuotes(value),
                       fmt::join(choices, ", "), hint(value, choices));
  }
  const std::string value = option.results().empty() ? std::string() : option.results().back();
  return fmt::format("{}: {} is not taken{}", option.get_name(), inQuotes(value), rangeHint(option));
}

}  // namespace

std::string usageMistake(const CLI::App& app, const CLI::ParseError& error) {
  const CLI::App& given = givenCommand(app);
  const CommandDescription command = describe(given);
  // What is missing may be there, but misspelt.
  const auto isOption = [](const std::string& argument) { return argument.rfind("--", 0) == 0; };
  const std::vector<std::string> unknown = app.remaining(true);
  const bool isMisspelt = std::any_of(unknown.begin(), unknown.end(), isOption);
  if (isMisspelt || dynamic_cast<const CLI::ExtrasError*>(&error)) return unexpected(app);
  if (dynamic_cast<const CLI::RequiredError*>(&error)) return missing(given, command);
  if (dynamic_cast<const CLI::RequiresError*>(&error)) return needed(given);
  if (dynamic_cast<const CLI::ExcludesError*>(&error)) return excluded(given);
  const CLI::Option* const option = mistakenOption(app, error.what());
  if (!option) return fmt::format("the arguments are not understood: {}", usage(command));
  const OptionDescription description = describe(*option);
  const bool isCount = dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr;
  return isCount ? wrongCount(*option, description) : wrongValue(*option, description);
}

}  // namespace tool
