#include "format/document_reader.h"

#include "containers/text_order.h"
#include "format/style_keys.h"

namespace Tesk::KoStyle {

using json::Value;
using json::view;

template <class Observer>
const Value* DocumentReader<Observer>::find(const Value& object, TextView key) {
  const Value* const found = json::findMember(object, key);
  observer_.lookedFor(object, key, found);
  return found;
}

template <class Observer>
void DocumentReader<Observer>::refuse(StyleReadOutcome& outcome, std::uint32_t error,
                                      const Value* value, TextView key) {
  Text path = Text(KOSTYLE_TEXT("/")).append(key);
  observer_.refused(error, path, value);
  if (Observer::wantsAll && outcome.error != KOSTYLE_OK) return;
  outcome.error = error;
  outcome.jsonPath = std::move(path);
}

// A member that must be there and be a string that is not empty; null when it is refused.
template <class Observer>
const Value* DocumentReader<Observer>::readRequiredText(const Value& root, TextView key,
                                                        StyleReadOutcome& outcome) {
  const Value* const member = find(root, key);
  if (!member) {
    refuse(outcome, KOSTYLE_ERROR_MEMBER_MISSING, member, key);
  } else if (!member->IsString()) {
    refuse(outcome, KOSTYLE_ERROR_WRONG_TYPE, member, key);
  } else if (member->GetStringLength() == 0) {
    refuse(outcome, KOSTYLE_ERROR_EMPTY_STRING, member, key);
  } else {
    return member;
  }
  return nullptr;
}

template <class Observer>
bool DocumentReader<Observer>::read(const Value& root, TextView path, Style& style,
                                    StyleReadOutcome& outcome) {
  if (!root.IsObject()) {
    refuse(outcome, KOSTYLE_ERROR_WRONG_TYPE, &root);
    return false;
  }
  const Value* const id = readRequiredText(root, key::id, outcome);
  if (!id && !Observer::wantsAll) return false;
  const Value* const name = readRequiredText(root, key::name, outcome);
  if (!name && !Observer::wantsAll) return false;
  builder_.clear();
  observer_.started();
  if (id) builder_.setId(view(*id));
  builder_.setPath(path);
  if (name && !builder_.setName(view(*name))) observer_.leftOut(*name, LeftOut::unfit);
  readChain(root, EffectKind::audio);
  readChain(root, EffectKind::midi);
  if (!builder_.hasEffects()) {
    refuse(outcome, KOSTYLE_ERROR_NO_EFFECT, &root);
    if (!Observer::wantsAll) return false;
  }
  readVendor(root);
  readFilter(root);
  style.assign(builder_.freeze(style));
  observer_.froze(builder_);
  return !Observer::wantsAll || outcome.error == KOSTYLE_OK;
}

template <class Observer>
void DocumentReader<Observer>::readVendor(const Value& root) {
  const Value* const vendor = find(root, key::vendor);
  if (!vendor) return;
  if (!vendor->IsString()) return observer_.leftOut(*vendor, LeftOut::wrongType);
  builder_.setVendor(view(*vendor));
}

// A member is an effect when its key is not empty and its value an object with parameters of any type.
template <class Observer>
void DocumentReader<Observer>::readChain(const Value& root, EffectKind kind) {
  const Value* const chain = find(root, key::chain(kind));
  if (!chain) return;
  if (!chain->IsObject()) return observer_.leftOut(*chain, LeftOut::wrongType);
  for (auto member = chain->MemberBegin(); member != chain->MemberEnd(); ++member)
    readEffect(kind, view(member->name), member->value);
}

template <class Observer>
void DocumentReader<Observer>::readEffect(EffectKind kind, TextView id, const Value& effect) {
  if (id.empty()) return observer_.leftOut(effect, LeftOut::emptyKey);
  if (!effect.IsObject()) return observer_.leftOut(effect, LeftOut::wrongType);
  const Value* const parameters = find(effect, key::parameter);
  if (!parameters) return observer_.leftOut(effect, LeftOut::noParameters);
  if (!builder_.addEffect(kind, id)) return observer_.leftOut(effect, LeftOut::repeated);
  observer_.addedEffect(effect);
  if (!parameters->IsObject()) return observer_.leftOut(*parameters, LeftOut::wrongType);
  readParameters(*parameters);
}

template <class Observer>
void DocumentReader<Observer>::readParameters(const Value& source) {
  TextView last;  // a file may repeat a name without end: only the first is worth remembering
  for (auto member = source.MemberBegin(); member != source.MemberEnd(); ++member) {
    const TextView name = key::parameterName(view(member->name));
    const Value& value = member->value;
    if (name.empty()) {
      observer_.leftOut(value, LeftOut::emptyKey);
    } else if (equalTexts(name, last)) {
      observer_.leftOut(value, LeftOut::repeated);
    } else if (!addParameter(name, value)) {
      observer_.leftOut(value, LeftOut::wrongType);
    } else {
      observer_.addedParameter(value);
      last = name;
    }
  }
}

// The value's type decides the parameter's. False for a value that no type takes.
template <class Observer>
bool DocumentReader<Observer>::addParameter(TextView name, const Value& value) {
  if (value.IsInt()) {
    builder_.addParameter(name, ParameterValue::of(std::int32_t{value.GetInt()}));
  } else if (value.IsDouble()) {
    builder_.addParameter(name, ParameterValue::of(static_cast<float>(value.GetDouble())));
  } else if (value.IsString()) {
    builder_.addParameter(name, ParameterValue::of(view(value)));
  } else {
    return false;
  }
  return true;
}

template <class Observer>
void DocumentReader<Observer>::readFilter(const Value& root) {
  const Value* const filter = find(root, key::filter);
  if (!filter) return;
  if (!filter->IsObject()) return observer_.leftOut(*filter, LeftOut::wrongType);
  readArray(*filter, key::languages, [this](const Value& element) { addLanguage(element); });
  for (const Attribute attribute : textAttributes) {
    readArray(*filter, key::list(attribute),
              [this, attribute](const Value& element) { addText(attribute, element); });
  }
}

template <class Observer>
template <class Add>
void DocumentReader<Observer>::readArray(const Value& filter, TextView key, Add add) {
  const Value* const array = find(filter, key);
  if (!array) return;
  if (!array->IsArray()) return observer_.leftOut(*array, LeftOut::wrongType);
  for (const Value& element : array->GetArray()) add(element);
}

template <class Observer>
void DocumentReader<Observer>::addLanguage(const Value& element) {
  if (!element.IsInt()) return observer_.leftOut(element, LeftOut::wrongType);
  switch (builder_.addLanguage(element.GetInt())) {
    case StyleBuilder::Adding::added:
      return;
    case StyleBuilder::Adding::unfit:
      return observer_.leftOut(element, LeftOut::unfit);
    case StyleBuilder::Adding::repeated:
      return observer_.leftOut(element, LeftOut::repeated);
  }
}

template <class Observer>
void DocumentReader<Observer>::addText(Attribute attribute, const Value& element) {
  if (!element.IsString()) return observer_.leftOut(element, LeftOut::wrongType);
  switch (builder_.addText(attribute, view(element))) {
    case StyleBuilder::Adding::added:
      return observer_.addedText(attribute, element);
    case StyleBuilder::Adding::unfit:
      return observer_.leftOut(element, LeftOut::unfit);
    case StyleBuilder::Adding::repeated:
      return observer_.leftOut(element, LeftOut::repeated);
  }
}

template class DocumentReader<Unobserved>;
template class DocumentReader<Observed>;

}  // namespace Tesk::KoStyle
