#include "format/style_reader.h"

#include "containers/text_order.h"
#include "format/style_keys.h"

namespace Tesk::KoStyle {
namespace {

using json::findMember;
using json::Value;
using json::view;

StyleSequence::NodeHandle makeStyle(StyleKind kind, StyleOwner* owner, StyleSequence& styles) {
  switch (kind) {
    case StyleKind::system:
      return styles.makeNode<SystemStyle>(owner);
    case StyleKind::user:
      return styles.makeNode<UserStyle>(owner);
    case StyleKind::mutableStyle:
      break;
  }
  return {};
}

bool refuse(StyleReadOutcome& outcome, std::uint32_t error, TextView parent, TextView key = {}) {
  outcome.error = error;
  outcome.jsonPath = Text(parent).append(key);
  return false;
}

constexpr TextView rootPath = KOSTYLE_TEXT("/");

// Takes a member that must be there and be a string that is not empty.
bool readRequiredText(const Value& root, TextView key, TextView& text, StyleReadOutcome& outcome) {
  const Value* const member = findMember(root, key);
  if (!member) return refuse(outcome, KOSTYLE_ERROR_MEMBER_MISSING, rootPath, key);
  if (!member->IsString()) return refuse(outcome, KOSTYLE_ERROR_WRONG_TYPE, rootPath, key);
  text = view(*member);
  return !text.empty() || refuse(outcome, KOSTYLE_ERROR_EMPTY_STRING, rootPath, key);
}

// One name is read as another.
TextView currentName(TextView parameterKey) {
  return parameterKey == KOSTYLE_TEXT("Tarn") ? KOSTYLE_TEXT("Tarn630") : parameterKey;
}

template <class Add>
void readArray(const Value& filter, TextView key, Add add) {
  const Value* const array = findMember(filter, key);
  if (!array || !array->IsArray()) return;
  for (const Value& element : array->GetArray()) add(element);
}

}  // namespace

StyleSequence::NodeHandle StyleReader::read(StyleKind kind, StyleOwner* owner, StyleSequence& styles,
                                            TextView path, std::FILE* file, StyleReadOutcome& outcome) {
  if (const rapidjson::ParseResult result = parser_.parse(file); result.IsError()) {
    outcome.error = KOSTYLE_ERROR_JSON_SYNTAX;
    outcome.parseError = static_cast<std::uint32_t>(result.Code());
    outcome.parseErrorOffset = result.Offset();
    return {};
  }
  auto style = makeStyle(kind, owner, styles);
  if (!style) {
    outcome.error = KOSTYLE_ERROR_NO_STYLE_FOR_KIND;
    return {};
  }
  if (!readDocument(*style, path, outcome)) style = {};
  return style;
}

bool StyleReader::readDocument(Style& style, TextView path, StyleReadOutcome& outcome) {
  const Value& root = parser_.document();
  if (!root.IsObject()) return refuse(outcome, KOSTYLE_ERROR_WRONG_TYPE, rootPath);
  TextView id;
  TextView name;
  if (!readRequiredText(root, key::id, id, outcome)) return false;
  if (!readRequiredText(root, key::name, name, outcome)) return false;
  builder_.clear();
  builder_.setId(id);
  builder_.setPath(path);
  builder_.setName(name);
  readChain(EffectKind::audio);
  readChain(EffectKind::midi);
  if (!builder_.hasEffects()) return refuse(outcome, KOSTYLE_ERROR_NO_EFFECT, rootPath);
  const Value* const vendor = findMember(root, key::vendor);
  if (vendor && vendor->IsString()) builder_.setVendor(view(*vendor));
  readFilter();
  style.assign(builder_.freeze(style));
  return true;
}

// A member is an effect when its key is not empty and its value an object with parameters of any type.
void StyleReader::readChain(EffectKind kind) {
  const Value* const chain = findMember(parser_.document(), key::chain(kind));
  if (!chain || !chain->IsObject()) return;
  for (auto member = chain->MemberBegin(); member != chain->MemberEnd(); ++member) {
    const TextView id = view(member->name);
    if (id.empty() || !member->value.IsObject()) continue;
    const Value* const parameters = findMember(member->value, key::parameter);
    if (!parameters) continue;
    if (builder_.addEffect(kind, id)) readParameters(*parameters);
  }
}

void StyleReader::readParameters(const Value& source) {
  if (!source.IsObject()) return;
  TextView last;  // a file may repeat a name without end: only the first is worth remembering
  for (auto member = source.MemberBegin(); member != source.MemberEnd(); ++member) {
    const TextView name = currentName(view(member->name));
    if (name.empty() || equalTexts(name, last)) continue;
    // The value's type decides the parameter's. A value that no type takes is left out.
    const Value& value = member->value;
    if (value.IsInt()) {
      builder_.addParameter(name, ParameterValue::of(std::int32_t{value.GetInt()}));
    } else if (value.IsDouble()) {
      builder_.addParameter(name, ParameterValue::of(static_cast<float>(value.GetDouble())));
    } else if (value.IsString()) {
      builder_.addParameter(name, ParameterValue::of(view(value)));
    } else {
      continue;
    }
    last = name;
  }
}

void StyleReader::readFilter() {
  const Value* const filter = findMember(parser_.document(), key::filter);
  if (!filter || !filter->IsObject()) return;
  readArray(*filter, key::languages, [this](const Value& element) {
    if (element.IsInt()) builder_.addLanguage(element.GetInt());
  });
  for (const Attribute attribute : textAttributes) {
    readArray(*filter, key::list(attribute), [&](const Value& element) {
      if (element.IsString()) builder_.addText(attribute, view(element));
    });
  }
}

}  // namespace Tesk::KoStyle
