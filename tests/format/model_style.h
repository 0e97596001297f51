// A second, simple reader of style documents, to compare the library's with.
#pragma once

#include <algorithm>
#include <set>

#include "format/model_json.h"
#include "format/style_snapshot.h"

namespace test::model {

/// What should become of a file. After error 17 nothing more is said of it.
struct Expectation {
  std::uint32_t error = 0;
  std::string jsonPath;
  StyleSnapshot style;
};

inline std::vector<ParameterSnapshot> parametersOf(const Value& source) {
  std::vector<ParameterSnapshot> parameters;
  for (std::size_t i = 0; i < source.keys.size(); ++i) {
    const Text name = source.keys[i] == text("Tarn") ? text("Tarn630") : source.keys[i];
    const Value& value = source.elements[i];
    const bool known = std::any_of(parameters.begin(), parameters.end(),
                                   [&](const auto& parameter) { return parameter.name == name; });
    if (name.empty() || known) continue;
    if (value.kind == Value::integer)
      parameters.push_back(ParameterSnapshot::ofInt(name, value.integerValue));
    if (value.kind == Value::real)
      parameters.push_back(
          ParameterSnapshot::ofFloat(name, static_cast<float>(value.realValue), value.exact));
    if (value.kind == Value::string)
      parameters.push_back(ParameterSnapshot::ofString(name, value.text));
  }
  std::sort(parameters.begin(), parameters.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
  return parameters;
}

inline std::vector<EffectSnapshot> chainOf(const Value* source) {
  std::vector<EffectSnapshot> chain;
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
      const bool fits = key == "singerIDs" ? element.text.size() == 16 : !element.text.empty();
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
      const bool fits = element.integerValue >= 0 && element.integerValue <= 4;
      if (element.kind == Value::integer && fits) languages.insert(element.integerValue);
    }
  }
  return {languages.begin(), languages.end()};
}

inline Expectation expectationOf(std::string_view bytes) {
  const std::optional<Value> root = Parser(charactersOf(bytes)).parse();
  if (!root) return {17, "", {}};
  if (root->kind != Value::object) return {20, "/", {}};
  StyleSnapshot style;
  for (const auto& [key, text] : {std::pair("id", &style.id), std::pair("name", &style.name)}) {
    const Value* const member = root->member(key);
    const std::string path = std::string("/") + key;
    if (!member) return {19, path, {}};
    if (member->kind != Value::string) return {20, path, {}};
    if (member->text.empty()) return {21, path, {}};
    *text = member->text;
  }
  if (style.name.size() > 100) style.name.clear();
  style.audio = chainOf(root->member("audioEffect"));
  style.midi = chainOf(root->member("midiEffect"));
  if (style.audio.empty() && style.midi.empty()) return {23, "/", {}};
  if (const Value* vendor = root->member("vendor")) style.vendor = vendor->text.c_str();
  const Value* const filter = root->member("filter");
  style.languages = languagesOf(filter);
  style.singerGroups = textsOf(filter, "singerGroups");
  style.singerIDs = textsOf(filter, "singerIDs");
  style.genres = textsOf(filter, "genres");
  style.subGenres = textsOf(filter, "subGenres");
  style.colors = textsOf(filter, "colors");
  return {0, "", style};
}

}  // namespace test::model
