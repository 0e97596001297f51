// Handles whose objects are gone. The functions below only compare them; reading one would be reading
// freed memory.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <vector>

#include "support/host.h"

namespace {

class GoneHandle : public testing::Test {
 protected:
  void expectGone(KoStyleStyle* style) {
    EXPECT_FALSE(StyleManager_hasSystemStyle(host.manager, style));
    EXPECT_FALSE(StyleManager_hasUserStyle(host.manager, style));
    EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, style));
  }
  void expectGone(KoStyleStyle* style, KoStyleEffect* effect) {
    EXPECT_FALSE(Style_hasAudioEffect(style, effect));
    EXPECT_FALSE(Style_hasMidiEffect(style, effect));
  }

  test::Host host;
};

TEST_F(GoneHandle, OfAManagerIsNoManager) {
  std::vector<KoStyleManager*> gone;
  for (int i = 0; i < 10; ++i) {
    const test::Manager manager(host.system, host.user);
    gone.push_back(manager);
  }
  for (KoStyleManager* manager : gone) EXPECT_FALSE(HasStyleManager(manager));
  EXPECT_TRUE(HasStyleManager(host.manager));
}

TEST_F(GoneHandle, OfAStyleThatWasReadAgainIsNoStyle) {
  KoStyleStyle* system = host.addSystemStyle("s");
  KoStyleStyle* user = host.addUserStyle("u");
  test::fs::remove(host.system / "s.kostyle");
  test::fs::remove(host.user / "u.kostyle");
  ASSERT_EQ(StyleManager_readSystemStyles(host.manager), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  expectGone(system);
  expectGone(user);
}

TEST_F(GoneHandle, OfARemovedStyleIsNoStyle) {
  KoStyleStyle* user = host.addUserStyle("u");
  ASSERT_EQ(UserStyle_remove(user), KOSTYLE_OK);
  expectGone(user);
}

TEST_F(GoneHandle, OfADestroyedMutableStyleIsNoStyle) {
  KoStyleStyle* style = host.createMutableStyle("m");
  MutableStyle_destroy(style);
  expectGone(style);
}

TEST_F(GoneHandle, OfASavedMutableStyleIsNoMutableStyle) {
  KoStyleStyle* style = host.createMutableStyle("m");
  KoStyleStyle* saved = test::Host::save(style);
  EXPECT_TRUE(StyleManager_hasUserStyle(host.manager, saved));
  EXPECT_FALSE(StyleManager_hasSystemStyle(host.manager, style));
  EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, style));
}

TEST_F(GoneHandle, OfAnOverwritingMutableStyleIsNoStyle) {
  KoStyleStyle* user = host.addUserStyle("u");
  KoStyleStyle* style = host.createMutableStyle("m");
  int error = -1;
  ASSERT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("u"), false, &error), user);
  expectGone(style);
  EXPECT_TRUE(StyleManager_hasUserStyle(host.manager, user));
}

TEST_F(GoneHandle, OfAnotherManagersStyleIsNoStyleWhenThatManagerIsGone) {
  KoStyleStyle* style = nullptr;
  KoStyleStyle* unsaved = nullptr;
  {
    const test::Host other;
    style = other.addUserStyle("u");
    unsaved = StyleManager_createMutableStyle(other.manager);
  }
  expectGone(style);
  expectGone(unsaved);
}

TEST_F(GoneHandle, OfADestroyedEffectIsNoEffect) {
  KoStyleStyle* style = host.createMutableStyle("m");
  KoStyleEffect* audio = MutableStyle_audioEffect(style, 0);
  KoStyleEffect* midi = MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("E"));
  MutableEffect_destroy(audio);
  MutableEffect_destroy(midi);
  expectGone(style, audio);
  expectGone(style, midi);
}

TEST_F(GoneHandle, OfAnOverwrittenStylesEffectIsNoEffect) {
  KoStyleStyle* user = host.addUserStyle("u");
  KoStyleEffect* old = Style_audioEffect(user, 0);
  ASSERT_TRUE(Style_hasAudioEffect(user, old));
  KoStyleStyle* style = host.createMutableStyle("m");
  KoStyleEffect* written = MutableStyle_audioEffect(style, 0);
  int error = -1;
  ASSERT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("u"), false, &error), user);
  KoStyleEffect* present = Style_audioEffect(user, 0);
  ASSERT_EQ(Style_numAudioEffect(user), 1u);
  for (KoStyleEffect* gone : {old, written}) {
    // An address may be used again by then.
    EXPECT_EQ(Style_hasAudioEffect(user, gone), gone == present);
    EXPECT_FALSE(Style_hasMidiEffect(user, gone));
  }
  EXPECT_TRUE(Style_hasAudioEffect(user, present));
}

TEST_F(GoneHandle, OfADestroyedParameterIsNoParameter) {
  KoStyleStyle* style = host.createMutableStyle("m");
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  KoStyleParameter* parameter = MutableEffect_parameter(effect, 0);
  MutableParameter_destroy(parameter);
  EXPECT_FALSE(Effect_hasParameter(effect, parameter));
}

TEST_F(GoneHandle, OfAParameterThatWentWithItsEffectIsNoParameter) {
  KoStyleStyle* style = host.createMutableStyle("m");
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  KoStyleParameter* parameter = MutableEffect_parameter(effect, 0);
  KoStyleEffect* other = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("other"));
  MutableEffect_destroy(effect);
  EXPECT_FALSE(Effect_hasParameter(other, parameter));
}

}  // namespace
