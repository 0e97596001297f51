#include <fmt/core.h>

#include <iterator>

#include "basics/text.h"
#include "printing/findings.h"

namespace tool {
namespace {

class TextForm {
 public:
  explicit TextForm(bool colors) : colors_(colors) {}

  void add(const FileReport& report) {
    for (const Finding& finding : report.findings) add(report, finding);
    if (const std::size_t number = numUnkept(report))
      addLine("{}: {}", printable(report.file), counted(number, "more finding"));
  }

  void addSummary(const Counts& counts) {
    if (counts.errors + counts.warnings + counts.notes == 0) return;
    addLine("{}, {}, {} in {}", counted(counts.errors, "error"), counted(counts.warnings, "warning"),
            counted(counts.notes, "note"), counted(counts.files, "file"));
  }

  const std::string& text() const { return text_; }

 private:
  static constexpr int numberWidth = 5;

  void add(const FileReport& report, const Finding& finding) {
    const Severity severity = finding.rule->severity;
    addLine("{}{}: {}{}", bold(where(report.file, finding.place)),
            colored(severityName(severity), severity), bold(printable(headline(finding))),
            fmt::format(" [{}]", finding.rule->id));
    if (finding.place) addExcerpt(finding);
    const std::string path = finding.path.empty() ? "" : printable(finding.path) + ": ";
    addLine("{:>{}} = {}{}; {}", "", numberWidth, path, printable(finding.requirement),
            printable(finding.outcome));
    if (finding.related) {
      const Related& related = *finding.related;
      addLine("{:>{}} = {}{}", "", numberWidth, where(related.file, related.place),
              printable(related.text));
    }
  }

  template <class... Values>
  void addLine(fmt::format_string<Values...> format, Values&&... values) {
    fmt::format_to(std::back_inserter(text_), format, std::forward<Values>(values)...);
    text_ += '\n';
  }

  void addExcerpt(const Finding& finding) {
    addLine("{:>{}} | {}", finding.place->begin.line, numberWidth, finding.excerpt.line);
    const std::string mark = '^' + std::string(finding.excerpt.width - 1, '~');
    addLine("{:>{}} | {:>{}}{}", "", numberWidth, "", finding.excerpt.caret,
            colored(mark, finding.rule->severity));
  }

  static std::string where(const std::string& file, const std::optional<Place>& place) {
    if (!place) return printable(file) + ": ";
    return fmt::format("{}:{}:{}: ", printable(file), place->begin.line, place->begin.column);
  }

  static std::string counted(std::size_t count, const char* thing) {
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
  }

  std::string styled(const char* code, const std::string& text) const {
    return colors_ ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : text;
  }
  std::string bold(const std::string& text) const { return styled("1", text); }
  std::string colored(const std::string& text, Severity severity) const {
    constexpr const char* codes[] = {"1;36", "1;35", "1;31"};
    return styled(codes[static_cast<int>(severity)], text);
  }

  const bool colors_;
  std::string text_;
};

}  // namespace

std::string findingsText(const std::vector<FileReport>& reports, bool colors) {
  TextForm form(colors);
  for (const FileReport& report : reports) form.add(report);
  form.addSummary(countsOf(reports));
  return form.text();
}

}  // namespace tool
