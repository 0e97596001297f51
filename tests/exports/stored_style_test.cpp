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
  EXPECT_EQ(UserStyle_remove(user(1)), 0);
  EXPECT_EQ(UserStyle_next(first), third);
  EXPECT_EQ(UserStyle_prev(third), first);
  EXPECT_FALSE(exists(file));
  EXPECT_EQ(test::entryNames(host.user).size(), 2u);
}

TEST_F(StoredStyle, TakesItsEditorWithItWhenRemoved) {
  KoStyleStyle* style = host.addUserStyle("u");
  ASSERT_NE(UserStyle_createPropertyEditor(style), nullptr);
  EXPECT_EQ(UserStyle_remove(style), 0);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
}

TEST_F(StoredStyle, StaysWhenItsFileIsGone) {
  putUserStyles(2);
  KoStyleStyle* style = user(0);
  const test::StyleValue before = test::valueOf(style);
  test::fs::remove(test::Host::fileOf(style));
  EXPECT_EQ(UserStyle_remove(style), 9);
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
  EXPECT_EQ(UserStyle_remove(style), 9);
  EXPECT_TRUE(exists(file / "inside"));
  test::fs::remove(file / "inside");
  EXPECT_EQ(UserStyle_remove(style), 0);
  EXPECT_FALSE(exists(file));
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
}

TEST_F(StoredStyle, IsNotRemovedAsASystemStyle) {
  KoStyleStyle* style = host.addSystemStyle("s");
  EXPECT_EQ(UserStyle_remove(style), 2);
  EXPECT_TRUE(exists(host.system / "s.kostyle"));
  EXPECT_TRUE(StyleManager_hasSystemStyle(manager, style));
}

TEST_F(StoredStyle, FreesItsIdentifierWhenRemoved) {
  KoStyleStyle* style = host.addUserStyle("same");
  ASSERT_EQ(UserStyle_remove(style), 0);
  EXPECT_NE(host.addSystemStyle("same"), nullptr);
}

TEST_F(StoredStyle, WalksRightAfterAnyRemoval) {
  putUserStyles(60);
  test::Random random(1);
  for (std::size_t left = 60; left > 0; --left) {
    ASSERT_EQ(UserStyle_remove(user(random.below(left))), 0);
    ASSERT_EQ(StyleManager_numUserStyle(manager), left - 1);
    test::expectManagerWalks(manager);
    if (HasFailure()) return;
  }
  EXPECT_TRUE(test::entryNames(host.user).empty());
}

}  // namespace
