// What a document says and what a style says, as facts to compare: a style holds everything that is in
// a document when both say the same.
#pragma once

#include <cmath>
#include <set>
#include <string>

#include "format/reference_json.h"
#include "support/style_value.h"

namespace test::reference {

using Facts = std::multiset<std::string>;

inline constexpr const char* lost = "something that no style holds";

inline std::string fact(const std::string& what, const Text& text) { return what + '=' + utf8(text); }

/// Adds what the members of an object say: `take` answers whether it takes the first one with its key.
template <class Take>
void addMembers(Facts& facts, const Value& object, Take take) {
  std::set<Text> known;
  for (std::size_t i = 0; i < object.keys.size(); ++i) {
    const bool isFirst = known.insert(object.keys[i]).second;
    if (!isFirst || !take(utf8(object.keys[i]), object.elements[i])) facts.insert(lost);
  }
}

inline std::string parameterFact(const Text& name, const Value& value) {
  const std::string what = fact("parameter", name);
  switch (value.kind) {
    case Value::integer:
      return what + " int " + std::to_string(value.integerValue);
    case Value::string:
      return what + fact(" text", value.text);
    case Value::real: {
      const auto single = static_cast<float>(value.realValue);
      const bool kept = std::isfinite(single) && (single != 0 || value.realValue == 0);
      return kept ? what + " float" : lost;
    }
    default:
      return lost;
  }
}

inline void addEffect(Facts& facts, const std::string& chain, const Text& id, const Value& effect) {
  facts.insert(fact(chain, id));
  if (effect.kind != Value::object || id.empty()) facts.insert(lost);
  addMembers(facts, effect, [&](const std::string& key, const Value& value) {
    if (key != "parameter" || value.kind != Value::object) return false;
    for (std::size_t i = 0; i < value.keys.size(); ++i) {
      const Text name = value.keys[i] == text("Tarn") ? text("Tarn630") : value.keys[i];
      facts.insert(fact(chain, id) + ' ' + parameterFact(name, value.elements[i]));
    }
    return true;
  });
}

inline bool addChain(Facts& facts, const std::string& chain, const Value& effects) {
  for (std::size_t i = 0; i < effects.keys.size(); ++i)
    addEffect(facts, chain, effects.keys[i], effects.elements[i]);
  return effects.kind == Value::object;
}

inline bool addFilter(Facts& facts, const Value& filter) {
  addMembers(facts, filter, [&](const std::string& key, const Value& list) {
    bool known = key == "languages";
    for (const auto& each : textLists()) known = known || key == each.name;
    for (const Value& element : list.elements) {
      const bool isText = element.kind == Value::string && key != "languages";
      const bool isLanguage = element.kind == Value::integer && key == "languages";
      facts.insert(isText       ? fact(key, element.text)
                   : isLanguage ? key + ' ' + std::to_string(element.integerValue)
                                : lost);
    }
    return known && list.kind == Value::array;
  });
  return filter.kind == Value::object;
}

inline Facts factsOf(const Value& root) {
  Facts facts;
  addMembers(facts, root, [&](const std::string& key, const Value& value) {
    if (key == "filter") return addFilter(facts, value);
    if (key == "audioEffect" || key == "midiEffect") return addChain(facts, key, value);
    if (key == "vendor" && value.text.empty()) return value.kind == Value::string;
    facts.insert(fact(key, value.text));
    return (key == "id" || key == "name" || key == "vendor") && value.kind == Value::string;
  });
  return facts;
}

inline Facts factsOf(const StoredValue& style) {
  Facts facts{fact("id", style.id), fact("name", style.name)};
  if (!style.vendor.empty()) facts.insert(fact("vendor", style.vendor));
  for (const int language : style.languages) facts.insert("languages " + std::to_string(language));
  for (std::size_t list = 0; list < style.lists.size(); ++list)
    for (const Text& value : style.lists[list]) facts.insert(fact(textLists()[list].name, value));
  for (std::size_t chain = 0; chain < style.chains.size(); ++chain) {
    for (const EffectValue& effect : style.chains[chain]) {
      const std::string what = fact(chain == 0 ? "audioEffect" : "midiEffect", effect.id);
      facts.insert(what);
      for (const ParameterValue& parameter : effect.parameters) {
        const std::string name = what + ' ' + fact("parameter", parameter.name);
        facts.insert(
            parameter.type == KOSTYLE_PARAMETER_INT ? name + " int " + std::to_string(parameter.integer)
            : parameter.type == KOSTYLE_PARAMETER_FLOAT ? name + " float"
                                                        : name + fact(" text", parameter.string));
      }
    }
  }
  return facts;
}

}  // namespace test::reference
