// Saving mutable styles as new user styles.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_value.h"
#include "support/style_walk.h"

namespace {

using test::ParameterValue;
using test::StyleValue;
using test::text;
using test::utf8;
using test::valueOf;
using testing::ElementsAre;
using testing::HasSubstr;

/// The text with an h for each lower-case hexadecimal digit.
std::string shapeOf(std::string id) {
  const std::string digits = "0123456789abcdef";
  for (char& each : id) {
    if (digits.find(each) != std::string::npos) each = 'h';
  }
  return id;
}

class Save : public testing::Test {
 protected:
  KoStyleStyle* reread(KoStyleStyle* saved) {
    const std::string id = utf8(Style_id(saved));
    EXPECT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
    return host.userStyle(id);
  }

  /// Saves, and expects parameters in the file, and in the style that stays and in the one reread.
  void expectSaved(KoStyleStyle* style, const std::string& written,
                   const std::vector<ParameterValue>& parameters) {
    KoStyleStyle* saved = test::Host::save(style);
    EXPECT_THAT(test::readFile(test::Host::fileOf(saved)), HasSubstr(written));
    EXPECT_EQ(valueOf(saved).chains[0][0].parameters, parameters);
    EXPECT_EQ(valueOf(reread(saved)).chains[0][0].parameters, parameters);
  }

  test::Host host;
  KoStyleManager* manager = host.manager;
};

TEST_F(Save, MakesOneFileNamedByTheIdentifier) {
  KoStyleStyle* saved = test::Host::save(host.createMutableStyle("N"));
  const std::string id = utf8(Style_id(saved));
  EXPECT_EQ(shapeOf(id), "hhhhhhhh-hhhh-hhhh-hhhh-hhhhhhhhhhhh") << id;
  EXPECT_THAT(test::entryNames(host.user), ElementsAre(id + ".kostyle"));
  EXPECT_EQ(Style_path(saved), test::pathText(host.user / (id + ".kostyle")));
  EXPECT_EQ(test::readFile(test::Host::fileOf(saved)),
            R"({"id":")" + id + R"(","name":"N","audioEffect":{"E":{"parameter":{"p":1}}}})");
}

TEST_F(Save, AppendsAUserStyleAndConsumesTheMutableStyle) {
  KoStyleStyle* first = host.addUserStyle("first");
  KoStyleStyle* other = host.createMutableStyle("other");
  KoStyleStyle* style = host.createMutableStyle("N");
  const StyleValue before = valueOf(style);
  KoStyleStyle* saved = test::Host::save(style);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 2u);
  EXPECT_EQ(StyleManager_userStyle(manager, 0), first);
  EXPECT_EQ(StyleManager_userStyle(manager, 1), saved);
  EXPECT_EQ(UserStyle_next(first), saved);
  EXPECT_EQ(Style_type(saved), KOSTYLE_KIND_USER);
  EXPECT_EQ(Style_parent(saved), manager);
  EXPECT_EQ(utf8(Style_vendor(saved)), "");
  EXPECT_EQ(valueOf(saved), before);
  EXPECT_FALSE(StyleManager_hasMutableStyle(manager, style));
  EXPECT_TRUE(StyleManager_hasMutableStyle(manager, other));
  test::expectStyleWalks(saved);
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(manager), 1u);
}

TEST_F(Save, NeverGivesAnIdentifierTwice) {
  std::set<std::string> ids;
  for (int i = 0; i < 200; ++i)
    ids.insert(utf8(Style_id(test::Host::save(host.createMutableStyle("N"), i % 2 == 0))));
  EXPECT_EQ(ids.size(), 200u);
  EXPECT_EQ(test::entryNames(host.user).size(), 200u);
  ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 200u);
}

TEST_F(Save, DoesNothingWithoutAnErrorPointer) {
  KoStyleStyle* style = host.createMutableStyle("N");
  EXPECT_EQ(MutableStyle_save(style, false, nullptr), nullptr);
  EXPECT_TRUE(StyleManager_hasMutableStyle(manager, style));
  EXPECT_TRUE(test::entryNames(host.user).empty());
}

TEST_F(Save, MakesTheUserDirectoryAgain) {
  test::Manager deep(host.system, host.directory / "a" / "b" / "user");
  test::fs::remove_all(host.directory / "a");
  KoStyleStyle* style = StyleManager_createMutableStyle(deep);
  MutableStyle_setName(style, KOSTYLE_TEXT("N"));
  MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("M"));
  test::Host::save(style);
  EXPECT_EQ(test::entryNames(host.directory / "a" / "b" / "user").size(), 1u);
  EXPECT_EQ(StyleManager_numUserStyle(deep), 1u);
}

TEST_F(Save, LeavesStylesWhoseDirectoryIsGoneListed) {
  KoStyleStyle* old = host.addUserStyle("old");
  test::fs::remove_all(host.user);
  KoStyleStyle* saved = test::Host::save(host.createMutableStyle("N"));
  EXPECT_EQ(StyleManager_numUserStyle(manager), 2u);
  EXPECT_EQ(UserStyle_remove(old), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_EQ(UserStyle_remove(saved), KOSTYLE_OK);
}

TEST_F(Save, WritesEffectsWithoutParametersThatReadingSkips) {
  KoStyleStyle* style = host.createMutableStyle("N");
  MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("bare"));
  MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("bare"));
  StyleValue expected = valueOf(style);
  KoStyleStyle* saved = test::Host::save(style);
  EXPECT_EQ(valueOf(saved), expected);
  expected.chains[0].erase(expected.chains[0].begin());
  expected.chains[1].clear();
  EXPECT_EQ(valueOf(reread(saved)), expected);
}

TEST_F(Save, WritesAStyleThatCannotBeReadBack) {
  KoStyleStyle* style = StyleManager_createMutableStyle(manager);
  MutableStyle_setName(style, KOSTYLE_TEXT("N"));
  MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("bare"));
  KoStyleStyle* saved = test::Host::save(style);
  EXPECT_EQ(Style_numAudioEffect(saved), 1u);
  EXPECT_EQ(reread(saved), nullptr);
  EXPECT_EQ(StyleCreationResult_error(StyleManager_userStyleCreationResult(manager, 0)),
            KOSTYLE_ERROR_NO_EFFECT);
}

TEST_F(Save, KeepsTheFirstOfParametersOfOneNameAndSortsThem) {
  KoStyleStyle* style = host.createMutableStyle("N");
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  KoStyleParameter* q = MutableEffect_addParameter(effect, KOSTYLE_TEXT("q"));
  KoStyleParameter* r = MutableEffect_addParameter(effect, KOSTYLE_TEXT("r"));
  MutableParameter_setValueString(q, KOSTYLE_TEXT("second"));
  MutableParameter_setName(MutableEffect_parameter(effect, 0), KOSTYLE_TEXT("z"));
  MutableParameter_setName(q, KOSTYLE_TEXT("z"));
  MutableParameter_setName(r, KOSTYLE_TEXT("a"));
  expectSaved(style, R"({"z":1,"z":"second","a":0})",
              {ParameterValue::ofInt(text("a"), 0), ParameterValue::ofInt(text("z"), 1)});
}

TEST_F(Save, KeepsTheFirstOfParametersOfOneNameThatAddingSorted) {
  KoStyleStyle* style = host.createMutableStyle("N");
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  KoStyleParameter* q = MutableEffect_addParameter(effect, KOSTYLE_TEXT("q"));
  MutableParameter_setValueString(q, KOSTYLE_TEXT("second"));
  MutableParameter_setName(q, KOSTYLE_TEXT("p"));
  MutableEffect_addParameter(effect, KOSTYLE_TEXT("a"));
  expectSaved(style, R"({"a":0,"p":1,"p":"second"})",
              {ParameterValue::ofInt(text("a"), 0), ParameterValue::ofInt(text("p"), 1)});
}

TEST_F(Save, WritesANameThatReadingReplaces) {
  KoStyleStyle* style = host.createMutableStyle("N");
  MutableEffect_addParameter(MutableStyle_audioEffect(style, 0), KOSTYLE_TEXT("Tarn"));
  KoStyleStyle* saved = test::Host::save(style);
  EXPECT_EQ(utf8(Parameter_name(Effect_parameter(Style_audioEffect(saved, 0), 0))), "Tarn");
  saved = reread(saved);
  EXPECT_EQ(utf8(Parameter_name(Effect_parameter(Style_audioEffect(saved, 0), 0))), "Tarn630");
}

TEST_F(Save, LeavesTheHostsRandomNumbersAlone) {
  const auto numbers = [] { return std::vector<int>{std::rand(), std::rand(), std::rand()}; };
  std::srand(1);
  const std::vector<int> expected = numbers();
  KoStyleStyle* style = host.createMutableStyle("N");
  std::srand(1);
  test::Host::save(style);
  EXPECT_EQ(numbers(), expected);
}

TEST_F(Save, GivesAStyleThatCanBeRemovedAtOnce) {
  KoStyleStyle* saved = test::Host::save(host.createMutableStyle("N"));
  EXPECT_EQ(UserStyle_remove(saved), KOSTYLE_OK);
  EXPECT_TRUE(test::entryNames(host.user).empty());
}

}  // namespace
