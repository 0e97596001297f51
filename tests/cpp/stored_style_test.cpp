// Reading system and user styles, and what is done to user styles as a whole.
#include "cpp/cpp_host.h"

namespace {

using namespace kostyle;
using test::utf8Of;
using testing::ElementsAre;

struct CppStoredStyle : testing::Test {
  test::CppHost host;
  UserStyle style = host.addUserStyle("w", test::wholeDocument("w"));
};

TEST_F(CppStoredStyle, HasItsAttributes) {
  EXPECT_EQ(style.type(), KOSTYLE_KIND_USER);
  EXPECT_EQ(style.id(), "w");
  EXPECT_EQ(style.name(), "Whole");
  EXPECT_EQ(style.path(), host.user / "w.kostyle");
  EXPECT_EQ(style.pathText().utf8(), (host.user / "w.kostyle").u8string());
  EXPECT_TRUE(style.vendor().empty());
  EXPECT_THAT(std::vector<int>(style.languages().begin(), style.languages().end()), ElementsAre(0, 3));
  EXPECT_THAT(utf8Of(style.singerGroups()), ElementsAre("a", "b"));
  EXPECT_THAT(utf8Of(style.singerIDs()), ElementsAre("0123456789abcdef"));
  EXPECT_THAT(utf8Of(style.genres()), ElementsAre("Folk", "Pop"));
  EXPECT_THAT(utf8Of(style.subGenres()), ElementsAre("s"));
  EXPECT_THAT(utf8Of(style.colors()), ElementsAre("red"));
  EXPECT_EQ(
      host.addSystemStyle("v", test::document("v", "V", R"("p":1)", R"("vendor":"Maker")")).vendor(),
      "Maker");
}

TEST_F(CppStoredStyle, HasItsChains) {
  const AudioEffect first = style.audioEffects()[0];
  EXPECT_EQ(first.id(), "Z");
  EXPECT_EQ(first.type(), KOSTYLE_EFFECT_AUDIO);
  EXPECT_EQ(first.next().id(), "A");
  EXPECT_TRUE(first.next().previous() == first);
  EXPECT_FALSE(first.previous());
  EXPECT_FALSE(first.next().next());
  const MidiEffect midi = style.midiEffects()[0];
  EXPECT_EQ(midi.type(), KOSTYLE_EFFECT_MIDI);
  EXPECT_FALSE(midi.next());
  EXPECT_FALSE(midi.previous());
  EXPECT_TRUE(first.style() == style && midi.style() == style);
  EXPECT_TRUE(style.has(first) && style.has(midi));
  EXPECT_FALSE(style.has(AudioEffect()) || style.has(MidiEffect()));
}

TEST_F(CppStoredStyle, HasParametersOfEveryType) {
  const auto parameters = style.audioEffects()[0].parameters();
  EXPECT_EQ(parameters[0].value(), ParameterValue(Text()));
  EXPECT_TRUE(std::signbit(std::get<float>(parameters[1].value())));
  EXPECT_EQ(parameters[2].value(), ParameterValue(-7));
  EXPECT_EQ(std::get<Text>(parameters[3].value()), "text");
  EXPECT_EQ(parameters[3].type(), KOSTYLE_PARAMETER_STRING);
  EXPECT_EQ(parameters[2].next(), parameters[3]);
  EXPECT_EQ(parameters[3].previous(), parameters[2]);
  EXPECT_FALSE(parameters[3].next());
  EXPECT_FALSE(parameters[0].previous());
  EXPECT_EQ(parameters[0].effect(), style.audioEffects()[0]);
  EXPECT_TRUE(style.audioEffects()[0].has(parameters[0]));
  EXPECT_FALSE(style.audioEffects()[1].has(parameters[0]));
}

TEST_F(CppStoredStyle, KnowsItsNeighbours) {
  host.addUserStyle("u");
  const auto styles = host.manager.userStyles();
  EXPECT_EQ(styles[0].next(), styles[1]);
  EXPECT_EQ(styles[1].previous(), styles[0]);
  EXPECT_FALSE(styles[0].previous());
  EXPECT_FALSE(styles[1].next());
  const SystemStyle system = host.addSystemStyle("s", test::document("s", "S"));
  EXPECT_FALSE(system.next());
  EXPECT_FALSE(system.previous());
}

TEST_F(CppStoredStyle, IsRemovedWithItsFile) {
  EXPECT_TRUE(style.remove());
  EXPECT_FALSE(host.manager.has(style));
  EXPECT_TRUE(test::fs::is_empty(host.user));
}

TEST_F(CppStoredStyle, ThatCannotBeRemovedStays) {
  test::fs::remove(host.user / "w.kostyle");
  EXPECT_EQ(style.remove().code(), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_TRUE(host.manager.has(style));
  EXPECT_EQ(UserStyle().remove().code(), KOSTYLE_ERROR_INVALID_HANDLE);
}

TEST(CppEmptyView, GivesWhatANullHandleGives) {
  EXPECT_FALSE(UserStyle());
  EXPECT_EQ(UserStyle().type(), KOSTYLE_KIND_NONE);
  EXPECT_TRUE(UserStyle().name().empty() && UserStyle().id().empty() && UserStyle().path().empty());
  EXPECT_FALSE(UserStyle().next());
  EXPECT_FALSE(UserStyle().manager());
  EXPECT_EQ(AudioEffect().type(), KOSTYLE_EFFECT_NONE);
  EXPECT_TRUE(AudioEffect().id().empty());
  EXPECT_EQ(StoredParameter().type(), KOSTYLE_PARAMETER_NONE);
  EXPECT_EQ(StoredParameter().value(), ParameterValue(Text()));
  EXPECT_FALSE(StoredParameter().effect());
}

}  // namespace
