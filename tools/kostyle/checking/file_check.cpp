#include "checking/file_check.h"

#include <kostyle/helpers.h>

#include <algorithm>
#include <utility>

#include "checking/excerpt.h"
#include "checking/reading_check.h"
#include "checking/syntax_hint.h"
#include "checking/writing_check.h"
#include "format/style_keys.h"

namespace tool {
namespace {

void addSyntaxError(Reporter& reporter) {
  const JsonDocument& document = reporter.document();
  const JsonDocument::SyntaxError& error = *document.error();
  const SourceText& source = document.source();
  const auto begin = static_cast<std::uint32_t>(error.place);
  const std::size_t size = error.place < source.end() ? source.at(error.place).size : 0;
  Finding& finding = reporter.add(rule::jsonSyntax, {begin, begin + static_cast<std::uint32_t>(size)},
                                  KoStyle_parseErrorText(error.code), "the file is refused");
  if (const char* const hint = syntaxHint(document)) finding.requirement = hint;
}

void addBehindEnd(Reporter& reporter) {
  const SourceText& source = reporter.document().source();
  const std::size_t end = reporter.document().parsedEnd();
  if (end >= source.end()) return;
  const auto begin = static_cast<std::uint32_t>(end);
  const auto size = static_cast<std::uint32_t>(source.at(end).size);
  reporter.add(rule::behindEnd, {begin, begin + size}, "the document holds U+0000",
               "what stands behind it is not read");
}

// What an application tells the style by.
void setId(const Reporter& reporter, FileReport& report) {
  const JsonDocument& document = reporter.document();
  const JsonNode& id = *document.member(document.root(), Tesk::KoStyle::key::id);
  const TextView whole = document.text(id);
  report.id = Text(whole.substr(0, whole.find(KoStyleChar{})));
  report.idPlace = reporter.placeOf(id.span);
  report.idExcerpt = excerptOf(document.source(), id.span);
}

void sortByPlace(std::vector<Finding>& findings) {
  const auto before = [](const Finding& a, const Finding& b) {
    return a.place->span.begin < b.place->span.begin;
  };
  std::stable_sort(findings.begin(), findings.end(), before);
}

}  // namespace

FileReport checkContent(std::string file, std::string bytes) {
  FileReport report;
  report.file = std::move(file);
  const SourceText source(std::move(bytes));
  report.encoding = source.encodingName();
  const JsonDocument document(source);
  Reporter reporter(document, report);
  if (document.error()) {
    addSyntaxError(reporter);
    return report;
  }
  const Taken taken = checkReading(reporter);
  addBehindEnd(reporter);
  checkWriting(reporter, taken);
  if (!taken.refused) setId(reporter, report);
  sortByPlace(report.findings);
  return report;
}

FileReport unreadable(std::string file, const std::string& why) {
  FileReport report;
  report.file = std::move(file);
  Finding finding;
  finding.rule = &rule::unreadableFile;
  finding.found = why;
  finding.requirement = rule::unreadableFile.sentence;
  finding.outcome = "the file is not read";
  report.findings.push_back(std::move(finding));
  return report;
}

}  // namespace tool
