#include "format/style_reader.h"

#include <utility>

#include "format/style_document.h"
#include "format/style_parser.h"
#include "model/effect.h"
#include "model/parameter.h"
#include "model/system_style.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {
namespace {

using json::findMember;
using json::Value;
using json::view;

std::unique_ptr<Style> makeStyle(StyleKind kind, StyleManager* manager) {
  switch (kind) {
    case StyleKind::system:
      return std::make_unique<SystemStyle>(manager);
    case StyleKind::user:
      return std::make_unique<UserStyle>(manager);
    case StyleKind::editable:
      break;
  }
  return nullptr;
}

bool refuse(StyleReadOutcome& outcome, std::uint32_t error, TextView jsonPath) {
  outcome.error = error;
  outcome.jsonPath = jsonPath;
  return false;
}

// Takes a member that must be there and be a string that is not empty.
bool readRequiredText(const Value& root, TextView key, Text& text, StyleReadOutcome& outcome) {
  const Text path = Text(KOSTYLE_TEXT("/")).append(key);
  const Value* const member = findMember(root, key);
  if (!member) return refuse(outcome, KOSTYLE_ERROR_MEMBER_MISSING, path);
  if (!member->IsString()) return refuse(outcome, KOSTYLE_ERROR_WRONG_TYPE, path);
  text = view(*member);
  return !text.empty() || refuse(outcome, KOSTYLE_ERROR_EMPTY_STRING, path);
}

// One name is read as another.
TextView currentName(TextView parameterKey) {
  return parameterKey == KOSTYLE_TEXT("Tarn") ? KOSTYLE_TEXT("Tarn630") : parameterKey;
}

// The value's type decides the parameter's; false when no type takes the value.
bool readValue(const Value& value, Parameter& parameter) {
  if (value.IsInt()) {
    parameter.assignInt(value.GetInt());
  } else if (value.IsDouble()) {
    parameter.assignFloat(static_cast<float>(value.GetDouble()));
  } else if (value.IsString()) {
    parameter.assignString(Text(view(value)));
  } else {
    return false;
  }
  return true;
}

void readParameters(const Value& source, EffectBase& effect) {
  if (!source.IsObject()) return;
  for (auto member = source.MemberBegin(); member != source.MemberEnd(); ++member) {
    const TextView name = currentName(view(member->name));
    if (name.empty() || effect.parameters().containsName(name)) continue;
    auto parameter = std::make_unique<Parameter>(&effect);
    if (!readValue(member->value, *parameter)) continue;
    parameter->assignName(Text(name));
    effect.parameters().append(std::move(parameter));
  }
}

template <class EffectType>
void readChain(const Value& root, TextView key, Style& style) {
  const Value* const chain = findMember(root, key);
  if (!chain || !chain->IsObject()) return;
  for (auto member = chain->MemberBegin(); member != chain->MemberEnd(); ++member) {
    const TextView id = view(member->name);
    if (id.empty() || !member->value.IsObject()) continue;
    auto effect = std::make_unique<EffectType>(&style);
    if (style.chain(effect->kind()).findKey(id)) continue;
    const Value* const parameters = findMember(member->value, key::parameter);
    if (!parameters) continue;
    effect->assignId(Text(id));
    readParameters(*parameters, *effect);
    style.appendEffect(std::move(effect));
  }
}

template <class Add>
void readArray(const Value& filter, TextView key, Add add) {
  const Value* const array = findMember(filter, key);
  if (!array || !array->IsArray()) return;
  for (const Value& element : array->GetArray()) add(element);
}

void readFilter(const Value& root, StyleAttributes& attributes) {
  const Value* const filter = findMember(root, key::filter);
  if (!filter || !filter->IsObject()) return;
  readArray(*filter, key::languages, [&](const Value& element) {
    if (element.IsInt()) attributes.addLanguage(element.GetInt());
  });
  const auto readTexts = [&](TextView key, bool (StyleAttributes::*add)(TextView)) {
    readArray(*filter, key, [&](const Value& element) {
      if (element.IsString()) (attributes.*add)(view(element));
    });
  };
  readTexts(key::singerGroups, &StyleAttributes::addSingerGroup);
  readTexts(key::singerIDs, &StyleAttributes::addSingerID);
  readTexts(key::genres, &StyleAttributes::addGenre);
  readTexts(key::subGenres, &StyleAttributes::addSubGenre);
  readTexts(key::colors, &StyleAttributes::addColor);
}

bool readDocument(const Value& root, Style& style, StyleReadOutcome& outcome) {
  if (!root.IsObject()) return refuse(outcome, KOSTYLE_ERROR_WRONG_TYPE, KOSTYLE_TEXT("/"));
  Text id;
  Text name;
  if (!readRequiredText(root, key::id, id, outcome)) return false;
  if (!readRequiredText(root, key::name, name, outcome)) return false;
  style.assignId(std::move(id));
  if (isStyleName(name)) style.assignName(std::move(name));
  readChain<AudioEffect>(root, key::audioEffect, style);
  readChain<MidiEffect>(root, key::midiEffect, style);
  if (style.numAudioEffect() == 0 && style.numMidiEffect() == 0) {
    return refuse(outcome, KOSTYLE_ERROR_NO_EFFECT, KOSTYLE_TEXT("/"));
  }
  const Value* const vendor = findMember(root, key::vendor);
  if (vendor && vendor->IsString()) style.assignVendor(Text(view(*vendor)));
  readFilter(root, style.attributes());
  return true;
}

}  // namespace

std::unique_ptr<Style> readStyleFile(StyleKind kind, StyleManager* manager, std::FILE* file,
                                     StyleReadOutcome& outcome) {
  json::Document document;
  if (const rapidjson::ParseResult result = parseStyleDocument(file, document); result.IsError()) {
    outcome.error = KOSTYLE_ERROR_JSON_SYNTAX;
    outcome.parseError = static_cast<std::uint32_t>(result.Code());
    outcome.parseErrorOffset = result.Offset();
    return nullptr;
  }
  std::unique_ptr<Style> style = makeStyle(kind, manager);
  if (!style) {
    outcome.error = KOSTYLE_ERROR_NO_STYLE_FOR_KIND;
    return nullptr;
  }
  return readDocument(document, *style, outcome) ? std::move(style) : nullptr;
}

}  // namespace Tesk::KoStyle
