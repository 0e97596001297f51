#include <fmt/core.h>
#include <kostyle/version.h>

#include <algorithm>
#include <iterator>

#include "printing/findings.h"
#include "printing/json_writing.h"

namespace tool {
namespace {

constexpr const char* schema = "https://json.schemastore.org/sarif-2.1.0.json";

bool isUnreserved(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
         std::string_view("-._~/").find(byte) != std::string_view::npos;
}

// A path as a URI, absolute when the path is.
std::string uriOf(std::string path) {
#if defined(_WIN32)
  std::replace(path.begin(), path.end(), '\\', '/');
  const bool absolute = path.size() > 1 && path[1] == ':';
  std::string uri = absolute ? "file:///" + path.substr(0, 2) : "";
  if (absolute) path.erase(0, 2);
#else
  std::string uri = !path.empty() && path.front() == '/' ? "file://" : "";
#endif
  for (const char byte : path) {
    if (isUnreserved(byte)) {
      uri += byte;
    } else {
      fmt::format_to(std::back_inserter(uri), "%{:02X}", static_cast<unsigned char>(byte));
    }
  }
  return uri;
}

// In a message braces hold the place of an argument, and brackets with parentheses behind them make a
// link. What authors of styles write is neither.
std::string plainMessage(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char byte = text[i];
    if (byte == '{' || byte == '}') plain += byte;
    if (byte == ']' && i + 1 < text.size() && text[i + 1] == '(') plain += '\\';
    plain += byte;
  }
  return plain;
}

void writeMessage(JsonWriter& writer, const char* key, std::string_view text) {
  writer.Key(key);
  writer.StartObject();
  writeMember(writer, "text", plainMessage(text));
  writer.EndObject();
}

void writeRegion(JsonWriter& writer, const Place& place) {
  writer.Key("region");
  writer.StartObject();
  writeMember(writer, "startLine", place.begin.line);
  writeMember(writer, "startColumn", place.begin.column);
  writeMember(writer, "endLine", place.end.line);
  writeMember(writer, "endColumn", place.end.column);
  writeMember(writer, "byteOffset", place.span.begin);
  writeMember(writer, "byteLength", place.span.size());
  writer.EndObject();
}

void writePhysicalLocation(JsonWriter& writer, const std::string& file,
                           const std::optional<Place>& place) {
  writer.Key("physicalLocation");
  writer.StartObject();
  writer.Key("artifactLocation");
  writer.StartObject();
  writeMember(writer, "uri", uriOf(file));
  writer.EndObject();
  if (place) writeRegion(writer, *place);
  writer.EndObject();
}

void writeLocations(JsonWriter& writer, const std::string& file, const Finding& finding) {
  writer.Key("locations");
  writer.StartArray();
  writer.StartObject();
  writePhysicalLocation(writer, file, finding.place);
  if (!finding.path.empty()) {
    writer.Key("logicalLocations");
    writer.StartArray();
    writer.StartObject();
    writeMember(writer, "fullyQualifiedName", finding.path);
    writer.EndObject();
    writer.EndArray();
  }
  writer.EndObject();
  writer.EndArray();
}

void writeRelatedLocations(JsonWriter& writer, const Related& related) {
  writer.Key("relatedLocations");
  writer.StartArray();
  writer.StartObject();
  writeMember(writer, "id", std::size_t{1});
  writePhysicalLocation(writer, related.file, related.place);
  writeMessage(writer, "message", related.text);
  writer.EndObject();
  writer.EndArray();
}

void writeResult(JsonWriter& writer, const std::string& file, const Finding& finding) {
  const Rules rules = allRules();
  writer.StartObject();
  writeMember(writer, "ruleId", finding.rule->id);
  writeMember(
      writer, "ruleIndex",
      static_cast<std::size_t>(std::find(rules.begin(), rules.end(), finding.rule) - rules.begin()));
  writeMember(writer, "level", severityName(finding.rule->severity));
  writeMessage(writer, "message",
               fmt::format("{}: {}; {}", headline(finding), finding.requirement, finding.outcome));
  writeLocations(writer, file, finding);
  if (finding.related) writeRelatedLocations(writer, *finding.related);
  writer.EndObject();
}

void writeDriver(JsonWriter& writer) {
  writer.Key("tool");
  writer.StartObject();
  writer.Key("driver");
  writer.StartObject();
  writeMember(writer, "name", "kostyle");
  writeMember(writer, "version", KOSTYLE_VERSION_STRING);
  writer.Key("rules");
  writer.StartArray();
  for (const Rule* rule : allRules()) {
    writer.StartObject();
    writeMember(writer, "id", rule->id);
    writeMessage(writer, "shortDescription", rule->sentence);
    writer.Key("defaultConfiguration");
    writer.StartObject();
    writeMember(writer, "level", severityName(rule->severity));
    writer.EndObject();
    writer.EndObject();
  }
  writer.EndArray();
  writer.EndObject();
  writer.EndObject();
}

void writeMore(JsonWriter& writer, std::size_t more) {
  writer.Key("properties");
  writer.StartObject();
  writeMember(writer, "more", more);
  writer.EndObject();
}

}  // namespace

std::string findingsSarif(const std::vector<FileReport>& reports) {
  rapidjson::StringBuffer buffer;
  JsonWriter writer(buffer);
  writer.StartObject();
  writeMember(writer, "$schema", schema);
  writeMember(writer, "version", "2.1.0");
  writer.Key("runs");
  writer.StartArray();
  writer.StartObject();
  writeDriver(writer);
  writeMember(writer, "columnKind", "unicodeCodePoints");
  writer.Key("results");
  writer.StartArray();
  std::size_t more = 0;
  for (const FileReport& report : reports) {
    for (const Finding& finding : report.findings) writeResult(writer, report.file, finding);
    more += numUnkept(report);
  }
  writer.EndArray();
  if (more > 0) writeMore(writer, more);
  writer.EndObject();
  writer.EndArray();
  writer.EndObject();
  return linesOf(buffer);
}

}  // namespace tool
