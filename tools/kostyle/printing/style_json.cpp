#include "printing/style_json.h"

#include <kostyle/helpers.h>

#include <string_view>

#include "basics/text.h"
#include "printing/json_writing.h"
#include "printing/value_json.h"
#include "reading/attributes.h"
#include "reading/parameter_value.h"
#include "reading/reasons.h"

namespace tool {
namespace {

void writeEffect(JsonWriter& writer, KoStyleEffect* effect) {
  writer.StartObject();
  writeMember(writer, "id", toUtf8(Effect_id(effect)));
  writer.Key("parameters");
  writer.StartArray();
  for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
    KoStyleParameter* parameter = Effect_parameter(effect, i);
    const Value value = valueOf(parameter);
    writer.StartObject();
    writeMember(writer, "name", toUtf8(Parameter_name(parameter)));
    writeMember(writer, "type", typeText(value));
    writer.Key("value");
    writeValue(writer, value);
    writer.EndObject();
  }
  writer.EndArray();
  writer.EndObject();
}

void writeAttributes(JsonWriter& writer, KoStyleStyle* style) {
  writer.Key("languages");
  writer.StartArray();
  for (const int language : languages(style)) writer.Int(language);
  writer.EndArray();
  for (const TextList& list : textLists()) {
    writer.Key(list.key);
    writer.StartArray();
    for (const std::string& text : values(list, style)) writeText(writer, text);
    writer.EndArray();
  }
}

void writeStyle(JsonWriter& writer, KoStyleStyle* style) {
  const StyleSource source = sourceOf(style);
  writer.StartObject();
  writeMember(writer, "kind", source.kind);
  writeMember(writer, "name", toUtf8(Style_name(style)));
  writeMember(writer, "id", toUtf8(Style_id(style)));
  writeMember(writer, "path", source.path);
  writeMember(writer, "vendor", toUtf8(Style_vendor(style)));
  writeAttributes(writer, style);
  for (const Chain& chain : chains()) {
    writer.Key(chain.key);
    writer.StartArray();
    for (std::size_t i = 0; i < chain.count(style); ++i) writeEffect(writer, chain.stored(style, i));
    writer.EndArray();
  }
  writer.EndObject();
}

void writeParseError(JsonWriter& writer, KoStyleCreationResult* result) {
  const int parseError = StyleCreationResult_parseError(result);
  writer.Key("parseError");
  writer.StartObject();
  writer.Key("code");
  writer.Int(parseError);
  writeMember(writer, "text", KoStyle_parseErrorText(parseError));
  writer.Key("offset");
  writer.Uint64(StyleCreationResult_parseErrorOffset(result));
  if (const auto place = syntaxErrorPlace(result)) {
    writeMember(writer, "line", place->line);
    writeMember(writer, "column", place->column);
  }
  writer.EndObject();
}

void writeRefusal(JsonWriter& writer, KoStyleCreationResult* result,
                  const std::vector<KoStyleStyle*>& styles) {
  const int code = StyleCreationResult_error(result);
  writer.StartObject();
  writeMember(writer, "kind", kindText(StyleCreationResult_type(result)));
  writeMember(writer, "path", toUtf8(StyleCreationResult_filePath(result)));
  writer.Key("code");
  writer.Int(code);
  writeMember(writer, "text", KoStyle_codeText(code));
  writeMember(writer, "id", toUtf8(StyleCreationResult_id(result)));
  writeMember(writer, "jsonPath", toUtf8(StyleCreationResult_jsonPath(result)));
  if (const std::string owner = ownerOfIdentifier(result, styles); !owner.empty())
    writeMember(writer, "owner", owner);
  if (code == KOSTYLE_ERROR_JSON_SYNTAX) writeParseError(writer, result);
  writer.EndObject();
}

}  // namespace

std::string listJson(const Listing& listing) {
  rapidjson::StringBuffer buffer;
  JsonWriter writer(buffer);
  const auto writeArray = [&](const char* key, const auto& elements, const auto& writeElement) {
    writer.Key(key);
    writer.StartArray();
    for (const auto& element : elements) writeElement(element);
    writer.EndArray();
  };
  writer.StartObject();
  writeArray("styles", listing.styles, [&](KoStyleStyle* style) { writeStyle(writer, style); });
  writeArray("refused", listing.refused,
             [&](KoStyleCreationResult* result) { writeRefusal(writer, result, listing.allStyles); });
  writeArray("unopened", listing.unopened,
             [&](const fs::path& path) { writeText(writer, shownPath(path)); });
  writer.EndObject();
  return linesOf(buffer);
}

}  // namespace tool
