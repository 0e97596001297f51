#include "checking/repeated_identifiers.h"

#include <algorithm>
#include <map>

#include "checking/reporter.h"

namespace tool {
namespace {

Finding repeats(const FileReport& report, const FileReport& winner) {
  Finding finding;
  finding.rule = &rule::repeatedIdentifier;
  finding.place = report.idPlace;
  finding.excerpt = report.idExcerpt;
  finding.path = "/id";
  finding.found = "the identifier " + textInQuotes(report.id) + " belongs to another file";
  finding.requirement = rule::repeatedIdentifier.sentence;
  finding.outcome = "the file is refused";
  finding.related =
      Related{winner.file, winner.idPlace, "this file is read first and has the identifier"};
  return finding;
}

}  // namespace

void findRepeatedIdentifiers(const std::vector<Input>& inputs, std::vector<FileReport>& reports) {
  std::map<std::size_t, FileReport*> inOrder;
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    if (!reports[i].id.empty() || reports[i].idPlace) inOrder.emplace(inputs[i].order, &reports[i]);
  }
  std::map<Text, const FileReport*> winners;
  for (const auto& [order, report] : inOrder) {
    const auto [winner, isFirst] = winners.emplace(report->id, report);
    if (!isFirst) report->findings.insert(report->findings.begin(), repeats(*report, *winner->second));
  }
}

}  // namespace tool
