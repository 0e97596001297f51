#include "model/mutable_effect.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>

#include "chains.h"
#include "model/effect.h"
#include "model/mutable_parameter.h"
#include "model/mutable_style.h"
#include "model/parameter.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

class MutableEffectTest : public testing::Test {
 protected:
  IMutableAudioEffect& audio(const char* id) {
    return *style_.insertAudioEffect(SIZE_MAX, text(id).c_str());
  }
  IMutableMidiEffect& midi(const char* id) {
    return *style_.insertMidiEffect(SIZE_MAX, text(id).c_str());
  }
  std::vector<std::string> audioIds() const { return effectIds(style_.chain(EffectKind::audio)); }
  std::vector<std::string> midiIds() const { return effectIds(style_.chain(EffectKind::midi)); }

  MutableStyle style_{nullptr};
};

TEST_F(MutableEffectTest, BelongsToItsMutableStyle) {
  EXPECT_EQ(audio("a").parent(), static_cast<IMutableStyle*>(&style_));
  EXPECT_EQ(midi("a").parent(), static_cast<IMutableStyle*>(&style_));
}

TEST_F(MutableEffectTest, AddsParametersInNameOrder) {
  IMutableEffect& effect = audio("a");
  IMutableParameter* b = effect.addParameter(KOSTYLE_TEXT("b"));
  IMutableParameter* a = effect.addParameter(KOSTYLE_TEXT("a"));
  IMutableParameter* upper = effect.addParameter(KOSTYLE_TEXT("B"));
  EXPECT_EQ(effect.parameter(0), upper);
  EXPECT_EQ(effect.parameter(1), a);
  EXPECT_EQ(effect.parameter(2), b);
  EXPECT_EQ(effect.parameter(3), nullptr);
  EXPECT_EQ(effect.parameter(SIZE_MAX), nullptr);
  EXPECT_TRUE(effect.hasParameter(a));
}

TEST_F(MutableEffectTest, RefusesAParameterWithoutNameOrWithATakenOne) {
  IMutableEffect& effect = midi("a");
  EXPECT_EQ(effect.addParameter(nullptr), nullptr);
  EXPECT_EQ(effect.addParameter(KOSTYLE_TEXT("")), nullptr);
  EXPECT_EQ(effect.numParameter(), 0u);
  EXPECT_NE(effect.addParameter(KOSTYLE_TEXT("p")), nullptr);
  EXPECT_EQ(effect.addParameter(KOSTYLE_TEXT("p")), nullptr);
  EXPECT_EQ(effect.numParameter(), 1u);
}

TEST_F(MutableEffectTest, GivesNoStoredParameter) {
  MutableAudioEffect effect(nullptr);
  addParameter<Parameter>(effect, text("a"));
  EXPECT_EQ(effect.numParameter(), 1u);
  EXPECT_EQ(effect.parameter(0), nullptr);
  EXPECT_EQ(effect.addParameter(KOSTYLE_TEXT("a")), nullptr);
}

TEST_F(MutableEffectTest, ADestroyedParametersNameIsFreeAgain) {
  IMutableEffect& effect = audio("a");
  effect.addParameter(KOSTYLE_TEXT("p"))->destroy();
  EXPECT_EQ(effect.numParameter(), 0u);
  EXPECT_NE(effect.addParameter(KOSTYLE_TEXT("p")), nullptr);
}

TEST_F(MutableEffectTest, MovesToAnyPositionOfItsChain) {
  audio("a");
  audio("b");
  IMutableEffect& c = audio("c");
  EXPECT_TRUE(c.move(0));
  EXPECT_THAT(audioIds(), ElementsAre("c", "a", "b"));
  EXPECT_TRUE(c.move(99));
  EXPECT_THAT(audioIds(), ElementsAre("a", "b", "c"));
  EXPECT_TRUE(c.move(1));
  EXPECT_THAT(audioIds(), ElementsAre("a", "c", "b"));
  EXPECT_TRUE(c.move(2));
  EXPECT_THAT(audioIds(), ElementsAre("a", "b", "c"));
  EXPECT_TRUE(style_.audioEffect(0)->move(SIZE_MAX));
  EXPECT_THAT(audioIds(), ElementsAre("b", "c", "a"));
  EXPECT_TRUE(style_.audioEffect(0)->move(1));
  EXPECT_THAT(audioIds(), ElementsAre("c", "b", "a"));
}

TEST_F(MutableEffectTest, MovingToItsOwnPositionChangesNothing) {
  midi("a");
  IMutableEffect& b = midi("b");
  EXPECT_TRUE(b.move(1));
  EXPECT_TRUE(b.move(2));
  EXPECT_TRUE(b.move(SIZE_MAX));
  EXPECT_THAT(midiIds(), ElementsAre("a", "b"));
  EXPECT_TRUE(audio("alone").move(0));
  EXPECT_TRUE(style_.audioEffect(0)->move(7));
  EXPECT_THAT(audioIds(), ElementsAre("alone"));
}

TEST_F(MutableEffectTest, MovingKeepsItsIdTakenAndItsParameters) {
  IMutableEffect& a = audio("a");
  audio("b");
  a.addParameter(KOSTYLE_TEXT("p"));
  EXPECT_TRUE(a.move(1));
  EXPECT_EQ(style_.insertAudioEffect(0, KOSTYLE_TEXT("a")), nullptr);
  EXPECT_TRUE(style_.hasAudioEffect(&a));
  EXPECT_EQ(style_.audioEffect(1), &a);
  EXPECT_EQ(a.numParameter(), 1u);
}

TEST_F(MutableEffectTest, MovesAndDiesInItsOwnChainOnly) {
  IMutableEffect& audioA = audio("a");
  audio("b");
  midi("a");
  midi("b");
  EXPECT_TRUE(audioA.move(1));
  EXPECT_THAT(midiIds(), ElementsAre("a", "b"));
  audioA.destroy();
  EXPECT_THAT(audioIds(), ElementsAre("b"));
  EXPECT_THAT(midiIds(), ElementsAre("a", "b"));
}

TEST_F(MutableEffectTest, DestroyedItLeavesItsNeighboursAdjacent) {
  IMutableAudioEffect& a = audio("a");
  IMutableAudioEffect& b = audio("b");
  IMutableAudioEffect& c = audio("c");
  b.addParameter(KOSTYLE_TEXT("p"));
  b.destroy();
  EXPECT_EQ(a.next(), &c);
  EXPECT_EQ(c.prev(), &a);
  EXPECT_NE(style_.insertAudioEffect(1, KOSTYLE_TEXT("b")), nullptr);
  EXPECT_THAT(audioIds(), ElementsAre("a", "b", "c"));
}

TEST_F(MutableEffectTest, WalksItsOwnChainOnly) {
  IMutableAudioEffect& a1 = audio("1");
  IMutableMidiEffect& m1 = midi("1");
  IMutableAudioEffect& a2 = audio("2");
  IMutableMidiEffect& m2 = midi("2");
  EXPECT_EQ(a1.prev(), nullptr);
  EXPECT_EQ(a1.next(), &a2);
  EXPECT_EQ(a2.next(), nullptr);
  EXPECT_EQ(m1.next(), &m2);
  EXPECT_EQ(m2.prev(), &m1);
  EXPECT_EQ(m2.next(), nullptr);
}

TEST_F(MutableEffectTest, WithoutAStyleItIsNeitherMovedNorDestroyed) {
  MutableAudioEffect effect(nullptr);
  EXPECT_FALSE(effect.move(0));
  effect.destroy();
  EXPECT_EQ(effect.parent(), nullptr);
  EXPECT_EQ(effect.next(), nullptr);
  EXPECT_EQ(effect.prev(), nullptr);
  EXPECT_NE(effect.addParameter(KOSTYLE_TEXT("p")), nullptr);
}

TEST_F(MutableEffectTest, OutsideItsStylesChainItIsNeitherMovedNorDestroyed) {
  MutableMidiEffect inEmptyChain(&style_);
  EXPECT_FALSE(inEmptyChain.move(0));
  midi("a");
  MutableMidiEffect unlisted(&style_);
  EXPECT_FALSE(unlisted.move(0));
  unlisted.destroy();
  EXPECT_EQ(unlisted.next(), nullptr);
  EXPECT_EQ(unlisted.prev(), nullptr);
  EXPECT_THAT(midiIds(), ElementsAre("a"));
}

TEST_F(MutableEffectTest, InAStoredStyleItHasNoParentAndStaysWhereItIs) {
  UserStyle stored(nullptr);
  MutableAudioEffect& a = addEffect<MutableAudioEffect>(stored, text("a"));
  MutableAudioEffect& b = addEffect<MutableAudioEffect>(stored, text("b"));
  EXPECT_EQ(a.parent(), nullptr);
  EXPECT_EQ(a.next(), &b);
  EXPECT_FALSE(a.move(1));
  a.destroy();
  EXPECT_THAT(effectIds(stored.chain(EffectKind::audio)), ElementsAre("a", "b"));
  EXPECT_EQ(stored.audioEffect(0), nullptr) << "it is not a stored effect";
}

TEST_F(MutableEffectTest, SeesNoStoredNeighbour) {
  IMutableAudioEffect& a = audio("a");
  addEffect<AudioEffect>(style_, text("b"));
  IMutableAudioEffect& c = audio("c");
  EXPECT_EQ(a.next(), nullptr);
  EXPECT_EQ(c.prev(), nullptr);
  EXPECT_TRUE(c.move(1));
  EXPECT_EQ(a.next(), &c);
}

TEST_F(MutableEffectTest, AHundredThousandAreInsertedInFrontMovedAndWalked) {
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i)
    ASSERT_NE(style_.insertAudioEffect(0, text(std::to_string(i)).c_str()), nullptr);
  ASSERT_EQ(style_.insertAudioEffect(0, KOSTYLE_TEXT("777")), nullptr);
  for (std::size_t i = 0; i < count; ++i) ASSERT_TRUE(style_.audioEffect(count - 1)->move(i));
  std::size_t walked = 0;
  for (const IMutableAudioEffect* at = style_.audioEffect(0); at; at = at->next()) {
    ASSERT_EQ(utf8(at->id()), std::to_string(walked));
    ++walked;
  }
  EXPECT_EQ(walked, count);
  while (IMutableAudioEffect* effect = style_.audioEffect(style_.numAudioEffect() / 2))
    effect->destroy();
  EXPECT_EQ(style_.numAudioEffect(), 0u);
}

TEST_F(MutableEffectTest, AHundredThousandParametersAreAddedAndDestroyed) {
  constexpr std::size_t count = 100000;
  IMutableEffect& effect = audio("a");
  for (std::size_t i = count; i-- > 0;)
    ASSERT_NE(effect.addParameter(text(std::to_string(i)).c_str()), nullptr);
  EXPECT_EQ(effect.addParameter(KOSTYLE_TEXT("4711")), nullptr);
  for (std::size_t i = 0; i < count; ++i)
    ASSERT_TRUE(effect.hasParameter(effect.parameter(count - 1 - i)));
  while (IMutableParameter* parameter = effect.parameter(effect.numParameter() / 2))
    parameter->destroy();
  EXPECT_EQ(effect.numParameter(), 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
