// Effects of mutable styles: the chains, and the parameters that they own.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_value.h"
#include "support/style_walk.h"

namespace {

using test::Chain;
using test::text;
using test::utf8;
using testing::ElementsAre;

/// Runs for the audio and for the MIDI chain.
class MutableEffect : public testing::TestWithParam<int> {
 protected:
  KoStyleEffect* insert(std::size_t index, const char* id) {
    return chain.insert(style, index, text(id).c_str());
  }
  KoStyleEffect* at(std::size_t index) { return chain.mutableAt(style, index); }
  std::vector<std::string> ids() {
    std::vector<std::string> result;
    for (std::size_t i = 0; KoStyleEffect* each = at(i); ++i) result.push_back(utf8(Effect_id(each)));
    return result;
  }

  const Chain& chain = test::chains()[static_cast<std::size_t>(GetParam())];
  const Chain& other = test::chains()[static_cast<std::size_t>(1 - GetParam())];
  test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
};

INSTANTIATE_TEST_SUITE_P(EachChain, MutableEffect,
                         testing::Values(KOSTYLE_EFFECT_AUDIO, KOSTYLE_EFFECT_MIDI));

TEST_P(MutableEffect, StartsWithoutParameters) {
  KoStyleEffect* effect = insert(0, "x");
  ASSERT_NE(effect, nullptr);
  EXPECT_EQ(Effect_type(effect), GetParam());
  EXPECT_EQ(utf8(Effect_id(effect)), "x");
  EXPECT_EQ(Effect_numParameter(effect), 0u);
  EXPECT_EQ(MutableEffect_parameter(effect, 0), nullptr);
  EXPECT_EQ(MutableEffect_parent(effect), style);
}

TEST_P(MutableEffect, IsInsertedBeforeItsIndexOrAppended) {
  insert(0, "x");
  insert(1000, "y");
  insert(0, "a");
  insert(1, "b");
  insert(SIZE_MAX, "z");
  EXPECT_THAT(ids(), ElementsAre("a", "b", "x", "y", "z"));
  EXPECT_EQ(at(SIZE_MAX), nullptr);
  test::expectStyleWalks(style);
}

TEST_P(MutableEffect, IsRefusedWithoutIdentifierOrWithAKnownOne) {
  insert(0, "x");
  EXPECT_EQ(insert(0, "x"), nullptr);
  EXPECT_EQ(insert(0, ""), nullptr);
  EXPECT_EQ(chain.insert(style, 0, nullptr), nullptr);
  EXPECT_NE(insert(0, "X"), nullptr);
  EXPECT_NE(insert(0, "xx"), nullptr);
  EXPECT_EQ(chain.count(style), 3u);
}

TEST_P(MutableEffect, MayHaveTheIdentifierOfOneInTheOtherChain) {
  insert(0, "x");
  EXPECT_NE(other.insert(style, 0, KOSTYLE_TEXT("x")), nullptr);
  EXPECT_EQ(chain.count(style), 1u);
  EXPECT_EQ(other.count(style), 1u);
  EXPECT_EQ(chain.mutableNext(at(0)), nullptr);
  test::expectStyleWalks(style);
}

TEST_P(MutableEffect, MovesToTheFrontToTheEndAndNowhere) {
  for (const char* id : {"a", "b", "c"}) insert(9, id);
  KoStyleEffect* c = at(2);
  EXPECT_TRUE(MutableEffect_move(c, 0));
  EXPECT_THAT(ids(), ElementsAre("c", "a", "b"));
  EXPECT_TRUE(MutableEffect_move(c, 99));
  EXPECT_THAT(ids(), ElementsAre("a", "b", "c"));
  EXPECT_TRUE(MutableEffect_move(c, 2));
  EXPECT_TRUE(MutableEffect_move(c, SIZE_MAX));
  EXPECT_THAT(ids(), ElementsAre("a", "b", "c"));
  EXPECT_TRUE(MutableEffect_move(at(0), 1));
  EXPECT_THAT(ids(), ElementsAre("b", "a", "c"));
  EXPECT_EQ(at(2), c);
  EXPECT_TRUE(MutableEffect_move(c, 1));
  EXPECT_THAT(ids(), ElementsAre("b", "c", "a"));
  EXPECT_TRUE(MutableEffect_move(at(0), SIZE_MAX));
  EXPECT_THAT(ids(), ElementsAre("c", "a", "b"));
  EXPECT_EQ(insert(0, "c"), nullptr) << "a moved effect keeps its identifier";
  test::expectStyleWalks(style);
}

TEST_P(MutableEffect, MovesAloneWithoutChange) {
  KoStyleEffect* effect = insert(0, "x");
  EXPECT_TRUE(MutableEffect_move(effect, 0));
  EXPECT_TRUE(MutableEffect_move(effect, 5));
  EXPECT_THAT(ids(), ElementsAre("x"));
}

TEST_P(MutableEffect, MovesAndGoesWithItsParametersAndLeavesTheOtherChain) {
  for (const char* id : {"a", "b"}) {
    insert(9, id);
    other.insert(style, 9, text(id).c_str());
  }
  KoStyleParameter* parameter = MutableEffect_addParameter(at(1), KOSTYLE_TEXT("p"));
  KoStyleEffect* otherFirst = other.mutableAt(style, 0);
  EXPECT_TRUE(MutableEffect_move(at(1), 0));
  EXPECT_TRUE(Effect_hasParameter(at(0), parameter));
  EXPECT_EQ(MutableParameter_parent(parameter), at(0));
  EXPECT_EQ(other.mutableAt(style, 0), otherFirst);
  MutableEffect_destroy(at(0));
  EXPECT_EQ(chain.count(style), 1u);
  EXPECT_EQ(other.count(style), 2u);
}

TEST_P(MutableEffect, LeavesItsNeighboursAdjacentWhenDestroyed) {
  for (const char* id : {"a", "b", "c"}) insert(9, id);
  KoStyleEffect* a = at(0);
  KoStyleEffect* b = at(1);
  KoStyleEffect* c = at(2);
  MutableEffect_destroy(b);
  EXPECT_EQ(chain.mutableNext(a), c);
  EXPECT_EQ(chain.mutablePrev(c), a);
  EXPECT_FALSE(chain.has(style, b));
  EXPECT_NE(insert(1, "b"), nullptr);
  EXPECT_THAT(ids(), ElementsAre("a", "b", "c"));
}

TEST_P(MutableEffect, RefusesAParameterWithoutNameOrWithAKnownOne) {
  KoStyleEffect* effect = insert(0, "x");
  EXPECT_NE(MutableEffect_addParameter(effect, KOSTYLE_TEXT("p")), nullptr);
  EXPECT_EQ(MutableEffect_addParameter(effect, KOSTYLE_TEXT("p")), nullptr);
  EXPECT_EQ(MutableEffect_addParameter(effect, KOSTYLE_TEXT("")), nullptr);
  EXPECT_EQ(MutableEffect_addParameter(effect, nullptr), nullptr);
  EXPECT_EQ(Effect_numParameter(effect), 1u);
  EXPECT_EQ(MutableEffect_parameter(effect, 1), nullptr);
  EXPECT_NE(MutableEffect_addParameter(effect, KOSTYLE_TEXT("P")), nullptr);
}

TEST_P(MutableEffect, DoesNotHaveTheParameterOfAnother) {
  KoStyleParameter* parameter = MutableEffect_addParameter(insert(0, "x"), KOSTYLE_TEXT("p"));
  KoStyleEffect* second = insert(1, "y");
  MutableEffect_addParameter(second, KOSTYLE_TEXT("p"));
  EXPECT_TRUE(Effect_hasParameter(at(0), parameter));
  EXPECT_FALSE(Effect_hasParameter(second, parameter));
}

TEST_P(MutableEffect, IsNotInTheChainOfAnotherStyle) {
  KoStyleEffect* effect = insert(0, "x");
  KoStyleStyle* second = StyleManager_createMutableStyle(host.manager);
  chain.insert(second, 0, KOSTYLE_TEXT("x"));
  EXPECT_FALSE(chain.has(second, effect));
}

}  // namespace
