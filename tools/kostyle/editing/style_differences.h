// What differs in meaning between two styles.
#pragma once

#include <optional>
#include <vector>

#include "editing/style_content.h"

namespace tool {

struct Difference {
  enum class What { id, name, vendor, language, text, effect, parameter };

  What what;
  std::size_t index = 0;  // of a text in textLists(), of effect and parameter in chains()
  Text effect = {};
  Text parameter = {};
  std::optional<Value> before = {};  // none when it is not there; an effect's is its place, from 1
  std::optional<Value> after = {};
};

/// The fewest that lead from one to the other. The order of lists and of parameters means nothing; that
/// of effects does, and one that only moved differs in its place.
std::vector<Difference> differences(const StyleContent& before, const StyleContent& after);

}  // namespace tool
