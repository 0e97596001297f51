// The document of a style that a host sees, with nothing in it that the style does not hold.
#pragma once

#include <cmath>
#include <cstdio>
#include <string>

#include "support/style_value.h"

namespace test {

inline std::string written(const Text& text) {
  std::string result = "\"";
  for (const KoStyleChar unit : text) {
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(unit));
    result += escape;
  }
  return result + '"';
}

inline std::string written(const ParameterValue& value) {
  if (value.type == KOSTYLE_PARAMETER_INT) return std::to_string(value.integer);
  if (value.type == KOSTYLE_PARAMETER_STRING) return written(value.string);
  char number[64];
  std::snprintf(number, sizeof number, "%.17e", static_cast<double>(value.real));
  return std::isfinite(value.real) ? number : "0.5";
}

template <class Items, class Write>
std::string joined(const Items& items, Write write) {
  std::string result;
  for (const auto& item : items) result += (result.empty() ? "" : ",") + write(item);
  return result;
}

inline std::string written(const EffectValue& effect) {
  const auto member = [](const ParameterValue& value) {
    return written(value.name) + ':' + written(value);
  };
  return written(effect.id) + ":{\"parameter\":{" + joined(effect.parameters, member) + "}}";
}

inline std::string documentOf(const StoredValue& style) {
  std::string lists = "\"languages\":[" +
                      joined(style.languages, [](int language) { return std::to_string(language); }) +
                      ']';
  for (std::size_t i = 0; i < style.lists.size(); ++i) {
    lists += std::string(",\"") + textLists()[i].name + "\":[" +
             joined(style.lists[i], [](const Text& text) { return written(text); }) + ']';
  }
  const auto effect = [](const EffectValue& value) { return written(value); };
  return "{\"id\":" + written(style.id) + ",\"name\":" + written(style.name) +
         ",\"vendor\":" + written(style.vendor) + ",\"filter\":{" + lists + "},\"audioEffect\":{" +
         joined(style.chains[0], effect) + "},\"midiEffect\":{" + joined(style.chains[1], effect) +
         "}}";
}

}  // namespace test
