#include "writer/style_serializer.h"

#include <cstddef>
#include <utility>

#include "format/style_document.h"
#include "model/effect_base.h"

namespace Tesk::KoStyle {
namespace {

using json::Pool;
using json::Value;

Value makeString(TextView text, Pool& pool) { return Value(text.data(), text.size(), pool); }

void addMember(Value& object, TextView key, Value&& value, Pool& pool) {
  object.AddMember(makeString(key, pool), std::move(value), pool);
}

void addUnlessEmpty(Value& object, TextView key, Value&& value, Pool& pool) {
  const bool empty = value.IsArray() ? value.Empty() : value.ObjectEmpty();
  if (!empty) addMember(object, key, std::move(value), pool);
}

void addTexts(Value& filter, TextView key, const SortedSet<Text>& texts, Pool& pool) {
  Value array(rapidjson::kArrayType);
  for (const Text& text : texts) {
    if (!text.empty()) array.PushBack(makeString(text, pool), pool);
  }
  addUnlessEmpty(filter, key, std::move(array), pool);
}

// False for a parameter that has no form in a document.
bool makeValue(const ParameterBase& parameter, Value& value, Pool& pool) {
  switch (parameter.type()) {
    case KOSTYLE_PARAMETER_INT:
      value.SetInt(parameter.valueInt());
      return true;
    case KOSTYLE_PARAMETER_FLOAT:
      value.SetDouble(static_cast<double>(parameter.valueFloat()));
      return true;
    case KOSTYLE_PARAMETER_STRING:
      value = makeString(parameter.wholeValueString(), pool);
      return true;
    default:
      return false;
  }
}

template <class AudioEffectType, class MidiEffectType>
std::uint32_t buildDocument(const StyleBase& style, TextView id, json::Document& root) {
  if (id.empty()) return KOSTYLE_ERROR_WRITE_EMPTY_ID;
  if (style.wholeName().empty()) return KOSTYLE_ERROR_WRITE_EMPTY_NAME;
  Pool& pool = root.GetAllocator();
  root.SetObject();
  addMember(root, key::id, makeString(id, pool), pool);
  addMember(root, key::name, makeString(style.wholeName(), pool), pool);

  Value filter(rapidjson::kObjectType);
  if (const auto code = writeFilter(style.attributes(), filter, pool)) return code;
  addUnlessEmpty(root, key::filter, std::move(filter), pool);

  Value audio(rapidjson::kObjectType);
  if (const auto code = writeEffectChain<AudioEffectType>(style.chain(EffectKind::audio), audio, pool))
    return code;
  addUnlessEmpty(root, key::audioEffect, std::move(audio), pool);

  Value midi(rapidjson::kObjectType);
  if (const auto code = writeEffectChain<MidiEffectType>(style.chain(EffectKind::midi), midi, pool))
    return code;
  addUnlessEmpty(root, key::midiEffect, std::move(midi), pool);

  if (!json::findMember(root, key::audioEffect) && !json::findMember(root, key::midiEffect)) {
    return KOSTYLE_ERROR_NO_EFFECT;
  }
  return root.IsObject() && !root.ObjectEmpty() ? KOSTYLE_OK : KOSTYLE_ERROR_WRITE_EMPTY_DOCUMENT;
}

// The writer's stack of open objects and arrays. A document is five levels deep at most, so a fixed
// buffer holds it and writing needs no memory.
class FixedStack {
 public:
  static constexpr bool kNeedFree = false;
  static constexpr std::size_t levels = 8;

  void* Malloc(std::size_t size) noexcept { return size <= sizeof buffer_ ? buffer_ : nullptr; }
  void* Realloc(void*, std::size_t, std::size_t size) noexcept { return Malloc(size); }
  static void Free(void*) noexcept {}

 private:
  alignas(std::max_align_t) unsigned char buffer_[levels * 32];
};

using Output = rapidjson::FileWriteStream;
using Utf8 = rapidjson::UTF8<>;

template <class Writer>
void write(const json::Document& document, std::FILE* file) noexcept {
  char buffer[256];
  Output output(file, buffer, sizeof buffer);
  FixedStack stack;
  Writer writer(output, &stack, FixedStack::levels);
  document.Accept(writer);
}

}  // namespace

StyleDocument::StyleDocument(const MutableStyle& style, TextView id)
    : code_(buildDocument<IMutableAudioEffect, IMutableMidiEffect>(style, id, json_)) {}

StyleDocument::StyleDocument(const Style& style)
    : code_(buildDocument<IAudioEffect, IMidiEffect>(style, style.wholeId(), json_)) {}

std::uint32_t writeStyleFile(const StyleDocument& document, bool pretty, std::FILE* file) noexcept {
  if (document.code() != KOSTYLE_OK) return document.code();
  if (pretty) {
    write<rapidjson::PrettyWriter<Output, json::Encoding, Utf8, FixedStack>>(document.json(), file);
  } else {
    write<rapidjson::Writer<Output, json::Encoding, Utf8, FixedStack>>(document.json(), file);
  }
  return KOSTYLE_OK;
}

std::uint32_t writeFilter(const StyleAttributes& attributes, Value& target, Pool& pool) {
  if (!target.IsObject()) return KOSTYLE_ERROR_WRITE_FILTER_TARGET;
  Value languages(rapidjson::kArrayType);
  for (const int language : attributes.languages) {
    if (StyleAttributes::isLanguage(language)) languages.PushBack(language, pool);
  }
  addUnlessEmpty(target, key::languages, std::move(languages), pool);
  addTexts(target, key::singerGroups, attributes.singerGroups, pool);
  addTexts(target, key::singerIDs, attributes.singerIDs, pool);
  addTexts(target, key::genres, attributes.genres, pool);
  addTexts(target, key::subGenres, attributes.subGenres, pool);
  addTexts(target, key::colors, attributes.colors, pool);
  return KOSTYLE_OK;
}

// An effect without parameters is deliberately written as an empty object, although the reader takes
// no effect from it.
template <class EffectType>
std::uint32_t writeEffectChain(const EffectChain& chain, Value& target, Pool& pool) {
  if (!target.IsObject()) return KOSTYLE_ERROR_WRITE_CHAIN_TARGET;
  for (const EffectBase& effect : chain) {
    if (!dynamic_cast<const EffectType*>(&effect) || effect.wholeId().empty()) continue;
    Value object(rapidjson::kObjectType);
    if (writeParameters(&effect, object, pool) != KOSTYLE_OK) continue;
    addMember(target, effect.wholeId(), std::move(object), pool);
  }
  return KOSTYLE_OK;
}

template std::uint32_t writeEffectChain<IAudioEffect>(const EffectChain&, Value&, Pool&);
template std::uint32_t writeEffectChain<IMidiEffect>(const EffectChain&, Value&, Pool&);
template std::uint32_t writeEffectChain<IMutableAudioEffect>(const EffectChain&, Value&, Pool&);
template std::uint32_t writeEffectChain<IMutableMidiEffect>(const EffectChain&, Value&, Pool&);

std::uint32_t writeParameters(const EffectBase* effect, Value& target, Pool& pool) {
  if (!effect) return KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT;
  if (!target.IsObject()) return KOSTYLE_ERROR_WRITE_PARAMETER_TARGET;
  Value object(rapidjson::kObjectType);
  for (const ParameterBase& parameter : effect->parameters()) {
    Value value;
    if (parameter.wholeName().empty() || !makeValue(parameter, value, pool)) continue;
    addMember(object, parameter.wholeName(), std::move(value), pool);
  }
  addUnlessEmpty(target, key::parameter, std::move(object), pool);
  return KOSTYLE_OK;
}

}  // namespace Tesk::KoStyle
