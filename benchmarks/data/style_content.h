// The content of a style as plain values: what files are generated from and new styles are filled with.
#pragma once

#include <cstddef>
#include <random>
#include <variant>
#include <vector>

#include "text.h"

namespace bench {

struct ParameterContent {
  Text name;
  std::variant<int, float, Text> value;
};

struct EffectContent {
  Text id;
  std::vector<ParameterContent> parameters;
};

struct StyleContent {
  Text id;
  Text name;
  Text vendor;
  std::vector<int> languages;
  std::vector<Text> singerGroups;
  std::vector<Text> singerIDs;
  std::vector<Text> genres;
  std::vector<Text> subGenres;
  std::vector<Text> colors;
  std::vector<EffectContent> audioEffects;
  std::vector<EffectContent> midiEffects;
};

struct Shape {
  std::size_t audioEffects;
  std::size_t audioParameters;  // of each effect
  std::size_t midiEffects;
  std::size_t midiParameters;
  std::size_t listValues;  // of each attribute list
};

inline constexpr Shape typicalShape{6, 14, 6, 6, 4};
inline constexpr Shape smallShape{1, 8, 1, 6, 1};

using Random = std::mt19937_64;

/// A style made of random words and numbers. `number` makes its identifier unique.
StyleContent makeContent(Random& random, std::size_t number, const Shape& shape);

}  // namespace bench
