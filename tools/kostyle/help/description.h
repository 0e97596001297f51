// What the command line takes, as help, manual page and completion tell it. All of it is read from the
// options that the commands themselves are made with.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace tool {

enum class ValueKind { none, text, choice, file, directory };

struct OptionDescription {
  std::vector<std::string> names;  // "-V", "--version"; none for an argument without name
  std::string value;               // what stands for its value: "DIR"
  ValueKind kind = ValueKind::none;
  std::vector<std::string> choices;
  std::string text;
  bool isRequired = false;
  bool repeats = false;

  bool isArgument() const { return names.empty(); }
};

/// What stands below the options: a paragraph, or lines below a heading such as "Examples".
struct Section {
  std::string heading;
  std::vector<std::string> lines;
};

struct CommandDescription {
  std::string name;  // "kostyle list"
  std::string text;
  std::vector<OptionDescription> options;
  std::vector<Section> sections;
  std::vector<CommandDescription> commands;

  /// Its last word.
  std::string word() const { return name.substr(name.rfind(' ') + 1); }
};

CommandDescription describe(const CLI::App& command);
OptionDescription describe(const CLI::Option& option);

/// "kostyle new --user DIR --name TEXT [OPTION]..."
std::string usage(const CommandDescription& command);

/// "-V, --version", "--user DIR"
std::string label(const OptionDescription& option);

}  // namespace tool
