#include "model/parameter.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "api/exports.h"
#include "chains.h"
#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/mutable_style.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

void expectValue(const IParameterBase& parameter, std::uint32_t type, std::int32_t valueInt,
                 float valueFloat, const std::string& valueString) {
  EXPECT_EQ(parameter.type(), type);
  EXPECT_EQ(parameter.valueInt(), valueInt);
  EXPECT_EQ(parameter.valueFloat(), valueFloat);
  EXPECT_EQ(utf8(parameter.valueString()), valueString);
}

TEST(Parameter, StartsAsAnUnnamedZero) {
  const Parameter parameter(nullptr);
  expectValue(parameter, 0, 0, 0.0F, "");
  EXPECT_EQ(utf8(parameter.name()), "");
}

TEST(Parameter, HoldsOneValueOfItsType) {
  Parameter parameter(nullptr);
  parameter.assignInt(-7);
  expectValue(parameter, 0, -7, 0.0F, "");
  parameter.assignFloat(2.5F);
  expectValue(parameter, 1, 0, 2.5F, "");
  parameter.assignString(text("warm"));
  expectValue(parameter, 2, 0, 0.0F, "warm");
  parameter.assignFloat(1.0F);
  expectValue(parameter, 1, 0, 1.0F, "");
  parameter.assignString(text("x"));
  parameter.assignInt(1);
  expectValue(parameter, 0, 1, 0.0F, "");
  parameter.assignString(Text());
  expectValue(parameter, 2, 0, 0.0F, "");
}

TEST(Parameter, TakesTheValueOfAnotherButNotItsName) {
  Parameter source(nullptr);
  source.assignName(text("source"));
  Parameter target(nullptr);
  target.assignName(text("target"));
  source.assignInt(3);
  target.assignString(text("old"));
  target.assignValueOf(source);
  expectValue(target, 0, 3, 0.0F, "");
  source.assignFloat(0.5F);
  target.assignValueOf(source);
  expectValue(target, 1, 0, 0.5F, "");
  source.assignString(text("s"));
  target.assignValueOf(source);
  expectValue(target, 2, 0, 0.0F, "s");
  EXPECT_EQ(utf8(target.name()), "target");
  target.assignValueOf(target);
  expectValue(target, 2, 0, 0.0F, "s");
}

TEST(Parameter, ShowsATextUpToItsFirstNulAndKeepsItWhole) {
  Parameter parameter(nullptr);
  const Text whole(KOSTYLE_TEXT("a\0b"), 3);
  parameter.assignName(whole);
  parameter.assignString(whole);
  EXPECT_EQ(utf8(parameter.name()), "a");
  EXPECT_EQ(utf8(parameter.valueString()), "a");
  EXPECT_EQ(parameter.wholeName(), whole);
  EXPECT_EQ(parameter.wholeValueString(), whole);
}

TEST(Parameter, BelongsToItsEffect) {
  AudioEffect effect(nullptr);
  const Parameter& parameter = addParameter<Parameter>(effect, text("a"));
  EXPECT_EQ(parameter.parent(), static_cast<IEffect*>(&effect));
}

TEST(Parameter, WalksItsSiblingsInNameOrder) {
  MidiEffect effect(nullptr);
  const Parameter& b = addParameter<Parameter>(effect, text("b"));
  const Parameter& c = addParameter<Parameter>(effect, text("c"));
  const Parameter& a = addParameter<Parameter>(effect, text("a"));
  EXPECT_EQ(a.prev(), nullptr);
  EXPECT_EQ(a.next(), &b);
  EXPECT_EQ(b.next(), &c);
  EXPECT_EQ(c.next(), nullptr);
  EXPECT_EQ(c.prev(), &b);
  EXPECT_EQ(b.prev(), &a);
}

TEST(Parameter, AloneItHasNoSiblings) {
  AudioEffect effect(nullptr);
  const Parameter& only = addParameter<Parameter>(effect, text("a"));
  EXPECT_EQ(only.next(), nullptr);
  EXPECT_EQ(only.prev(), nullptr);
}

TEST(Parameter, WithoutAnEffectItHasNeitherParentNorSiblings) {
  const Parameter parameter(nullptr);
  EXPECT_EQ(parameter.parent(), nullptr);
  EXPECT_EQ(parameter.next(), nullptr);
  EXPECT_EQ(parameter.prev(), nullptr);
}

TEST(Parameter, OutsideItsEffectsListItHasNoSiblings) {
  AudioEffect effect(nullptr);
  addParameter<Parameter>(effect, text("a"));
  const Parameter unlisted(&effect);
  EXPECT_EQ(unlisted.parent(), static_cast<IEffect*>(&effect));
  EXPECT_EQ(unlisted.next(), nullptr);
  EXPECT_EQ(unlisted.prev(), nullptr);
}

TEST(Parameter, SeesNoEditableEffectAsItsParent) {
  MutableAudioEffect effect(nullptr);
  const Parameter& parameter = addParameter<Parameter>(effect, text("a"));
  EXPECT_EQ(parameter.parent(), nullptr);
}

TEST(Parameter, SeesNoEditableSibling) {
  AudioEffect effect(nullptr);
  const Parameter& a = addParameter<Parameter>(effect, text("a"));
  const MutableParameter& b = addParameter<MutableParameter>(effect, text("b"));
  const Parameter& c = addParameter<Parameter>(effect, text("c"));
  EXPECT_EQ(a.next(), nullptr);
  EXPECT_EQ(c.prev(), nullptr);
  EXPECT_EQ(b.next(), nullptr);
  EXPECT_EQ(b.prev(), nullptr);
}

TEST(Parameter, IsNotEditedThroughItsHandle) {
  AudioEffect effect(nullptr);
  Parameter& parameter = addParameter<Parameter>(effect, text("a"));
  parameter.assignInt(5);
  EXPECT_FALSE(MutableParameter_setName(&parameter, KOSTYLE_TEXT("b")));
  MutableParameter_setValueInt(&parameter, 6);
  MutableParameter_setValueFloat(&parameter, 6.0F);
  MutableParameter_setValueString(&parameter, KOSTYLE_TEXT("6"));
  MutableParameter_destroy(&parameter);
  EXPECT_EQ(MutableParameter_parent(&parameter), nullptr);
  EXPECT_EQ(utf8(parameter.name()), "a");
  expectValue(parameter, 0, 5, 0.0F, "");
  EXPECT_EQ(effect.numParameter(), 1u);
}

TEST(Parameter, AHundredThousandAreWalkedByNextAndPrev) {
  AudioEffect effect(nullptr);
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i)
    addParameter<Parameter>(effect, text(std::to_string(count + i)));
  std::size_t walked = 0;
  const IParameter* last = nullptr;
  for (const IParameter* at = effect.parameter(0); at; at = at->next()) {
    last = at;
    ++walked;
  }
  EXPECT_EQ(walked, count);
  for (const IParameter* at = last; at; at = at->prev()) --walked;
  EXPECT_EQ(walked, 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
