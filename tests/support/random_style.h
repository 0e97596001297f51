// Random styles, of texts from every plane, and the way to build them through the exported functions.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "support/kostyle.h"
#include "support/random.h"
#include "support/style_files.h"
#include "support/style_value.h"

namespace test {

inline std::uint32_t randomCodePoint(Random& random) {
  const auto between = [&](std::size_t first, std::size_t last) {
    return static_cast<std::uint32_t>(random.between(first, last));
  };
  switch (random.below(6)) {
    case 0:
      return between(0x01, 0x1F);
    case 1:
      return static_cast<unsigned char>("\"\\/\x7F"[random.below(4)]);
    case 2:
      return between(0x80, 0xD7FF);
    case 3:
      return between(0xE000, 0xFFFF);
    case 4: {
      const std::uint32_t plane = between(1, 16);
      return plane << 16 | between(0, 0xFFFF);
    }
    default:
      return between(' ', '~');
  }
}

/// A text of a number of units in a range, without lone surrogates.
inline Text randomText(Random& random, std::size_t shortest, std::size_t longest) {
  const std::size_t length = random.between(shortest, longest);
  Text result;
  while (result.size() < length) {
    std::uint32_t codePoint = randomCodePoint(random);
    if (codePoint >= 0x10000 && result.size() + 1 < length) {
      codePoint -= 0x10000;
      result += static_cast<KoStyleChar>(0xD800 + (codePoint >> 10));
      result += static_cast<KoStyleChar>(0xDC00 + (codePoint & 0x3FF));
    } else {
      result += static_cast<KoStyleChar>(codePoint >= 0x10000 ? 'x' : codePoint);
    }
  }
  return result;
}

inline float randomFloat(Random& random) {
  const auto bits = static_cast<std::uint32_t>(random.bits());
  float value;
  std::memcpy(&value, &bits, sizeof value);
  return std::isfinite(value) ? value : 0.5f;
}

inline ParameterValue randomParameter(Random& random, Text name) {
  switch (random.below(3)) {
    case 0:
      return ParameterValue::ofInt(std::move(name), static_cast<std::int32_t>(random.bits()));
    case 1:
      return ParameterValue::ofFloat(std::move(name), randomFloat(random));
    default:
      return ParameterValue::ofString(std::move(name), randomText(random, 0, 40));
  }
}

/// Up to `most` different texts in ascending order.
inline std::vector<Text> randomTexts(Random& random, std::size_t most, std::size_t shortest,
                                     std::size_t longest) {
  std::vector<Text> texts;
  for (std::size_t i = random.below(most + 1); i > 0; --i)
    texts.push_back(randomText(random, shortest, longest));
  std::sort(texts.begin(), texts.end());
  texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
  return texts;
}

inline StyleValue randomStyle(Random& random) {
  StyleValue style;
  style.name = randomText(random, 1, random.oneIn(10) ? 100 : 20);
  for (int language = KOSTYLE_MIN_LANGUAGE; language <= KOSTYLE_MAX_LANGUAGE; ++language) {
    if (random.oneIn(3)) style.languages.push_back(language);
  }
  for (std::size_t list = 0; list < style.lists.size(); ++list) {
    const bool exact = list == singerIDs;
    style.lists[list] = randomTexts(random, 3, exact ? 16 : 1, exact ? 16 : 30);
  }
  for (auto& chain : style.chains) {
    for (Text& id : randomTexts(random, 3, 1, 12)) {
      EffectValue effect{std::move(id), {}};
      for (Text& name : randomTexts(random, 4, 1, 12)) {
        if (random.oneIn(50)) name = KOSTYLE_TEXT("Tarn630");
        effect.parameters.push_back(randomParameter(random, std::move(name)));
      }
      effect.parameters = firstOfEachName(effect.parameters);
      chain.insert(chain.begin() + static_cast<std::ptrdiff_t>(random.below(chain.size() + 1)),
                   std::move(effect));
    }
  }
  if (style.chains[0].empty() && style.chains[1].empty())
    style.chains[random.below(2)] = {{KOSTYLE_TEXT("E"), {}}};
  return style;
}

inline void setValue(KoStyleParameter* parameter, const ParameterValue& value) {
  if (value.type == KOSTYLE_PARAMETER_INT) MutableParameter_setValueInt(parameter, value.integer);
  if (value.type == KOSTYLE_PARAMETER_FLOAT) MutableParameter_setValueFloat(parameter, value.real);
  if (value.type == KOSTYLE_PARAMETER_STRING)
    MutableParameter_setValueString(parameter, value.string.c_str());
}

template <class Value>
std::vector<Value> shuffled(Random& random, std::vector<Value> values) {
  for (std::size_t i = values.size(); i > 1; --i) std::swap(values[i - 1], values[random.below(i)]);
  return values;
}

/// Fills a mutable style, in random order where the library keeps its own.
inline void fill(KoStyleStyle* style, const StyleValue& value, Random& random) {
  MutableStyle_setName(style, value.name.c_str());
  for (const int language : shuffled(random, value.languages))
    MutableStyle_addLanguage(style, language);
  for (std::size_t list = 0; list < value.lists.size(); ++list) {
    for (const Text& each : shuffled(random, value.lists[list]))
      textLists()[list].add(style, each.c_str());
  }
  for (std::size_t kind = 0; kind < value.chains.size(); ++kind) {
    for (const EffectValue& effect : value.chains[kind]) {
      KoStyleEffect* const made = chains()[kind].insert(style, SIZE_MAX, effect.id.c_str());
      for (const ParameterValue& each : shuffled(random, effect.parameters))
        setValue(MutableEffect_addParameter(made, each.name.c_str()), each);
    }
  }
}

}  // namespace test
