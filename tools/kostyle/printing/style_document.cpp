#include "printing/style_document.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "basics/text.h"
#include "format/style_keys.h"
#include "printing/json_writing.h"

namespace tool {
namespace {

namespace key = Tesk::KoStyle::key;

std::string keyOf(TextView text) { return toUtf8(text); }

void writeRaw(JsonWriter& writer, std::string_view json) {
  writer.RawValue(json.data(), json.size(), rapidjson::kNumberType);
}

void writeParameter(JsonWriter& writer, const Value& value) {
  if (const auto* integer = std::get_if<int>(&value)) {
    writer.Int(*integer);
  } else if (const auto* number = std::get_if<float>(&value)) {
    // A number that no float of 32 bits can hold is read as infinity.
    const char* const beyond = *number < 0 ? "-1e39" : "1e39";
    writeRaw(writer, std::isfinite(*number) ? floatText(*number) : std::string(beyond));
  } else {
    writeText(writer, toUtf8(std::get<Text>(value)));
  }
}

void writeFilter(JsonWriter& writer, const StyleContent& content) {
  const bool isEmpty = content.languages.empty() &&
                       std::all_of(content.texts.begin(), content.texts.end(),
                                   [](const std::vector<Text>& texts) { return texts.empty(); });
  if (isEmpty) return;
  writeText(writer, keyOf(key::filter));
  writer.StartObject();
  if (!content.languages.empty()) {
    writeText(writer, keyOf(key::languages));
    writer.StartArray();
    for (const int language : content.languages) writer.Int(language);
    writer.EndArray();
  }
  for (std::size_t list = 0; list < content.texts.size(); ++list) {
    if (content.texts[list].empty()) continue;
    writeText(writer, keyOf(key::list(Tesk::KoStyle::textAttributes[list])));
    writer.StartArray();
    for (const Text& text : content.texts[list]) writeText(writer, toUtf8(text));
    writer.EndArray();
  }
  writer.EndObject();
}

// An effect without "parameter" would not be read again.
void writeChain(JsonWriter& writer, TextView name, const ChainContent& chain) {
  if (chain.empty()) return;
  writeText(writer, keyOf(name));
  writer.StartObject();
  for (const EffectContent& effect : chain) {
    writeText(writer, toUtf8(effect.id));
    writer.StartObject();
    writeText(writer, keyOf(key::parameter));
    writer.StartObject();
    for (const ParameterContent& parameter : effect.parameters) {
      writeText(writer, toUtf8(parameter.name));
      writeParameter(writer, parameter.value);
    }
    writer.EndObject();
    writer.EndObject();
  }
  writer.EndObject();
}

}  // namespace

std::string styleDocument(const StyleContent& content) {
  using Tesk::KoStyle::EffectKind;
  rapidjson::StringBuffer buffer;
  JsonWriter writer(buffer);
  writer.StartObject();
  writeMember(writer, "id", toUtf8(content.id));
  writeMember(writer, "name", toUtf8(content.name));
  if (!content.vendor.empty()) writeMember(writer, "vendor", toUtf8(content.vendor));
  writeFilter(writer, content);
  writeChain(writer, key::chain(EffectKind::audio), content.chains[0]);
  writeChain(writer, key::chain(EffectKind::midi), content.chains[1]);
  writer.EndObject();
  return linesOf(buffer);
}

}  // namespace tool
