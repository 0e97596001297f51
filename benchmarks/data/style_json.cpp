#include "data/style_json.h"

#include <rapidjson/encodedstream.h>
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>

namespace bench {
namespace {

using Value = JsonDocument::ValueType;
using Pool = JsonDocument::AllocatorType;
using Output = rapidjson::FileWriteStream;
using Utf8 = rapidjson::UTF8<>;

Value reference(const Text& text) {
  return Value(Value::StringRefType(text.data(), static_cast<rapidjson::SizeType>(text.size())));
}

Value makeList(const std::vector<Text>& texts, Pool& pool) {
  Value list(rapidjson::kArrayType);
  for (const Text& text : texts) list.PushBack(reference(text), pool);
  return list;
}

Value makeValue(const std::variant<int, float, Text>& value) {
  if (const int* integer = std::get_if<int>(&value)) return Value(*integer);
  if (const float* number = std::get_if<float>(&value)) return Value(static_cast<double>(*number));
  return reference(std::get<Text>(value));
}

Value makeChain(const std::vector<EffectContent>& chain, Pool& pool) {
  Value effects(rapidjson::kObjectType);
  for (const EffectContent& effect : chain) {
    Value parameters(rapidjson::kObjectType);
    for (const ParameterContent& parameter : effect.parameters) {
      parameters.AddMember(reference(parameter.name), makeValue(parameter.value), pool);
    }
    Value object(rapidjson::kObjectType);
    object.AddMember(KOSTYLE_TEXT("parameter"), parameters, pool);
    effects.AddMember(reference(effect.id), object, pool);
  }
  return effects;
}

Value makeFilter(const StyleContent& content, Pool& pool) {
  Value languages(rapidjson::kArrayType);
  for (const int language : content.languages) languages.PushBack(language, pool);
  Value filter(rapidjson::kObjectType);
  filter.AddMember(KOSTYLE_TEXT("languages"), languages, pool);
  filter.AddMember(KOSTYLE_TEXT("singerGroups"), makeList(content.singerGroups, pool), pool);
  filter.AddMember(KOSTYLE_TEXT("singerIDs"), makeList(content.singerIDs, pool), pool);
  filter.AddMember(KOSTYLE_TEXT("genres"), makeList(content.genres, pool), pool);
  filter.AddMember(KOSTYLE_TEXT("subGenres"), makeList(content.subGenres, pool), pool);
  filter.AddMember(KOSTYLE_TEXT("colors"), makeList(content.colors, pool), pool);
  return filter;
}

}  // namespace

JsonDocument buildDocument(const StyleContent& content, Vendor vendor) {
  JsonDocument document(rapidjson::kObjectType);
  Pool& pool = document.GetAllocator();
  document.AddMember(KOSTYLE_TEXT("id"), reference(content.id), pool);
  document.AddMember(KOSTYLE_TEXT("name"), reference(content.name), pool);
  if (vendor == Vendor::written) {
    document.AddMember(KOSTYLE_TEXT("vendor"), reference(content.vendor), pool);
  }
  document.AddMember(KOSTYLE_TEXT("filter"), makeFilter(content, pool), pool);
  document.AddMember(KOSTYLE_TEXT("audioEffect"), makeChain(content.audioEffects, pool), pool);
  document.AddMember(KOSTYLE_TEXT("midiEffect"), makeChain(content.midiEffects, pool), pool);
  return document;
}

void writeIndented(const JsonDocument& document, std::FILE* file) {
  char buffer[256];
  Output output(file, buffer, sizeof buffer);
  rapidjson::PrettyWriter<Output, JsonEncoding, Utf8> writer(output);
  document.Accept(writer);
}

void writeCompact(const JsonDocument& document, std::FILE* file) {
  char buffer[256];
  Output output(file, buffer, sizeof buffer);
  rapidjson::Writer<Output, JsonEncoding, Utf8> writer(output);
  document.Accept(writer);
}

void writeUtf16(const JsonDocument& document, std::FILE* file) {
  using Target = rapidjson::UTF16LE<KoStyleChar>;
  using EncodedOutput = rapidjson::EncodedOutputStream<Target, Output>;
  char buffer[256];
  Output output(file, buffer, sizeof buffer);
  EncodedOutput encoded(output, true);
  rapidjson::PrettyWriter<EncodedOutput, JsonEncoding, Target> writer(encoded);
  document.Accept(writer);
}

}  // namespace bench
