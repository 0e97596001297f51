// Building, saving and overwriting without further care.
#include <algorithm>

#include "cpp/cpp_host.h"

namespace {

using namespace kostyle;
using test::utf8Of;
using testing::ElementsAre;

struct CppMutableStyle : testing::Test {
  test::CppHost host;
  MutableStyle style = host.manager.createMutableStyle();
};

TEST_F(CppMutableStyle, TakesAttributesOnceAndGivesThemBack) {
  EXPECT_EQ(style.type(), KOSTYLE_KIND_MUTABLE);
  EXPECT_TRUE(style.setName("N\xC3\xA4me"));
  EXPECT_FALSE(style.setName(""));
  EXPECT_FALSE(style.setName(std::string(101, 'n')));
  EXPECT_TRUE(style.addLanguage(2) && style.addLanguage(1));
  EXPECT_FALSE(style.addLanguage(1) || style.addLanguage(5));
  EXPECT_TRUE(style.addSingerGroup("g") && style.addSingerID("0123456789abcdef"));
  EXPECT_FALSE(style.addSingerGroup("g") || style.addSingerID("short"));
  EXPECT_TRUE(style.addGenre("Pop") && style.addGenre(KOSTYLE_TEXT("Folk")));
  EXPECT_TRUE(style.addSubGenre("s") && style.addColor("red"));
  EXPECT_FALSE(style.addGenre("Pop") || style.addSubGenre("") || style.addColor("red"));
  EXPECT_EQ(style.name(), "N\xC3\xA4me");
  EXPECT_THAT(std::vector<int>(style.languages().begin(), style.languages().end()), ElementsAre(1, 2));
  EXPECT_THAT(utf8Of(style.singerGroups()), ElementsAre("g"));
  EXPECT_THAT(utf8Of(style.singerIDs()), ElementsAre("0123456789abcdef"));
  EXPECT_THAT(utf8Of(style.genres()), ElementsAre("Folk", "Pop"));
  EXPECT_THAT(utf8Of(style.subGenres()), ElementsAre("s"));
  EXPECT_THAT(utf8Of(style.colors()), ElementsAre("red"));
}

TEST_F(CppMutableStyle, DeletesAttributesThatItHas) {
  style.addLanguage(1), style.addSingerGroup("g"), style.addSingerID("0123456789abcdef");
  style.addGenre("Pop"), style.addSubGenre("s"), style.addColor("red");
  EXPECT_TRUE(style.deleteLanguage(1) && style.deleteSingerGroup("g"));
  EXPECT_TRUE(style.deleteSingerID("0123456789abcdef") && style.deleteGenre(style.genres()[0]));
  EXPECT_TRUE(style.deleteSubGenre("s") && style.deleteColor("red"));
  EXPECT_FALSE(style.deleteLanguage(1) || style.deleteSingerGroup("g") || style.deleteGenre("Pop"));
  EXPECT_FALSE(style.deleteSingerID("x") || style.deleteSubGenre("s") || style.deleteColor("red"));
  EXPECT_TRUE(style.languages().empty() && style.genres().empty() && style.colors().empty());
}

TEST_F(CppMutableStyle, OrdersItsEffects) {
  const MutableAudioEffect b = style.appendAudioEffect("B");
  const MutableAudioEffect a = style.insertAudioEffect(0, "A");
  const MutableMidiEffect m = style.appendMidiEffect("A");
  EXPECT_FALSE(style.appendAudioEffect("A"));
  EXPECT_FALSE(style.insertMidiEffect(0, ""));
  EXPECT_EQ(a.next(), b);
  EXPECT_EQ(b.previous(), a);
  EXPECT_FALSE(a.previous());
  EXPECT_FALSE(m.next());
  EXPECT_FALSE(m.previous());
  EXPECT_EQ(a.type(), KOSTYLE_EFFECT_AUDIO);
  EXPECT_TRUE(style.has(a) && style.has(m));
  EXPECT_TRUE(a.move(7));
  EXPECT_EQ(style.audioEffects()[1], a);
  EXPECT_FALSE(MutableEffect().move(0));
  b.destroy();
  EXPECT_FALSE(style.has(b));
  EXPECT_EQ(style.audioEffects().size(), 1U);
  EXPECT_EQ(a.style(), style);
}

TEST_F(CppMutableStyle, GivesItsParametersValuesOfEveryType) {
  const MutableEffect effect = style.appendAudioEffect("E");
  const MutableParameter number = effect.addParameter("b");
  const MutableParameter text = effect.addParameter("a", "x");
  EXPECT_FALSE(effect.addParameter("a", 1));
  EXPECT_FALSE(effect.addParameter(""));
  EXPECT_EQ(number.value(), ParameterValue(0));
  number.setValue(1.5F);
  EXPECT_EQ(number.value(), ParameterValue(1.5F));
  number.setValue(text.value());
  EXPECT_EQ(std::get<Text>(number.value()), "x");
  number.setValue(std::get<Text>(number.value()));
  EXPECT_EQ(std::get<Text>(number.value()), "x");
  number.setValue(KOSTYLE_TEXT("y"));
  EXPECT_EQ(std::get<Text>(number.value()), "y");
  number.setValue(ParameterValue(3));
  EXPECT_EQ(number.value(), ParameterValue(3));
  EXPECT_EQ(text.next(), number);
  EXPECT_EQ(number.previous(), text);
  EXPECT_EQ(number.effect(), effect);
  EXPECT_TRUE(effect.has(number));
  EXPECT_TRUE(number.setName("c"));
  EXPECT_FALSE(number.setName(""));
  EXPECT_EQ(number.name(), "c");
  text.destroy();
  EXPECT_EQ(effect.parameters()[0], number);
}

TEST_F(CppMutableStyle, IsSavedInEitherLayout) {
  const UserStyle compact = test::valueOf(host.createMutableStyle().save());
  const UserStyle pretty = test::valueOf(host.createMutableStyle().save(Layout::pretty));
  EXPECT_EQ(host.manager.userStyles().size(), 2U);
  const std::string dense = test::readFile(compact.path());
  const std::string airy = test::readFile(pretty.path());
  EXPECT_EQ(std::count(dense.begin(), dense.end(), '\n'), 0);
  EXPECT_GT(std::count(airy.begin(), airy.end(), '\n'), 3);
}

TEST_F(CppMutableStyle, EndsWhenItIsSaved) {
  const MutableStyle saved = host.createMutableStyle();
  EXPECT_TRUE(saved.save());
  EXPECT_FALSE(host.manager.has(saved));
}

TEST_F(CppMutableStyle, ThatCannotBeSavedGivesCodeAndSentenceAndStays) {
  EXPECT_EQ(style.save().code(), KOSTYLE_ERROR_ARGUMENT_MISSING);
  style.setName("N");
  const auto saved = style.save();
  EXPECT_EQ(saved.code(), KOSTYLE_ERROR_NO_EFFECT);
  EXPECT_STREQ(saved.sentence(), "the style has no effect");
  EXPECT_TRUE(host.manager.has(style));
  EXPECT_EQ(MutableStyle().save().code(), KOSTYLE_ERROR_INVALID_HANDLE);
}

TEST_F(CppMutableStyle, OverwritesAUserStyle) {
  const UserStyle target = host.addUserStyle("u");
  const UserStyle written = test::valueOf(host.createMutableStyle().overwrite(target, Layout::pretty));
  EXPECT_EQ(written, target);
  EXPECT_EQ(target.name(), "New");
  EXPECT_NE(host.bytes("u").find("\n    \"name\": \"New\""), std::string::npos);
}

TEST_F(CppMutableStyle, ThatCannotOverwriteGivesCodeAndStays) {
  const test::CppHost other;
  const MutableStyle unsaved = host.createMutableStyle();
  EXPECT_EQ(unsaved.overwrite(other.addUserStyle("x")).code(), KOSTYLE_ERROR_USER_STYLE_NOT_FOUND);
  EXPECT_EQ(unsaved.overwrite(UserStyle()).code(), KOSTYLE_ERROR_ARGUMENT_MISSING);
  const UserStyle target = host.addUserStyle("u");
  test::fs::remove(host.user / "u.kostyle");
  EXPECT_EQ(unsaved.overwrite(target).code(), KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  EXPECT_EQ(MutableStyle().overwrite(target).code(), KOSTYLE_ERROR_INVALID_HANDLE);
  EXPECT_TRUE(host.manager.has(unsaved));
}

}  // namespace
