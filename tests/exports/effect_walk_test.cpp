// Long chains and parameter lists, changed at random places: index, next and prev keep agreeing with
// a plain list.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/random.h"
#include "support/style_walk.h"

namespace {

using test::text;

class EffectWalk : public testing::TestWithParam<int> {
 protected:
  void changeParameters(std::size_t length, std::size_t nameCount, int steps);

  test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  const test::Chain& chain = test::chains()[static_cast<std::size_t>(GetParam())];
  test::Random random{static_cast<std::uint64_t>(GetParam()) + 1};
};

INSTANTIATE_TEST_SUITE_P(EachChain, EffectWalk,
                         testing::Values(KOSTYLE_EFFECT_AUDIO, KOSTYLE_EFFECT_MIDI));

TEST_P(EffectWalk, AgreesWithAListOfEffects) {
  std::vector<KoStyleEffect*> expected;
  const auto insertAt = [&](std::size_t index, KoStyleEffect* effect) {
    expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(std::min(index, expected.size())),
                    effect);
  };
  for (int step = 0; step < 600; ++step) {
    const std::size_t index = random.below(expected.size() + 3);
    if (expected.empty() || random.oneIn(2)) {
      insertAt(index, chain.insert(style, index, text("effect " + std::to_string(step)).c_str()));
    } else {
      const std::size_t from = random.below(expected.size());
      KoStyleEffect* const effect = expected[from];
      expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(from));
      if (random.oneIn(3)) {
        MutableEffect_destroy(effect);
      } else {
        EXPECT_TRUE(MutableEffect_move(effect, index));
        insertAt(index, effect);
      }
    }
    ASSERT_EQ(chain.count(style), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
      ASSERT_EQ(chain.mutableAt(style, i), expected[i]) << "step " << step << ", index " << i;
    test::expectStyleWalks(style);
    ASSERT_FALSE(HasFailure()) << "step " << step;
  }
}

/// Changes the parameters of a new effect, `length` at most, beside a list that is sorted plainly.
void EffectWalk::changeParameters(std::size_t length, std::size_t nameCount, int steps) {
  struct Expected {
    KoStyleParameter* handle;
    std::string name;
  };
  std::vector<Expected> expected;
  KoStyleEffect* effect = chain.insert(style, 0, KOSTYLE_TEXT("E"));
  for (int step = 0; step < steps; ++step) {
    const std::string name = std::to_string(random.below(nameCount));
    const auto hasName = [&](const Expected& each) { return each.name == name; };
    if (expected.empty() || (expected.size() < length && random.oneIn(2))) {
      KoStyleParameter* added = MutableEffect_addParameter(effect, text(name).c_str());
      ASSERT_EQ(added == nullptr, std::any_of(expected.begin(), expected.end(), hasName)) << name;
      if (added) {
        expected.push_back({added, name});
        std::stable_sort(expected.begin(), expected.end(),
                         [](const Expected& a, const Expected& b) { return a.name < b.name; });
      }
    } else {
      const std::size_t index = random.below(expected.size());
      if (random.oneIn(3)) {
        MutableParameter_destroy(expected[index].handle);
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(index));
      } else {
        EXPECT_TRUE(MutableParameter_setName(expected[index].handle, text(name).c_str()));
        expected[index].name = name;
      }
    }
    ASSERT_EQ(Effect_numParameter(effect), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
      ASSERT_EQ(MutableEffect_parameter(effect, i), expected[i].handle) << "step " << step;
    test::expectEffectWalks(style, effect);
    ASSERT_FALSE(HasFailure()) << "step " << step;
  }
  MutableEffect_destroy(effect);
}

// Short lists with few names bring about every pattern of equal and displaced names.
TEST_P(EffectWalk, AgreesWithAStablySortedListOfFewParameters) {
  for (std::size_t sequence = 0; sequence < 2000; ++sequence)
    ASSERT_NO_FATAL_FAILURE(changeParameters(2 + sequence % 9, 2 + sequence % 7, 40));
}

TEST_P(EffectWalk, AgreesWithAStablySortedListOfManyParameters) {
  for (const std::size_t nameCount : {5u, 60u, 200u, 2000u})
    ASSERT_NO_FATAL_FAILURE(changeParameters(300, nameCount, 1000));
}

}  // namespace
