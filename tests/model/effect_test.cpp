#include "model/effect.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>

#include "api/exports.h"
#include "chains.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/mutable_style.h"
#include "model/parameter.h"
#include "model/system_style.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

TEST(Effect, IsOfItsClassesKind) {
  EXPECT_EQ(AudioEffect(nullptr).type(), 0u);
  EXPECT_EQ(MidiEffect(nullptr).type(), 1u);
  EXPECT_EQ(MutableAudioEffect(nullptr).type(), 0u);
  EXPECT_EQ(MutableMidiEffect(nullptr).type(), 1u);
}

TEST(Effect, StartsWithoutIdAndParameters) {
  const AudioEffect effect(nullptr);
  EXPECT_EQ(utf8(effect.id()), "");
  EXPECT_EQ(effect.numParameter(), 0u);
  EXPECT_EQ(effect.parameter(0), nullptr);
  EXPECT_EQ(effect.parameter(SIZE_MAX), nullptr);
}

TEST(Effect, ShowsItsIdUpToItsFirstNulAndKeepsItWhole) {
  const Text whole(KOSTYLE_TEXT("a\0b"), 3);
  const auto effect = makeEffect<MidiEffect>(nullptr, whole);
  EXPECT_EQ(utf8(effect->id()), "a");
  EXPECT_EQ(effect->wholeId(), whole);
}

TEST(Effect, GivesItsParametersByIndex) {
  AudioEffect effect(nullptr);
  const Parameter& b = addParameter<Parameter>(effect, text("b"));
  const Parameter& a = addParameter<Parameter>(effect, text("a"));
  EXPECT_EQ(effect.numParameter(), 2u);
  EXPECT_EQ(effect.parameter(0), &a);
  EXPECT_EQ(effect.parameter(1), &b);
  EXPECT_EQ(effect.parameter(2), nullptr);
  EXPECT_EQ(effect.parameter(SIZE_MAX), nullptr);
}

TEST(Effect, GivesNoEditableParameter) {
  AudioEffect effect(nullptr);
  addParameter<MutableParameter>(effect, text("a"));
  EXPECT_EQ(effect.numParameter(), 1u);
  EXPECT_EQ(effect.parameter(0), nullptr);
}

TEST(Effect, HasItsOwnParametersOnly) {
  AudioEffect effect(nullptr);
  AudioEffect other(nullptr);
  Parameter& own = addParameter<Parameter>(effect, text("a"));
  Parameter& foreign = addParameter<Parameter>(other, text("a"));
  MutableParameter& editable = addParameter<MutableParameter>(effect, text("b"));
  EXPECT_TRUE(effect.hasParameter(&own));
  EXPECT_TRUE(effect.hasParameter(&editable));
  EXPECT_FALSE(effect.hasParameter(&foreign));
  EXPECT_FALSE(effect.hasParameter(nullptr));
}

TEST(Effect, BelongsToItsStoredStyle) {
  SystemStyle system(nullptr);
  UserStyle user(nullptr);
  EXPECT_EQ(addEffect<AudioEffect>(system, text("a")).parent(), static_cast<IStyle*>(&system));
  EXPECT_EQ(addEffect<MidiEffect>(user, text("a")).parent(), static_cast<IStyle*>(&user));
}

TEST(Effect, WalksItsOwnChainOnly) {
  UserStyle style(nullptr);
  const AudioEffect& a1 = addEffect<AudioEffect>(style, text("z"));
  const MidiEffect& m1 = addEffect<MidiEffect>(style, text("y"));
  const AudioEffect& a2 = addEffect<AudioEffect>(style, text("x"));
  const MidiEffect& m2 = addEffect<MidiEffect>(style, text("w"));
  EXPECT_EQ(a1.next(), &a2);
  EXPECT_EQ(a2.next(), nullptr);
  EXPECT_EQ(a2.prev(), &a1);
  EXPECT_EQ(a1.prev(), nullptr);
  EXPECT_EQ(m1.next(), &m2);
  EXPECT_EQ(m2.next(), nullptr);
  EXPECT_EQ(m2.prev(), &m1);
  EXPECT_EQ(m1.prev(), nullptr);
}

TEST(Effect, WithoutAStyleItHasNeitherParentNorNeighbours) {
  const AudioEffect audio(nullptr);
  const MidiEffect midi(nullptr);
  EXPECT_EQ(audio.parent(), nullptr);
  EXPECT_EQ(audio.next(), nullptr);
  EXPECT_EQ(audio.prev(), nullptr);
  EXPECT_EQ(midi.parent(), nullptr);
  EXPECT_EQ(midi.next(), nullptr);
  EXPECT_EQ(midi.prev(), nullptr);
}

TEST(Effect, OutsideItsStylesChainItHasNoNeighbours) {
  UserStyle style(nullptr);
  addEffect<AudioEffect>(style, text("a"));
  const AudioEffect unlisted(&style);
  EXPECT_EQ(unlisted.parent(), static_cast<IStyle*>(&style));
  EXPECT_EQ(unlisted.next(), nullptr);
  EXPECT_EQ(unlisted.prev(), nullptr);
}

TEST(Effect, InAMutableStyleItHasNoParentButNeighbours) {
  MutableStyle style(nullptr);
  const AudioEffect& a = addEffect<AudioEffect>(style, text("a"));
  const AudioEffect& b = addEffect<AudioEffect>(style, text("b"));
  EXPECT_EQ(a.parent(), nullptr);
  EXPECT_EQ(a.next(), &b);
  EXPECT_EQ(b.prev(), &a);
  EXPECT_EQ(style.audioEffect(0), nullptr) << "it is not an editable effect";
}

TEST(Effect, SeesNoEditableNeighbour) {
  UserStyle style(nullptr);
  const AudioEffect& a = addEffect<AudioEffect>(style, text("a"));
  const MutableAudioEffect& b = addEffect<MutableAudioEffect>(style, text("b"));
  const MidiEffect& c = addEffect<MidiEffect>(style, text("c"));
  const MutableMidiEffect& d = addEffect<MutableMidiEffect>(style, text("d"));
  EXPECT_EQ(a.next(), nullptr);
  EXPECT_EQ(b.prev(), nullptr);
  EXPECT_EQ(c.next(), nullptr);
  EXPECT_EQ(d.prev(), nullptr);
}

TEST(Effect, IsNotEditedThroughItsHandle) {
  UserStyle style(nullptr);
  AudioEffect& effect = addEffect<AudioEffect>(style, text("a"));
  addEffect<AudioEffect>(style, text("b"));
  EXPECT_FALSE(MutableEffect_move(&effect, 1));
  EXPECT_EQ(MutableEffect_addParameter(&effect, KOSTYLE_TEXT("p")), nullptr);
  EXPECT_EQ(MutableEffect_parent(&effect), nullptr);
  EXPECT_EQ(MutableAudioEffect_next(&effect), nullptr);
  MutableEffect_destroy(&effect);
  EXPECT_THAT(effectIds(style.chain(EffectKind::audio)), ElementsAre("a", "b"));
  EXPECT_EQ(effect.numParameter(), 0u);
}

TEST(Effect, IsNotWalkedAsAnEffectOfTheOtherKind) {
  UserStyle style(nullptr);
  AudioEffect& audio = addEffect<AudioEffect>(style, text("a"));
  addEffect<AudioEffect>(style, text("b"));
  EXPECT_NE(AudioEffect_next(&audio), nullptr);
  EXPECT_EQ(MidiEffect_next(&audio), nullptr);
}

TEST(Effect, AHundredThousandAreWalkedByNextAndPrev) {
  UserStyle style(nullptr);
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i) addEffect<MidiEffect>(style, text(std::to_string(i)));
  std::size_t walked = 0;
  const IMidiEffect* last = nullptr;
  for (const IMidiEffect* at = style.midiEffect(0); at; at = at->next()) {
    last = at;
    ++walked;
  }
  EXPECT_EQ(walked, count);
  for (const IMidiEffect* at = last; at; at = at->prev()) --walked;
  EXPECT_EQ(walked, 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
