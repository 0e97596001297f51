// What differs between styles, in the forms that people and programs read.
#pragma once

#include <string>
#include <vector>

#include "editing/style_differences.h"

namespace tool {

/// Two styles that differ, or one that is only on one side. Paths are as they are shown.
struct StylePair {
  std::string before;  // empty when it is not there
  std::string after;
  Text id;
  Text name;
  std::vector<Difference> differences;
};

/// Lines with - and +, in colours if wanted.
std::string differencesText(const std::vector<StylePair>& pairs, bool colors);

std::string differencesJson(const std::vector<StylePair>& pairs);

/// One difference as a part of a sentence.
std::string differenceWords(const Difference& difference);

}  // namespace tool
