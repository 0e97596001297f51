// How many styles have what.
#pragma once

#include <kostyle/kostyle.h>

#include <cstddef>
#include <map>
#include <vector>

#include "basics/value.h"

namespace tool {

/// One kind of thing. A style that has a thing several times counts once.
struct Tally {
  const char* key;                   // of all of them, in JSON
  std::vector<const char*> columns;  // what tells one from another, "genre" or "effect" and "chain"
  std::map<std::vector<Value>, std::size_t> styles = {};
};

/// Genres, languages, effects and parameters.
std::vector<Tally> talliesOf(const std::vector<KoStyleStyle*>& styles);

}  // namespace tool
