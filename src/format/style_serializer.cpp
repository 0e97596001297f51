#include "format/style_serializer.h"

#include <cstddef>
#include <utility>

#include "format/json_writer.h"
#include "format/style_keys.h"

namespace Tesk::KoStyle {
namespace {

using json::Pool;
using json::stringRef;
using json::Value;

void addMember(Value& object, TextView key, Value&& value, Pool& pool) {
  object.AddMember(stringRef(key), std::move(value), pool);
}

void addUnlessEmpty(Value& object, TextView key, Value&& value, Pool& pool) {
  const bool empty = value.IsArray() ? value.Empty() : value.ObjectEmpty();
  if (!empty) addMember(object, key, std::move(value), pool);
}

template <class Texts>
void addTexts(Value& filter, TextView key, const Texts& texts, Pool& pool) {
  Value array(rapidjson::kArrayType);
  for (const TextView text : texts) {
    if (!text.empty()) array.PushBack(stringRef(text), pool);
  }
  addUnlessEmpty(filter, key, std::move(array), pool);
}

Value makeValue(const ParameterValue& value) {
  switch (value.type) {
    case ParameterType::integer:
      return Value(value.integer);
    case ParameterType::real:
      return Value(static_cast<double>(value.real));
    case ParameterType::text:
      break;
  }
  return stringRef(value.text);
}

template <class Chain>
std::uint32_t addChain(Value& root, EffectKind kind, const Chain& effects, Pool& pool) {
  Value object(rapidjson::kObjectType);
  const std::uint32_t code = writeEffectChain(effects, object, pool);
  if (code == KOSTYLE_OK) addUnlessEmpty(root, key::chain(kind), std::move(object), pool);
  return code;
}

template <class StyleType>
std::uint32_t buildDocument(const StyleType& style, TextView id, json::Document& root) {
  if (id.empty()) return KOSTYLE_ERROR_WRITE_EMPTY_ID;
  if (style.wholeName().empty()) return KOSTYLE_ERROR_WRITE_EMPTY_NAME;
  Pool& pool = root.GetAllocator();
  root.SetObject();
  addMember(root, key::id, stringRef(id), pool);
  addMember(root, key::name, stringRef(style.wholeName()), pool);
  Value filter(rapidjson::kObjectType);
  if (const auto code = writeFilter(style.attributes(), filter, pool)) return code;
  addUnlessEmpty(root, key::filter, std::move(filter), pool);

  const std::size_t membersBefore = root.MemberCount();
  if (const auto code = addChain(root, EffectKind::audio, style.audioEffects(), pool)) return code;
  if (const auto code = addChain(root, EffectKind::midi, style.midiEffects(), pool)) return code;
  if (root.MemberCount() == membersBefore) return KOSTYLE_ERROR_NO_EFFECT;
  return root.IsObject() && !root.ObjectEmpty() ? KOSTYLE_OK : KOSTYLE_ERROR_WRITE_EMPTY_DOCUMENT;
}

template <class Writer>
void write(const json::Document& document, std::FILE* file) noexcept {
  FileOutput output(file);
  FixedStack stack;
  Writer writer(output, &stack, FixedStack::levels);
  document.Accept(writer);
}

}  // namespace

StyleDocument::StyleDocument(const MutableStyle& style, TextView id)
    : code_(buildDocument(style, id, json_)) {}

StyleDocument::StyleDocument(const Style& style)
    : code_(buildDocument(style, style.wholeId(), json_)) {}

std::uint32_t writeStyleFile(const StyleDocument& document, bool pretty, std::FILE* file) noexcept {
  if (document.code() != KOSTYLE_OK) return document.code();
  if (pretty) {
    write<IndentingWriter>(document.json(), file);
  } else {
    write<CompactWriter>(document.json(), file);
  }
  return KOSTYLE_OK;
}

template <class List>
std::uint32_t writeFilter(const Attributes<List>& attributes, Value& target, Pool& pool) {
  if (!target.IsObject()) return KOSTYLE_ERROR_WRITE_FILTER_TARGET;
  Value languages(rapidjson::kArrayType);
  for (std::size_t i = 0; i < attributes.languages.size(); ++i)
    languages.PushBack(attributes.languages.at(i), pool);
  addUnlessEmpty(target, key::languages, std::move(languages), pool);
  for (const Attribute attribute : textAttributes)
    addTexts(target, key::list(attribute), attributes[attribute], pool);
  return KOSTYLE_OK;
}

// An effect without parameters is deliberately written as an empty object, although the reader takes
// no effect from it.
template <class Chain>
std::uint32_t writeEffectChain(const Chain& effects, Value& target, Pool& pool) {
  if (!target.IsObject()) return KOSTYLE_ERROR_WRITE_CHAIN_TARGET;
  for (const auto& effect : effects) {
    if (effect.wholeId().empty()) continue;
    Value object(rapidjson::kObjectType);
    if (writeParameters(&effect, object, pool) != KOSTYLE_OK) continue;
    addMember(target, effect.wholeId(), std::move(object), pool);
  }
  return KOSTYLE_OK;
}

template <class EffectType>
std::uint32_t writeParameters(const EffectType* effect, Value& target, Pool& pool) {
  if (!effect) return KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT;
  if (!target.IsObject()) return KOSTYLE_ERROR_WRITE_PARAMETER_TARGET;
  Value object(rapidjson::kObjectType);
  for (const auto& parameter : effect->parameters()) {
    if (parameter.wholeName().empty()) continue;
    addMember(object, parameter.wholeName(), makeValue(parameter.value()), pool);
  }
  addUnlessEmpty(target, key::parameter, std::move(object), pool);
  return KOSTYLE_OK;
}

template std::uint32_t writeFilter(const Attributes<FrozenTexts>&, Value&, Pool&);
template std::uint32_t writeFilter(const Attributes<SortedTexts>&, Value&, Pool&);
template std::uint32_t writeEffectChain(const FrozenRange<AudioEffect>&, Value&, Pool&);
template std::uint32_t writeEffectChain(const FrozenRange<MidiEffect>&, Value&, Pool&);
template std::uint32_t writeEffectChain(const MutableChain&, Value&, Pool&);
template std::uint32_t writeParameters(const Effect*, Value&, Pool&);
template std::uint32_t writeParameters(const MutableEffect*, Value&, Pool&);

}  // namespace Tesk::KoStyle
