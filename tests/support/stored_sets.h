// The functions of the two sets of stored styles.
#pragma once

#include <array>
#include <cstddef>

#include "support/kostyle.h"

namespace test {

/// The functions of one set.
struct StoredSet {
  std::size_t (*count)(KoStyleManager*);
  KoStyleStyle* (*at)(KoStyleManager*, std::size_t);
  bool (*has)(KoStyleManager*, KoStyleStyle*);
  std::size_t (*recordCount)(KoStyleManager*);
  KoStyleCreationResult* (*recordAt)(KoStyleManager*, std::size_t);
  int (*read)(KoStyleManager*);
};

/// The sets, by the kind of their styles.
inline const std::array<StoredSet, 2>& storedSets() {
  static const std::array<StoredSet, 2> sets{
      {{StyleManager_numSystemStyle, StyleManager_systemStyle, StyleManager_hasSystemStyle,
        StyleManager_numSystemStyleCreationResult, StyleManager_systemStyleCreationResult,
        StyleManager_readSystemStyles},
       {StyleManager_numUserStyle, StyleManager_userStyle, StyleManager_hasUserStyle,
        StyleManager_numUserStyleCreationResult, StyleManager_userStyleCreationResult,
        StyleManager_readUserStyles}}};
  return sets;
}

}  // namespace test
