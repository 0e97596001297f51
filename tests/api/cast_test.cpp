// The downcast of the checked exports against the language's own.
#include "api/cast.h"

#include <gmock/gmock.h>

#include <cstddef>

#include "api/manager_of_styles.h"

namespace Tesk::KoStyle {
namespace {

class Cast : public ManagerOfStyles {};

// Gives how many of the targets the handle is.
template <class... Targets, class Base>
std::size_t expectLikeDynamicCast(Base* handle) {
  std::size_t matches = 0;
  const auto check = [&](auto* casted, auto* expected) {
    EXPECT_EQ(casted, expected);
    matches += casted != nullptr;
  };
  (check(cast<Targets>(handle), dynamic_cast<Targets*>(handle)), ...);
  return matches;
}

std::size_t castStyle(IStyleBase* style) {
  return expectLikeDynamicCast<IStyle, ISystemStyle, IUserStyle, IMutableStyle>(style);
}

std::size_t castEffect(IEffectBase* effect) {
  return expectLikeDynamicCast<IEffect, IAudioEffect, IMidiEffect, IMutableEffect, IMutableAudioEffect,
                               IMutableMidiEffect>(effect);
}

std::size_t castParameter(IParameterBase* parameter) {
  return expectLikeDynamicCast<IParameter, IMutableParameter>(parameter);
}

TEST_F(Cast, GivesTheStyleThatTheHandleIs) {
  EXPECT_EQ(castStyle(system()), 2u);
  EXPECT_EQ(castStyle(user()), 2u);
  EXPECT_EQ(castStyle(mutableStyle()), 1u);
}

TEST_F(Cast, GivesTheEffectThatTheHandleIs) {
  EXPECT_EQ(castEffect(user()->audioEffect(3)), 2u);
  EXPECT_EQ(castEffect(system()->midiEffect(3)), 2u);
  EXPECT_EQ(castEffect(mutableStyle()->audioEffect(3)), 2u);
  EXPECT_EQ(castEffect(mutableStyle()->midiEffect(3)), 2u);
}

TEST_F(Cast, GivesTheParameterThatTheHandleIs) {
  EXPECT_EQ(castParameter(user()->audioEffect(3)->parameter(1)), 1u);
  EXPECT_EQ(castParameter(mutableStyle()->midiEffect(3)->parameter(0)), 1u);
}

TEST_F(Cast, GivesNullForNull) {
  EXPECT_EQ(castStyle(nullptr), 0u);
  EXPECT_EQ(castEffect(nullptr), 0u);
  EXPECT_EQ(castParameter(nullptr), 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
