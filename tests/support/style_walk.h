// Walking everything that a manager owns in every way that there is, and comparing.
#pragma once

#include <gmock/gmock.h>

#include <cstddef>

#include "support/kostyle.h"
#include "support/style_value.h"

namespace test {

/// Expects next and prev to lead along what `at` gives for each index.
template <class Handle, class At, class Next, class Prev>
void expectWalk(std::size_t count, At at, Next next, Prev prev) {
  EXPECT_EQ(at(count), nullptr);
  for (std::size_t i = 0; i < count; ++i) {
    Handle* const handle = at(i);
    ASSERT_NE(handle, nullptr) << i;
    EXPECT_EQ(next(handle), at(i + 1)) << i;
    EXPECT_EQ(prev(handle), i == 0 ? nullptr : at(i - 1)) << i;
  }
}

inline void expectEffectWalks(KoStyleStyle* style, KoStyleEffect* effect) {
  const bool isMutable = Style_type(style) == KOSTYLE_KIND_MUTABLE;
  EXPECT_EQ(Effect_parent(effect), isMutable ? nullptr : style);
  EXPECT_EQ(MutableEffect_parent(effect), isMutable ? style : nullptr);
  const auto at = [&](std::size_t i) {
    return isMutable ? MutableEffect_parameter(effect, i) : Effect_parameter(effect, i);
  };
  expectWalk<KoStyleParameter>(Effect_numParameter(effect), at,
                               isMutable ? MutableParameter_next : Parameter_next,
                               isMutable ? MutableParameter_prev : Parameter_prev);
  for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
    EXPECT_TRUE(Effect_hasParameter(effect, at(i)));
    EXPECT_EQ(Parameter_parent(at(i)), isMutable ? nullptr : effect);
    EXPECT_EQ(MutableParameter_parent(at(i)), isMutable ? effect : nullptr);
  }
}

/// Expects the indices, neighbours, parents and memberships of a style's effects and parameters to
/// agree.
inline void expectStyleWalks(KoStyleStyle* style) {
  const bool isMutable = Style_type(style) == KOSTYLE_KIND_MUTABLE;
  for (const Chain& chain : chains()) {
    const Chain& other = chains()[chain.type == KOSTYLE_EFFECT_AUDIO ? 1 : 0];
    const auto at = [&](std::size_t i) { return (isMutable ? chain.mutableAt : chain.at)(style, i); };
    expectWalk<KoStyleEffect>(chain.count(style), at, isMutable ? chain.mutableNext : chain.next,
                              isMutable ? chain.mutablePrev : chain.prev);
    for (std::size_t i = 0; i < chain.count(style); ++i) {
      EXPECT_EQ(Effect_type(at(i)), chain.type);
      EXPECT_TRUE(chain.has(style, at(i)));
      EXPECT_FALSE(other.has(style, at(i)));
      EXPECT_EQ(other.next(at(i)), nullptr);
      EXPECT_EQ(other.mutablePrev(at(i)), nullptr);
      expectEffectWalks(style, at(i));
    }
  }
}

/// Expects the same of a manager's stored styles and creation results.
inline void expectManagerWalks(KoStyleManager* manager) {
  expectWalk<KoStyleStyle>(
      StyleManager_numSystemStyle(manager),
      [&](std::size_t i) { return StyleManager_systemStyle(manager, i); }, SystemStyle_next,
      SystemStyle_prev);
  expectWalk<KoStyleStyle>(
      StyleManager_numUserStyle(manager),
      [&](std::size_t i) { return StyleManager_userStyle(manager, i); }, UserStyle_next,
      UserStyle_prev);
  expectWalk<KoStyleCreationResult>(
      StyleManager_numSystemStyleCreationResult(manager),
      [&](std::size_t i) { return StyleManager_systemStyleCreationResult(manager, i); },
      StyleCreationResult_next, StyleCreationResult_prev);
  expectWalk<KoStyleCreationResult>(
      StyleManager_numUserStyleCreationResult(manager),
      [&](std::size_t i) { return StyleManager_userStyleCreationResult(manager, i); },
      StyleCreationResult_next, StyleCreationResult_prev);
  for (std::size_t i = 0; i < StyleManager_numUserStyle(manager); ++i)
    EXPECT_TRUE(StyleManager_hasUserStyle(manager, StyleManager_userStyle(manager, i)));
  for (std::size_t i = 0; i < StyleManager_numSystemStyle(manager); ++i)
    EXPECT_TRUE(StyleManager_hasSystemStyle(manager, StyleManager_systemStyle(manager, i)));
}

}  // namespace test
