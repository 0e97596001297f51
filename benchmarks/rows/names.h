// Names for elements, in the order in which they come.
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "text.h"

namespace bench {

using Names = std::vector<Text>;

/// Numbers of equal length, so that their order as texts is their order as numbers.
inline Text orderedName(std::size_t i) {
  const std::string digits = std::to_string(i);
  return toText("name" + std::string(8 - digits.size(), '0') + digits);
}

inline Names orderedNames(std::size_t size) {
  Names names(size);
  for (std::size_t i = 0; i < size; ++i) names[i] = orderedName(i);
  return names;
}

inline Names reversedNames(std::size_t size) {
  Names names = orderedNames(size);
  std::reverse(names.begin(), names.end());
  return names;
}

inline Names shuffledNames(std::size_t size) {
  Names names = orderedNames(size);
  std::shuffle(names.begin(), names.end(), std::mt19937_64(size));
  return names;
}

}  // namespace bench
