// Texts that the library returned, passed back to change their own object.
#include <gmock/gmock.h>

#include "chains.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/mutable_style.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

// Longer than any text that is stored inside its object.
const Text lengthy = text("a text that is longer than thirty-two characters");

class TextAlias : public testing::TestWithParam<Text> {
 protected:
  StyleManager manager_ = detachedManager();
  IMutableStyle& style_ = *manager_.createMutableStyle();
};

INSTANTIATE_TEST_SUITE_P(Short, TextAlias, testing::Values(text("x")));
INSTANTIATE_TEST_SUITE_P(Long, TextAlias, testing::Values(lengthy));

TEST_P(TextAlias, AStyleTakesItsOwnName) {
  style_.setName(GetParam().c_str());
  EXPECT_TRUE(style_.setName(style_.name()));
  EXPECT_EQ(style_.name(), GetParam());
}

TEST_P(TextAlias, AStyleTakesTheEndOfItsOwnName) {
  style_.setName((text("prefix") + GetParam()).c_str());
  EXPECT_TRUE(style_.setName(style_.name() + 6));
  EXPECT_EQ(style_.name(), GetParam());
}

TEST_P(TextAlias, AValueIsDeletedByItsOwnText) {
  style_.addGenre(GetParam().c_str());
  style_.addSubGenre(GetParam().c_str());
  style_.addColor(GetParam().c_str());
  style_.addSingerGroup(GetParam().c_str());
  EXPECT_TRUE(style_.deleteGenre(style_.genre(0)));
  EXPECT_TRUE(style_.deleteSubGenre(style_.subGenre(0)));
  EXPECT_TRUE(style_.deleteColor(style_.color(0)));
  EXPECT_TRUE(style_.deleteSingerGroup(style_.singerGroup(0)));
  EXPECT_EQ(style_.numGenre() + style_.numSubGenre() + style_.numColor() + style_.numSingerGroup(), 0u);
}

TEST_P(TextAlias, AValueIsRefusedBesideItself) {
  style_.addGenre(GetParam().c_str());
  EXPECT_FALSE(style_.addGenre(style_.genre(0)));
  EXPECT_EQ(style_.numGenre(), 1u);
  EXPECT_EQ(style_.genre(0), GetParam());
}

TEST_P(TextAlias, AValueGoesOverToAnotherList) {
  style_.addGenre(GetParam().c_str());
  EXPECT_TRUE(style_.addSubGenre(style_.genre(0)));
  EXPECT_TRUE(style_.deleteGenre(style_.subGenre(0)));
  EXPECT_EQ(style_.subGenre(0), GetParam());
}

TEST_P(TextAlias, TheEndOfAValueIsAddedToItsOwnList) {
  style_.addColor((text("z") + GetParam()).c_str());
  EXPECT_TRUE(style_.addColor(style_.color(0) + 1));
  EXPECT_EQ(style_.color(0), GetParam());
  EXPECT_EQ(style_.color(1), text("z") + GetParam());
}

TEST_F(TextAlias, ASingerIdIsDeletedByItsOwnText) {
  style_.addSingerID(KOSTYLE_TEXT("0123456789abcdef"));
  EXPECT_FALSE(style_.addSingerID(style_.singerID(0)));
  EXPECT_TRUE(style_.deleteSingerID(style_.singerID(0)));
  EXPECT_EQ(style_.numSingerID(), 0u);
}

TEST_P(TextAlias, AnEffectsIdMakesAnEffectOfTheOtherChain) {
  const IMutableAudioEffect* audio = style_.insertAudioEffect(0, GetParam().c_str());
  EXPECT_EQ(style_.insertAudioEffect(0, audio->id()), nullptr);
  const IMutableMidiEffect* midi = style_.insertMidiEffect(0, audio->id());
  ASSERT_NE(midi, nullptr);
  EXPECT_EQ(midi->id(), GetParam());
}

class ParameterTextAlias : public testing::TestWithParam<Text> {
 protected:
  MutableAudioEffect effect_{nullptr};
  IMutableParameter& parameter_ = *effect_.addParameter(GetParam().c_str());
};

INSTANTIATE_TEST_SUITE_P(Short, ParameterTextAlias, testing::Values(text("x")));
INSTANTIATE_TEST_SUITE_P(Long, ParameterTextAlias, testing::Values(lengthy));

TEST_P(ParameterTextAlias, AParameterTakesItsOwnName) {
  EXPECT_TRUE(parameter_.setName(parameter_.name()));
  EXPECT_EQ(parameter_.name(), GetParam());
  EXPECT_EQ(effect_.addParameter(parameter_.name()), nullptr);
}

TEST_P(ParameterTextAlias, AParameterTakesItsOwnValueAsItsName) {
  parameter_.setValueString(lengthy.c_str());
  EXPECT_TRUE(parameter_.setName(parameter_.valueString()));
  EXPECT_EQ(parameter_.name(), lengthy);
  EXPECT_EQ(effect_.addParameter(lengthy.c_str()), nullptr);
}

TEST_P(ParameterTextAlias, AParameterTakesItsOwnValue) {
  parameter_.setValueString(GetParam().c_str());
  parameter_.setValueString(parameter_.valueString());
  EXPECT_EQ(parameter_.valueString(), GetParam());
  parameter_.setValueString(parameter_.valueString() + GetParam().size() - 1);
  EXPECT_EQ(parameter_.valueString(), GetParam().substr(GetParam().size() - 1));
}

TEST_P(ParameterTextAlias, AParameterTakesItsOwnNameAsItsValue) {
  parameter_.setValueString(parameter_.name());
  EXPECT_EQ(parameter_.valueString(), GetParam());
}

TEST_P(ParameterTextAlias, AParametersValueNamesItsSibling) {
  parameter_.setValueString(KOSTYLE_TEXT("sibling"));
  const IMutableParameter* sibling = effect_.addParameter(parameter_.valueString());
  ASSERT_NE(sibling, nullptr);
  EXPECT_EQ(utf8(sibling->name()), "sibling");
}

}  // namespace
}  // namespace Tesk::KoStyle
