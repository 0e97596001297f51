#include "printing/findings.h"
#include "printing/json_writing.h"

namespace tool {
namespace {

void writePlace(JsonWriter& writer, const Place& place) {
  writeMember(writer, "line", place.begin.line);
  writeMember(writer, "column", place.begin.column);
  writeMember(writer, "endLine", place.end.line);
  writeMember(writer, "endColumn", place.end.column);
  writeMember(writer, "byteOffset", place.span.begin);
  writeMember(writer, "byteLength", place.span.size());
}

void writeRelated(JsonWriter& writer, const Related& related) {
  writer.Key("related");
  writer.StartObject();
  writeMember(writer, "file", related.file);
  if (related.place) writePlace(writer, *related.place);
  writeMember(writer, "text", related.text);
  writer.EndObject();
}

void writeFinding(JsonWriter& writer, const Finding& finding) {
  writer.StartObject();
  writeMember(writer, "rule", finding.rule->id);
  writeMember(writer, "severity", severityName(finding.rule->severity));
  writeMember(writer, "stage", stageName(finding.rule->stage));
  if (finding.place) writePlace(writer, *finding.place);
  if (!finding.path.empty()) writeMember(writer, "path", finding.path);
  writeMember(writer, "found", finding.found);
  writeMember(writer, "requirement", finding.requirement);
  writeMember(writer, "outcome", finding.outcome);
  if (!finding.suggestion.empty()) writeMember(writer, "suggestion", finding.suggestion);
  if (finding.related) writeRelated(writer, *finding.related);
  writer.EndObject();
}

void writeReport(JsonWriter& writer, const FileReport& report) {
  writer.StartObject();
  writeMember(writer, "file", report.file);
  if (!report.encoding.empty()) writeMember(writer, "encoding", report.encoding);
  if (report.idPlace) writeMember(writer, "id", toUtf8(report.id));
  writer.Key("findings");
  writer.StartArray();
  for (const Finding& finding : report.findings) writeFinding(writer, finding);
  writer.EndArray();
  if (const std::size_t more = numUnkept(report)) writeMember(writer, "more", more);
  writer.EndObject();
}

}  // namespace

std::string findingsJson(const std::vector<FileReport>& reports) {
  rapidjson::StringBuffer buffer;
  JsonWriter writer(buffer);
  const Counts counts = countsOf(reports);
  writer.StartObject();
  writer.Key("files");
  writer.StartArray();
  for (const FileReport& report : reports) writeReport(writer, report);
  writer.EndArray();
  writeMember(writer, "errors", counts.errors);
  writeMember(writer, "warnings", counts.warnings);
  writeMember(writer, "notes", counts.notes);
  writer.EndObject();
  return linesOf(buffer);
}

}  // namespace tool
