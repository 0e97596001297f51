// A second, simple reader of style documents, to compare the library's with.
#pragma once

#include <algorithm>
#include <set>

#include "format/reference_json.h"
#include "support/style_value.h"

namespace test::reference {

/// What should become of a file, as a host sees it. After a syntax error nothing more is said of it.
struct Expectation {
  int error = KOSTYLE_OK;
  std::string jsonPath;
  StoredValue style;
};

inline std::vector<ParameterValue> parametersOf(const Value& source) {
  std::vector<ParameterValue> parameters;
  for (std::size_t i = 0; i < source.keys.size(); ++i) {
    const Text name = source.keys[i] == text("Tarn") ? text("Tarn630") : source.keys[i];
    const Value& value = source.elements[i];
    const bool known = std::any_of(parameters.begin(), parameters.end(),
                                   [&](const auto& parameter) { return parameter.name == name; });
    if (name.empty() || known) continue;
    if (value.kind == Value::integer)
      parameters.push_back(ParameterValue::ofInt(name, value.integerValue));
    if (value.kind == Value::real)
      parameters.push_back(
          ParameterValue::ofFloat(name, static_cast<float>(value.realValue), value.exact));
    if (value.kind == Value::string) parameters.push_back(ParameterValue::ofString(name, value.text));
  }
  std::sort(parameters.begin(), parameters.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
  return parameters;
}

inline std::vector<EffectValue> chainOf(const Value* source) {
  std::vector<EffectValue> chain;
  if (!source || source->kind != Value::object) return chain;
  for (std::size_t i = 0; i < source->keys.size(); ++i) {
    const Text& id = source->keys[i];
    const Value* parameters = source->elements[i].member("parameter");
    const bool known =
        std::any_of(chain.begin(), chain.end(), [&](const auto& effect) { return effect.id == id; });
    if (!id.empty() && !known && parameters) chain.push_back({id, parametersOf(*parameters)});
  }
  return chain;
}

inline std::vector<Text> textsOf(const Value* filter, std::string_view key) {
  const Value* const array = filter ? filter->member(key) : nullptr;
  std::set<Text> texts;
  if (array && array->kind == Value::array) {
    for (const Value& element : array->elements) {
      const bool fits =
          key == "singerIDs" ? element.text.size() == KOSTYLE_SINGER_ID_LENGTH : !element.text.empty();
      if (element.kind == Value::string && fits) texts.insert(element.text);
    }
  }
  return {texts.begin(), texts.end()};
}

inline std::vector<int> languagesOf(const Value* filter) {
  const Value* const array = filter ? filter->member("languages") : nullptr;
  std::set<int> languages;
  if (array && array->kind == Value::array) {
    for (const Value& element : array->elements) {
      const bool fits =
          element.integerValue >= KOSTYLE_MIN_LANGUAGE && element.integerValue <= KOSTYLE_MAX_LANGUAGE;
      if (element.kind == Value::integer && fits) languages.insert(element.integerValue);
    }
  }
  return {languages.begin(), languages.end()};
}

/// A style whose texts end at their first U+0000, as they do for a host.
inline StoredValue asSeen(StoredValue style) {
  const auto cut = [](Text& text) { text.resize(std::min(text.size(), text.find(KoStyleChar{0}))); };
  for (Text* text : {&style.id, &style.name, &style.vendor}) cut(*text);
  for (auto& list : style.lists) std::for_each(list.begin(), list.end(), cut);
  for (auto& chain : style.chains) {
    for (EffectValue& effect : chain) {
      cut(effect.id);
      for (ParameterValue& parameter : effect.parameters) cut(parameter.name), cut(parameter.string);
    }
  }
  return style;
}

inline Expectation expectationOf(std::string_view bytes) {
  const std::optional<Value> root = Parser(charactersOf(bytes)).parse();
  if (!root) return {KOSTYLE_ERROR_JSON_SYNTAX, "", {}};
  if (root->kind != Value::object) return {KOSTYLE_ERROR_WRONG_TYPE, "/", {}};
  StoredValue style;
  for (const auto& [key, text] : {std::pair("id", &style.id), std::pair("name", &style.name)}) {
    const Value* const member = root->member(key);
    const std::string path = std::string("/") + key;
    if (!member) return {KOSTYLE_ERROR_MEMBER_MISSING, path, {}};
    if (member->kind != Value::string) return {KOSTYLE_ERROR_WRONG_TYPE, path, {}};
    if (member->text.empty()) return {KOSTYLE_ERROR_EMPTY_STRING, path, {}};
    *text = member->text;
  }
  if (style.name.size() > KOSTYLE_MAX_NAME_LENGTH) style.name.clear();
  style.chains = {chainOf(root->member("audioEffect")), chainOf(root->member("midiEffect"))};
  if (style.chains[0].empty() && style.chains[1].empty()) return {KOSTYLE_ERROR_NO_EFFECT, "/", {}};
  if (const Value* vendor = root->member("vendor")) style.vendor = vendor->text;
  const Value* const filter = root->member("filter");
  style.languages = languagesOf(filter);
  for (std::size_t list = 0; list < style.lists.size(); ++list)
    style.lists[list] = textsOf(filter, textLists()[list].name);
  return {KOSTYLE_OK, "", asSeen(std::move(style))};
}

}  // namespace test::reference
