#include "help/manual_page.h"

#include <fmt/format.h>
#include <kostyle/version.h>

#include <string_view>

namespace tool {
namespace {

// Text that stands for itself.
std::string plain(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\\') {
      result += "\\e";
    } else if (c == '-') {
      result += "\\-";
    } else if (c == '\'') {
      result += "\\(aq";
    } else if (c == '"') {
      result += "\\(dq";
    } else {
      result += c;
    }
  }
  return result.empty() || result.front() != '.' ? result : "\\&" + result;
}

std::string upper(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  return text;
}

std::string sectionText(const Section& section, const char* heading) {
  if (section.heading.empty())
    return fmt::format(".PP\n{}\n", plain(fmt::format("{}", fmt::join(section.lines, " "))));
  std::string text = fmt::format("{}\n.nf\n", fmt::format(fmt::runtime(heading), section.heading));
  for (const std::string& line : section.lines) text += plain(line) + '\n';
  return text + ".fi\n";
}

std::string optionText(const OptionDescription& option) {
  std::string text = plain(option.text);
  if (!option.choices.empty()) text += plain(fmt::format(": {}", fmt::join(option.choices, ", ")));
  if (option.isRequired && !option.isArgument()) text += "; required";
  return fmt::format(".TP\n.B {}\n{}\n", plain(label(option)), text);
}

std::string commandText(const CommandDescription& command) {
  std::string text = fmt::format(".SS {}\n{}\n", plain(usage(command)), plain(command.text));
  for (const OptionDescription& option : command.options) text += optionText(option);
  for (const Section& section : command.sections) text += sectionText(section, ".PP\n{}:");
  return text;
}

}  // namespace

std::string manualPage(const CommandDescription& tool) {
  std::string text = fmt::format(
      ".TH KOSTYLE 1 \"\" \"KoStyle {}\" \"User Commands\"\n.ad l\n.nh\n.SH NAME\n{} \\- {}\n.SH "
      "SYNOPSIS\n.B {}\n",
      KOSTYLE_VERSION_STRING, tool.name, plain(tool.text), plain(usage(tool)));
  text += ".SH COMMANDS\n";
  for (const CommandDescription& command : tool.commands) text += commandText(command);
  text += ".SH OPTIONS\n";
  for (const OptionDescription& option : tool.options) text += optionText(option);
  for (const Section& section : tool.sections) {
    Section named = section;
    named.heading = upper(section.heading);
    text += sectionText(named, ".SH {}");
  }
  return text;
}

}  // namespace tool
