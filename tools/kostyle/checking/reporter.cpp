#include "checking/reporter.h"

#include <algorithm>
#include <utility>

#include "checking/excerpt.h"

namespace tool {

Finding& Reporter::add(const Rule& rule, Span span, std::string found, std::string outcome) {
  if (isFull()) {
    ++report_.numUnkept[static_cast<std::size_t>(rule.severity)];
    return unkept_;
  }
  Finding finding;
  finding.rule = &rule;
  finding.place = placeOf(span);
  finding.excerpt = excerptOf(document_.source(), span);
  finding.found = std::move(found);
  finding.requirement = rule.sentence;
  finding.outcome = std::move(outcome);
  report_.findings.push_back(std::move(finding));
  return report_.findings.back();
}

Finding& Reporter::add(const Rule& rule, const JsonNode& node, bool atKey, std::string found,
                       std::string outcome) {
  const bool manyLines = node.isObject() || node.isArray();
  const Span value = manyLines ? startOf(node) : node.span;
  Finding& finding =
      add(rule, atKey && node.isMember() ? node.keySpan : value, std::move(found), std::move(outcome));
  if (&finding != &unkept_) finding.path = document_.path(node);
  return finding;
}

Place Reporter::placeOf(Span span) const {
  const SourceText& source = document_.source();
  return {span, source.position(span.begin), source.position(span.end)};
}

Related Reporter::relatedTo(const JsonNode& node, std::string text) const {
  return {report_.file, placeOf(node.isMember() ? node.keySpan : node.span), std::move(text)};
}

Span Reporter::startOf(const JsonNode& node) const {
  const auto size = static_cast<std::uint32_t>(document_.source().at(node.span.begin).size);
  return {node.span.begin, node.span.begin + size};
}

std::string described(const JsonDocument& document, const JsonNode& node) {
  switch (node.kind) {
    case JsonKind::object:
      return "an object";
    case JsonKind::array:
      return "an array";
    case JsonKind::string:
      return textInQuotes(document.text(node));
    default:
      break;
  }
  constexpr std::uint32_t longest = 160;
  const bool cut = node.span.size() > longest;
  return document.source().utf8(cut ? Span{node.span.begin, node.span.begin + longest} : node.span) +
         (cut ? "..." : "");
}

std::string textInQuotes(TextView text) {
  constexpr std::size_t longest = 40;
  std::string result = inQuotes(toUtf8(text.substr(0, longest)));
  if (text.size() > longest) result.insert(result.size() - 1, "...");
  return result;
}

std::string headline(const Finding& finding) {
  if (finding.suggestion.empty()) return finding.found;
  return finding.found + "; did you mean " + inQuotes(finding.suggestion) + "?";
}

}  // namespace tool
