#include "model/mutable_parameter.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "chains.h"
#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/parameter.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

class MutableParameterTest : public testing::Test {
 protected:
  IMutableParameter& add(const char* name) { return *effect_.addParameter(text(name).c_str()); }

  MutableAudioEffect effect_{nullptr};
};

TEST_F(MutableParameterTest, StartsAsANamedZero) {
  const IMutableParameter& parameter = add("a");
  EXPECT_EQ(utf8(parameter.name()), "a");
  EXPECT_EQ(parameter.type(), 0u);
  EXPECT_EQ(parameter.valueInt(), 0);
  EXPECT_EQ(parameter.valueFloat(), 0.0F);
  EXPECT_EQ(utf8(parameter.valueString()), "");
  EXPECT_EQ(parameter.parent(), static_cast<IMutableEffect*>(&effect_));
}

TEST_F(MutableParameterTest, AnIntegerReplacesWhatWasThere) {
  IMutableParameter& parameter = add("a");
  parameter.setValueString(KOSTYLE_TEXT("s"));
  for (const std::int32_t value : {INT32_MIN, -1, 0, INT32_MAX}) {
    parameter.setValueFloat(2.5F);
    parameter.setValueInt(value);
    EXPECT_EQ(parameter.type(), 0u);
    EXPECT_EQ(parameter.valueInt(), value);
    EXPECT_EQ(parameter.valueFloat(), 0.0F);
    EXPECT_EQ(utf8(parameter.valueString()), "");
  }
}

TEST_F(MutableParameterTest, AFloatReplacesWhatWasThere) {
  IMutableParameter& parameter = add("a");
  parameter.setValueInt(9);
  parameter.setValueFloat(2.5F);
  EXPECT_EQ(parameter.type(), 1u);
  EXPECT_EQ(parameter.valueFloat(), 2.5F);
  EXPECT_EQ(parameter.valueInt(), 0);
  parameter.setValueString(KOSTYLE_TEXT("s"));
  parameter.setValueFloat(-0.0F);
  EXPECT_EQ(utf8(parameter.valueString()), "");
  EXPECT_TRUE(std::signbit(parameter.valueFloat()));
  parameter.setValueFloat(std::numeric_limits<float>::quiet_NaN());
  EXPECT_TRUE(std::isnan(parameter.valueFloat()));
  parameter.setValueFloat(std::numeric_limits<float>::infinity());
  EXPECT_TRUE(std::isinf(parameter.valueFloat()));
}

TEST_F(MutableParameterTest, ATextReplacesWhatWasThere) {
  IMutableParameter& parameter = add("a");
  parameter.setValueInt(9);
  parameter.setValueString(KOSTYLE_TEXT("warm"));
  EXPECT_EQ(parameter.type(), 2u);
  EXPECT_EQ(utf8(parameter.valueString()), "warm");
  EXPECT_EQ(parameter.valueInt(), 0);
  parameter.setValueFloat(1.5F);
  parameter.setValueString(KOSTYLE_TEXT(""));
  EXPECT_EQ(parameter.type(), 2u);
  EXPECT_EQ(parameter.valueFloat(), 0.0F);
}

TEST_F(MutableParameterTest, ANullTextIsAnEmptyOne) {
  IMutableParameter& parameter = add("a");
  parameter.setValueInt(9);
  parameter.setValueString(nullptr);
  EXPECT_EQ(parameter.type(), 2u);
  EXPECT_EQ(utf8(parameter.valueString()), "");
  EXPECT_EQ(parameter.valueInt(), 0);
  EXPECT_EQ(parameter.valueFloat(), 0.0F);
}

TEST_F(MutableParameterTest, TakesLoneSurrogates) {
  IMutableParameter& parameter = add("a");
  const Text surrogate = {Char(0xDC01), Char('x'), Char(0xD801)};
  EXPECT_TRUE(parameter.setName(surrogate.c_str()));
  parameter.setValueString(surrogate.c_str());
  EXPECT_EQ(parameter.name(), surrogate);
  EXPECT_EQ(parameter.valueString(), surrogate);
}

TEST_F(MutableParameterTest, RefusesNoNameAndKeepsTheOld) {
  IMutableParameter& parameter = add("a");
  EXPECT_FALSE(parameter.setName(nullptr));
  EXPECT_FALSE(parameter.setName(KOSTYLE_TEXT("")));
  EXPECT_EQ(utf8(parameter.name()), "a");
}

TEST_F(MutableParameterTest, MayTakeASiblingsName) {
  add("a");
  IMutableParameter& b = add("b");
  EXPECT_TRUE(b.setName(KOSTYLE_TEXT("a")));
  EXPECT_THAT(parameterNames(effect_), ElementsAre("a", "a"));
  EXPECT_EQ(effect_.addParameter(KOSTYLE_TEXT("a")), nullptr);
  EXPECT_NE(effect_.addParameter(KOSTYLE_TEXT("b")), nullptr);
}

TEST_F(MutableParameterTest, RenamedItStaysUntilTheNextIsAdded) {
  for (const char* name : {"b", "c", "a"}) add(name);
  std::vector<std::string> walked;
  for (const IMutableParameter* at = effect_.parameter(0); at; at = at->next())
    walked.push_back(utf8(at->name()));
  EXPECT_THAT(walked, ElementsAre("a", "b", "c"));
  EXPECT_TRUE(effect_.parameter(0)->setName(KOSTYLE_TEXT("z")));
  EXPECT_THAT(parameterNames(effect_), ElementsAre("z", "b", "c"));
  EXPECT_EQ(effect_.parameter(0)->prev(), nullptr);
  add("d");
  EXPECT_THAT(parameterNames(effect_), ElementsAre("b", "c", "d", "z"));
}

TEST_F(MutableParameterTest, DestroyedItLeavesItsNeighboursAdjacent) {
  IMutableParameter& a = add("a");
  IMutableParameter& b = add("b");
  IMutableParameter& c = add("c");
  b.destroy();
  EXPECT_EQ(a.next(), &c);
  EXPECT_EQ(c.prev(), &a);
  EXPECT_EQ(effect_.numParameter(), 2u);
  a.destroy();
  EXPECT_EQ(c.prev(), nullptr);
  c.destroy();
  EXPECT_EQ(effect_.numParameter(), 0u);
  EXPECT_EQ(effect_.parameter(0), nullptr);
}

TEST_F(MutableParameterTest, OutsideItsEffectsListItIsNotDestroyed) {
  add("a");
  MutableParameter unlisted(&effect_);
  unlisted.destroy();
  EXPECT_TRUE(unlisted.setName(KOSTYLE_TEXT("b")));
  EXPECT_EQ(utf8(unlisted.name()), "b");
  EXPECT_EQ(unlisted.next(), nullptr);
  EXPECT_EQ(unlisted.prev(), nullptr);
  EXPECT_THAT(parameterNames(effect_), ElementsAre("a"));
}

TEST_F(MutableParameterTest, WithoutAnEffectItIsOnlyNamed) {
  MutableParameter parameter(nullptr);
  parameter.destroy();
  EXPECT_TRUE(parameter.setName(KOSTYLE_TEXT("b")));
  EXPECT_EQ(utf8(parameter.name()), "b");
  EXPECT_EQ(parameter.parent(), nullptr);
  EXPECT_EQ(parameter.next(), nullptr);
  EXPECT_EQ(parameter.prev(), nullptr);
}

TEST_F(MutableParameterTest, InAStoredEffectItHasNoParentAndStays) {
  AudioEffect stored(nullptr);
  MutableParameter& parameter = addParameter<MutableParameter>(stored, text("a"));
  EXPECT_EQ(parameter.parent(), nullptr);
  parameter.destroy();
  EXPECT_EQ(stored.numParameter(), 1u);
  EXPECT_TRUE(parameter.setName(KOSTYLE_TEXT("b")));
  EXPECT_THAT(parameterNames(stored), ElementsAre("b"));
  EXPECT_EQ(stored.parameter(0), nullptr);
}

TEST_F(MutableParameterTest, SeesItsEditableSiblingsOnly) {
  IMutableParameter& a = add("a");
  addParameter<Parameter>(effect_, text("b"));
  IMutableParameter& c = add("c");
  IMutableParameter& d = add("d");
  EXPECT_EQ(a.next(), nullptr);
  EXPECT_EQ(c.prev(), nullptr);
  EXPECT_EQ(c.next(), &d);
  EXPECT_EQ(effect_.parameter(1), nullptr);
}

}  // namespace
}  // namespace Tesk::KoStyle
