// What saving makes of a style in memory, and what reading makes of its file.
#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "support/kostyle.h"
#include "support/style_value.h"

namespace test {

/// The first of each name, in the order of names.
inline std::vector<ParameterValue> firstOfEachName(const std::vector<ParameterValue>& parameters) {
  std::vector<ParameterValue> result;
  for (const ParameterValue& each : parameters) {
    const auto hasName = [&](const ParameterValue& taken) { return taken.name == each.name; };
    if (std::none_of(result.begin(), result.end(), hasName)) result.push_back(each);
  }
  std::sort(result.begin(), result.end(),
            [](const ParameterValue& a, const ParameterValue& b) { return a.name < b.name; });
  return result;
}

/// The user style that a mutable style becomes.
inline StyleValue asStored(StyleValue style) {
  for (auto& chain : style.chains) {
    for (EffectValue& effect : chain) effect.parameters = firstOfEachName(effect.parameters);
  }
  return style;
}

/// The style that is read from the file of a style; none when no effect of it can be read.
inline std::optional<StyleValue> asReread(StyleValue style) {
  for (auto& chain : style.chains) {
    const auto isBare = [](const EffectValue& effect) { return effect.parameters.empty(); };
    chain.erase(std::remove_if(chain.begin(), chain.end(), isBare), chain.end());
    for (EffectValue& effect : chain) {
      for (ParameterValue& parameter : effect.parameters) {
        if (parameter.name == KOSTYLE_TEXT("Tarn")) parameter.name = KOSTYLE_TEXT("Tarn630");
      }
    }
  }
  if (style.chains[0].empty() && style.chains[1].empty()) return std::nullopt;
  return asStored(std::move(style));
}

}  // namespace test
