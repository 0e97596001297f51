// Walking the system and user styles of a manager, and removing user styles.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>

#include "support/host.h"
#include "support/random.h"
#include "support/style_value.h"
#include "support/style_walk.h"

namespace {

using test::document;
using test::utf8;
using test::writeFile;

class StoredStyle : public testing::Test {
 protected:
  void putUserStyles(int count) {
    for (int i = 0; i < count; ++i) {
      const std::string id = "u" + std::to_string(i);
      writeFile(host.user / (id + ".kostyle"), document(id, id));
    }
    ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
  }
  KoStyleStyle* user(std::size_t index) { return StyleManager_userStyle(manager, index); }

  test::Host host;
  KoStyleManager* manager = host.manager;
};

TEST_F(StoredStyle, LeadsToItsNeighboursOfItsOwnKind) {
  for (const char* id : {"a", "b", "c"}) host.addSystemStyle(id);
  putUserStyles(4);
  test::expectManagerWalks(manager);
  EXPECT_EQ(SystemStyle_next(StyleManager_systemStyle(manager, 2)), nullptr);
  EXPECT_EQ(UserStyle_prev(user(0)), nullptr);
}

TEST_F(StoredStyle, GivesItsAttributesEffectsAndVendor) {
  KoStyleStyle* style = host.addUserStyle(
      "full", R"({"id":"full","name":"Full","vendor":"Maker","filter":{"languages":[4,5,-1,4,"1",0],
        "singerGroups":["g"],"singerIDs":["123456789012345","1234567890123456","12345678901234567"],
        "genres":["b","a","c"],"subGenres":["x","X"],"colors":["b","","a","b"]},
        "audioEffect":{"Z":{"parameter":{"q":0.1,"p":3,"Tarn":"t"}},"A":{"parameter":[]},"N":{}},
        "midiEffect":{"Z":{"script":"s","parameter":{}}}})");
  ASSERT_NE(style, nullptr);
  using test::ParameterValue;
  using test::text;
  test::StyleValue expected;
  expected.name = text("Full");
  expected.languages = {0, 4};
  expected.lists = {{{text("g")},
                     {text("1234567890123456")},
                     {text("a"), text("b"), text("c")},
                     {text("X"), text("x")},
                     {text("a"), text("b")}}};
  expected.chains[0] = {
      {text("Z"),
       {ParameterValue::ofString(text("Tarn630"), text("t")), ParameterValue::ofInt(text("p"), 3),
        ParameterValue::ofFloat(text("q"), 0.1f)}},
      {text("A"), {}}};
  expected.chains[1] = {{text("Z"), {}}};
  EXPECT_EQ(test::valueOf(style), expected);
  EXPECT_EQ(utf8(Style_vendor(style)), "Maker");
  EXPECT_EQ(Style_path(style), test::pathText(host.user / "full.kostyle"));
  EXPECT_EQ(Style_parent(style), manager);
  test::expectStyleWalks(style);
}

TEST_F(StoredStyle, HasAnEmptyVendorWhenItsFileHasNone) {
  EXPECT_EQ(utf8(Style_vendor(host.addUserStyle("u"))), "");
}

TEST_F(StoredStyle, HasNoNameWhenItsFileHasALongOne) {
  const std::string name100(100, 'n');
  EXPECT_EQ(utf8(Style_name(host.addUserStyle("a", document("a", name100)))), name100);
  EXPECT_EQ(utf8(Style_name(host.addUserStyle("b", document("b", name100 + "n")))), "");
}

TEST_F(StoredStyle, LeavesItsNeighboursAdjacentWhenRemoved) {
  putUserStyles(3);
  KoStyleStyle* first = user(0);
  KoStyleStyle* third = user(2);
  const test::fs::path file = test::Host::fileOf(user(1));
  writeFile(host.user / "other", "");
  EXPECT_EQ(UserStyle_remove(user(1)), KOSTYLE_OK);
  EXPECT_EQ(UserStyle_next(first), third);
  EXPECT_EQ(UserStyle_prev(third), first);
  EXPECT_FALSE(exists(file));
  EXPECT_THAT(test::entryNames(host.user),
              testing::UnorderedElementsAre(test::Host::fileOf(first).filename().u8string(),
                                            test::Host::fileOf(third).filename().u8string(), "other"));
}

TEST_F(StoredStyle, TakesItsEditorWithItWhenRemoved) {
  KoStyleStyle* style = host.addUserStyle("u");
  ASSERT_NE(UserStyle_createPropertyEditor(style), nullptr);
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
}

TEST_F(StoredStyle, StaysWhenItsFileIsGone) {
  putUserStyles(2);
  KoStyleStyle* style = user(0);
  const test::StyleValue before = test::valueOf(style);
  test::fs::remove(test::Host::fileOf(style));
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 2u);
  EXPECT_TRUE(StyleManager_hasUserStyle(manager, style));
  EXPECT_EQ(test::valueOf(style), before);
}

TEST_F(StoredStyle, TakesAnEmptyDirectoryInItsFilesPlaceWithIt) {
  KoStyleStyle* style = host.addUserStyle("u");
  const test::fs::path file = test::Host::fileOf(style);
  test::fs::remove(file);
  test::fs::create_directory(file);
  writeFile(file / "inside", "x");
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_TRUE(exists(file / "inside"));
  test::fs::remove(file / "inside");
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_OK);
  EXPECT_FALSE(exists(file));
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
}

TEST_F(StoredStyle, IsRemovedOnceItsFileIsBack) {
  KoStyleStyle* style = host.addUserStyle("u");
  test::fs::remove(test::Host::fileOf(style));
  ASSERT_EQ(UserStyle_remove(style), KOSTYLE_ERROR_DELETE_FAILED);
  writeFile(test::Host::fileOf(style), "");
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_OK);
  EXPECT_FALSE(exists(host.user / "u.kostyle"));
}

TEST_F(StoredStyle, GivesNothingPastTheEndOfItsLists) {
  KoStyleStyle* style =
      host.addUserStyle("u", R"({"id":"u","name":"n","filter":{"languages":[4],"singerGroups":["x"],
        "singerIDs":["0123456789abcdef"],"genres":["x"],"subGenres":["x"],"colors":["x"]},
        "audioEffect":{"E":{"parameter":{"p":1}}},"midiEffect":{"E":{"parameter":{"p":1}}}})");
  for (const std::size_t index : {std::size_t{1}, std::size_t{2}, SIZE_MAX}) {
    EXPECT_EQ(Style_language(style, index), -1);
    for (const test::TextList& list : test::textLists())
      EXPECT_EQ(list.at(style, index), nullptr) << list.name;
    for (const test::Chain& chain : test::chains()) {
      EXPECT_EQ(chain.at(style, index), nullptr);
      EXPECT_EQ(Effect_parameter(chain.at(style, 0), index), nullptr);
    }
  }
}

TEST_F(StoredStyle, HasItsOwnEffectsAndParametersOnly) {
  const std::string rest = R"(","name":"n","audioEffect":{"E":{"parameter":{"p":1}}},
        "midiEffect":{"E":{"parameter":{"p":1}}}})";
  writeFile(host.user / "a.kostyle", R"({"id":"a)" + rest);
  KoStyleStyle* style = host.addUserStyle("b", R"({"id":"b)" + rest);
  KoStyleStyle* other = host.userStyle("a");
  for (const test::Chain& chain : test::chains()) {
    const test::Chain& otherChain = test::chains()[chain.type == KOSTYLE_EFFECT_AUDIO ? 1 : 0];
    KoStyleEffect* effect = chain.at(style, 0);
    KoStyleEffect* foreign = chain.at(other, 0);
    EXPECT_TRUE(chain.has(style, effect));
    EXPECT_FALSE(otherChain.has(style, effect));
    EXPECT_FALSE(chain.has(style, foreign));
    EXPECT_FALSE(chain.has(style, nullptr));
    EXPECT_TRUE(Effect_hasParameter(effect, Effect_parameter(effect, 0)));
    EXPECT_FALSE(Effect_hasParameter(effect, Effect_parameter(foreign, 0)));
    EXPECT_FALSE(Effect_hasParameter(effect, nullptr));
  }
}

TEST_F(StoredStyle, IsNotRemovedAsASystemStyle) {
  KoStyleStyle* style = host.addSystemStyle("s");
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_ERROR_INVALID_HANDLE);
  EXPECT_TRUE(exists(host.system / "s.kostyle"));
  EXPECT_TRUE(StyleManager_hasSystemStyle(manager, style));
}

TEST_F(StoredStyle, FreesItsIdentifierWhenRemoved) {
  KoStyleStyle* style = host.addUserStyle("same");
  ASSERT_EQ(UserStyle_remove(style), KOSTYLE_OK);
  EXPECT_NE(host.addSystemStyle("same"), nullptr);
}

TEST_F(StoredStyle, WalksRightAfterAnyRemoval) {
  putUserStyles(60);
  test::Random random(1);
  for (std::size_t left = 60; left > 0; --left) {
    ASSERT_EQ(UserStyle_remove(user(random.below(left))), KOSTYLE_OK);
    ASSERT_EQ(StyleManager_numUserStyle(manager), left - 1);
    test::expectManagerWalks(manager);
    if (HasFailure()) return;
  }
  EXPECT_TRUE(test::entryNames(host.user).empty());
}

}  // namespace
