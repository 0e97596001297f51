#include <fmt/core.h>

#include <iterator>

#include "basics/text.h"
#include "printing/findings.h"

namespace tool {
namespace {

std::string escaped(std::string_view text, std::string_view specials) {
  std::string result;
  for (const char byte : toUtf8(fromUtf8(text))) {
    if (specials.find(byte) == std::string_view::npos) {
      result += byte;
    } else {
      fmt::format_to(std::back_inserter(result), "%{:02X}", static_cast<unsigned char>(byte));
    }
  }
  return result;
}

std::string message(std::string_view text) { return escaped(printable(text), "%\r\n"); }
std::string property(std::string_view text) { return escaped(text, "%\r\n:,"); }

const char* commandOf(Severity severity) {
  return severity == Severity::note ? "notice" : severityName(severity);
}

}  // namespace

std::string findingsGithub(const std::vector<FileReport>& reports) {
  std::string text;
  const auto to = std::back_inserter(text);
  for (const FileReport& report : reports) {
    for (const Finding& finding : report.findings) {
      fmt::format_to(to, "::{} file={}", commandOf(finding.rule->severity),
                     property(printable(report.file)));
      if (finding.place) {
        const Place& place = *finding.place;
        fmt::format_to(to, ",line={},endLine={},col={},endColumn={}", place.begin.line, place.end.line,
                       place.begin.column, place.end.column);
      }
      fmt::format_to(
          to, ",title={}::{}\n", finding.rule->id,
          message(fmt::format("{}: {}; {}", headline(finding), finding.requirement, finding.outcome)));
    }
    if (const std::size_t more = numUnkept(report))
      fmt::format_to(to, "::notice file={}::{} more findings\n", property(printable(report.file)),
                     more);
  }
  return text;
}

}  // namespace tool
