// Parameters of mutable styles.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_value.h"
#include "support/style_walk.h"

namespace {

using test::ParameterValue;
using test::Text;
using test::text;
using test::utf8;
using test::valueOf;
using testing::ElementsAre;

class MutableParameter : public testing::Test {
 protected:
  KoStyleParameter* add(const char* name) {
    return MutableEffect_addParameter(effect, text(name).c_str());
  }
  std::vector<std::string> names() {
    std::vector<std::string> result;
    for (std::size_t i = 0; KoStyleParameter* each = MutableEffect_parameter(effect, i); ++i)
      result.push_back(utf8(Parameter_name(each)));
    return result;
  }

  test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  KoStyleEffect* effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
};

TEST_F(MutableParameter, StartsAsTheInteger0) {
  KoStyleParameter* parameter = add("p");
  ASSERT_NE(parameter, nullptr);
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofInt(text("p"), 0));
  EXPECT_EQ(MutableParameter_parent(parameter), effect);
}

TEST_F(MutableParameter, HasNoNeighboursWhenItIsAlone) {
  KoStyleParameter* parameter = add("p");
  EXPECT_EQ(MutableParameter_next(parameter), nullptr);
  EXPECT_EQ(MutableParameter_prev(parameter), nullptr);
}

TEST_F(MutableParameter, StandsInTheOrderOfNames) {
  for (const char* name : {"b", "c", "a", "ab", "B", "aa", ""}) add(name);
  EXPECT_THAT(names(), ElementsAre("B", "a", "aa", "ab", "b", "c"));
  std::vector<std::string> walked;
  for (KoStyleParameter* each = MutableEffect_parameter(effect, 0); each;
       each = MutableParameter_next(each))
    walked.push_back(utf8(Parameter_name(each)));
  EXPECT_EQ(walked, names());
  test::expectEffectWalks(style, effect);
}

TEST_F(MutableParameter, IsOrderedByUnitAndNotByCodePoint) {
  for (const char* name : {u8"\uFFFD", u8"\U0001D11E", u8"é"}) add(name);
  EXPECT_THAT(names(), ElementsAre(u8"é", u8"\U0001D11E", u8"\uFFFD"));
  EXPECT_EQ(MutableEffect_parameter(effect, SIZE_MAX), nullptr);
}

TEST_F(MutableParameter, HoldsOneValueAtATime) {
  KoStyleParameter* parameter = add("p");
  MutableParameter_setValueInt(parameter, INT_MIN);
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofInt(text("p"), INT_MIN));
  MutableParameter_setValueFloat(parameter, 2.5f);
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofFloat(text("p"), 2.5f));
  MutableParameter_setValueFloat(parameter, -0.0f);
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofFloat(text("p"), -0.0f));
  MutableParameter_setValueString(parameter, KOSTYLE_TEXT("text"));
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofString(text("p"), text("text")));
  MutableParameter_setValueInt(parameter, INT_MAX);
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofInt(text("p"), INT_MAX));
  MutableParameter_setValueString(parameter, KOSTYLE_TEXT("again"));
  MutableParameter_setValueFloat(parameter, -0.0f);
  EXPECT_EQ(valueOf(parameter), ParameterValue::ofFloat(text("p"), -0.0f));
}

TEST_F(MutableParameter, TakesAnEmptyAndANullTextAsValue) {
  for (const KoStyleChar* value : {KOSTYLE_TEXT(""), static_cast<const KoStyleChar*>(nullptr)}) {
    KoStyleParameter* parameter = add(value ? "empty" : "null");
    MutableParameter_setValueInt(parameter, 5);
    MutableParameter_setValueString(parameter, value);
    EXPECT_EQ(Parameter_type(parameter), KOSTYLE_PARAMETER_STRING);
    EXPECT_EQ(utf8(Parameter_valueString(parameter)), "");
    EXPECT_EQ(Parameter_valueInt(parameter), 0);
  }
}

TEST_F(MutableParameter, KeepsNumbersThatAreNone) {
  KoStyleParameter* parameter = add("p");
  MutableParameter_setValueFloat(parameter, std::numeric_limits<float>::infinity());
  EXPECT_EQ(Parameter_valueFloat(parameter), std::numeric_limits<float>::infinity());
  MutableParameter_setValueFloat(parameter, std::numeric_limits<float>::quiet_NaN());
  EXPECT_TRUE(std::isnan(Parameter_valueFloat(parameter)));
  EXPECT_EQ(Parameter_type(parameter), KOSTYLE_PARAMETER_FLOAT);
}

TEST_F(MutableParameter, RefusesANullAndAnEmptyName) {
  KoStyleParameter* parameter = add("p");
  EXPECT_FALSE(MutableParameter_setName(parameter, nullptr));
  EXPECT_FALSE(MutableParameter_setName(parameter, KOSTYLE_TEXT("")));
  EXPECT_EQ(utf8(Parameter_name(parameter)), "p");
}

TEST_F(MutableParameter, TakesTheNameOfASibling) {
  KoStyleParameter* a = add("a");
  KoStyleParameter* b = add("b");
  EXPECT_TRUE(MutableParameter_setName(b, KOSTYLE_TEXT("a")));
  EXPECT_THAT(names(), ElementsAre("a", "a"));
  EXPECT_EQ(MutableEffect_addParameter(effect, KOSTYLE_TEXT("a")), nullptr);
  EXPECT_NE(add("b"), nullptr);
  MutableParameter_destroy(a);
  EXPECT_EQ(add("a"), nullptr);
  MutableParameter_destroy(b);
  EXPECT_NE(add("a"), nullptr);
}

TEST_F(MutableParameter, KeepsItsPlaceWhenRenamedUntilTheNextIsAdded) {
  for (const char* name : {"b", "c", "a"}) add(name);
  KoStyleParameter* first = MutableEffect_parameter(effect, 0);
  ASSERT_TRUE(MutableParameter_setName(first, KOSTYLE_TEXT("z")));
  EXPECT_THAT(names(), ElementsAre("z", "b", "c"));
  EXPECT_EQ(MutableParameter_prev(first), nullptr);
  EXPECT_EQ(MutableEffect_addParameter(effect, KOSTYLE_TEXT("z")), nullptr);
  EXPECT_THAT(names(), ElementsAre("z", "b", "c"));
  add("d");
  EXPECT_THAT(names(), ElementsAre("b", "c", "d", "z"));
  EXPECT_EQ(MutableEffect_parameter(effect, 3), first);
  test::expectEffectWalks(style, effect);
}

TEST_F(MutableParameter, StaysWhenRenamedAndAnotherIsDestroyed) {
  for (const char* name : {"a", "b", "c"}) add(name);
  MutableParameter_setName(MutableEffect_parameter(effect, 0), KOSTYLE_TEXT("z"));
  MutableParameter_destroy(MutableEffect_parameter(effect, 1));
  EXPECT_THAT(names(), ElementsAre("z", "c"));
}

TEST_F(MutableParameter, KeepsItsPlaceAmongThoseOfItsName) {
  for (const char* name : {"a", "b", "c", "d"}) add(name);
  KoStyleParameter* first = MutableEffect_parameter(effect, 0);
  KoStyleParameter* second = MutableEffect_parameter(effect, 1);
  KoStyleParameter* last = MutableEffect_parameter(effect, 3);
  MutableParameter_setName(last, KOSTYLE_TEXT("b"));
  MutableParameter_setName(first, KOSTYLE_TEXT("b"));
  add("e");
  EXPECT_THAT(names(), ElementsAre("b", "b", "b", "c", "e"));
  EXPECT_EQ(MutableEffect_parameter(effect, 0), first);
  EXPECT_EQ(MutableEffect_parameter(effect, 1), second);
  EXPECT_EQ(MutableEffect_parameter(effect, 2), last);
}

TEST_F(MutableParameter, IsForgottenWhenItIsRenamedAndDestroyed) {
  KoStyleParameter* a = add("a");
  add("b");
  MutableParameter_setName(a, KOSTYLE_TEXT("z"));
  MutableParameter_destroy(a);
  EXPECT_NE(add("a"), nullptr);
  EXPECT_NE(add("z"), nullptr);
  EXPECT_THAT(names(), ElementsAre("a", "b", "z"));
}

TEST_F(MutableParameter, LeavesItsNeighboursAdjacentWhenDestroyed) {
  KoStyleParameter* a = add("a");
  KoStyleParameter* b = add("b");
  KoStyleParameter* c = add("c");
  MutableParameter_destroy(b);
  EXPECT_EQ(MutableParameter_next(a), c);
  EXPECT_EQ(MutableParameter_prev(c), a);
  EXPECT_FALSE(Effect_hasParameter(effect, b));
  EXPECT_EQ(Effect_numParameter(effect), 2u);
  MutableParameter_destroy(c);
  MutableParameter_destroy(a);
  EXPECT_EQ(Effect_numParameter(effect), 0u);
  EXPECT_NE(add("b"), nullptr);
}

TEST_F(MutableParameter, KeepsLongNamesAndTexts) {
  const Text longText(100000, KoStyleChar('x'));
  KoStyleParameter* parameter = MutableEffect_addParameter(effect, longText.c_str());
  MutableParameter_setValueString(parameter, longText.c_str());
  EXPECT_EQ(Parameter_name(parameter), longText);
  EXPECT_EQ(Parameter_valueString(parameter), longText);
}

TEST_F(MutableParameter, KeepsLoneSurrogates) {
  const KoStyleChar lone[] = {0xD800, 'x', 0xDC00, 0};
  KoStyleParameter* parameter = MutableEffect_addParameter(effect, lone);
  MutableParameter_setValueString(parameter, lone);
  EXPECT_EQ(Parameter_name(parameter), Text(lone));
  EXPECT_TRUE(MutableParameter_setName(parameter, lone + 2));
  EXPECT_EQ(Parameter_name(parameter), Text(lone + 2));
  EXPECT_EQ(Parameter_valueString(parameter), Text(lone));
}

}  // namespace
