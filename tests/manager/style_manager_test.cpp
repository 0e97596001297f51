#include "manager/style_manager.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <string>

#include "model/system_style.h"
#include "model/user_style.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::pathText;
using test::text;
using test::utf8;

class StyleManagerTest : public testing::Test {
 protected:
  template <class StyleClass>
  StyleClass& add(const Text& id) {
    auto style = std::make_unique<StyleClass>(&manager_);
    style->assignId(id);
    StyleClass& added = *style;
    manager_.styles(static_cast<StyleKind>(added.type()))
        .append(StyleSequence::prepare(std::move(style)));
    return added;
  }
  static void writeStyle(const test::fs::path& folder, const std::string& id) {
    test::writeFile(folder / (id + ".kostyle"),
                    R"({"id":")" + id + R"(","name":"n","midiEffect":{"e":{"parameter":{}}}})");
  }

  const test::TemporaryDirectory directory_;
  const test::fs::path system_ = directory_.folder("system");
  const test::fs::path user_ = directory_.folder("user");
  StyleManager manager_{text("app"), pathText(system_), pathText(user_), {}, {}};
};

TEST_F(StyleManagerTest, StartsEmptyWithItsTextsAsGiven) {
  EXPECT_EQ(utf8(manager_.appID()), "app");
  EXPECT_EQ(manager_.systemStyleDirPath(), pathText(system_));
  EXPECT_EQ(manager_.userStyleDirPath(), pathText(user_));
  EXPECT_EQ(manager_.numSystemStyle(), 0u);
  EXPECT_EQ(manager_.numUserStyle(), 0u);
  EXPECT_EQ(manager_.numSystemStyleCreationResult(), 0u);
  EXPECT_EQ(manager_.numUserStyleCreationResult(), 0u);
}

TEST_F(StyleManagerTest, GivesNullPastTheEnd) {
  add<SystemStyle>(text("s"));
  add<UserStyle>(text("u"));
  for (const std::size_t index : {std::size_t{1}, std::size_t{2}, SIZE_MAX}) {
    EXPECT_EQ(manager_.systemStyle(index), nullptr);
    EXPECT_EQ(manager_.userStyle(index), nullptr);
    EXPECT_EQ(manager_.systemStyleCreationResult(index), nullptr);
    EXPECT_EQ(manager_.userStyleCreationResult(index), nullptr);
  }
}

TEST_F(StyleManagerTest, HasTheStylesOfItsOwnSetsOnly) {
  SystemStyle& system = add<SystemStyle>(text("s"));
  UserStyle& user = add<UserStyle>(text("u"));
  SystemStyle unlistedSystem(&manager_);
  UserStyle unlistedUser(&manager_);
  MutableStyle unlistedMutable(&manager_);
  EXPECT_TRUE(manager_.hasSystemStyle(&system));
  EXPECT_TRUE(manager_.hasUserStyle(&user));
  EXPECT_FALSE(manager_.hasSystemStyle(&unlistedSystem));
  EXPECT_FALSE(manager_.hasUserStyle(&unlistedUser));
  EXPECT_FALSE(manager_.hasMutableStyle(&unlistedMutable));
  EXPECT_FALSE(manager_.hasSystemStyle(nullptr));
  EXPECT_FALSE(manager_.hasUserStyle(nullptr));
  EXPECT_FALSE(manager_.hasMutableStyle(nullptr));
  EXPECT_EQ(manager_.systemStyle(0), &system);
  EXPECT_EQ(manager_.userStyle(0), &user);
}

TEST_F(StyleManagerTest, NoIdentifierIsNeverInUse) {
  add<SystemStyle>(Text());
  add<UserStyle>(Text(KOSTYLE_TEXT("\0x"), 2));
  EXPECT_FALSE(manager_.isStyleIdInUse(nullptr));
  EXPECT_FALSE(manager_.isStyleIdInUse(KOSTYLE_TEXT("")));
}

TEST_F(StyleManagerTest, IdentifiersAreComparedExactly) {
  add<SystemStyle>(text("Sys"));
  add<UserStyle>(text("User"));
  const Text surrogate(1, Char(0xD800));
  add<UserStyle>(surrogate);
  EXPECT_TRUE(manager_.isStyleIdInUse(KOSTYLE_TEXT("Sys")));
  EXPECT_TRUE(manager_.isStyleIdInUse(KOSTYLE_TEXT("User")));
  EXPECT_TRUE(manager_.isStyleIdInUse(surrogate.c_str()));
  for (const Char* other : {KOSTYLE_TEXT("sys"), KOSTYLE_TEXT("Sy"), KOSTYLE_TEXT("Sys "),
                            KOSTYLE_TEXT("USER"), KOSTYLE_TEXT("User1")})
    EXPECT_FALSE(manager_.isStyleIdInUse(other));
}

TEST_F(StyleManagerTest, AnIdentifierEndsAtItsFirstNul) {
  add<UserStyle>(Text(KOSTYLE_TEXT("a\0b"), 3));
  EXPECT_TRUE(manager_.isStyleIdInUse(KOSTYLE_TEXT("a")));
  EXPECT_TRUE(manager_.isStyleIdInUse(manager_.userStyle(0)->id()));
}

TEST_F(StyleManagerTest, AMutableStylesIdentifierIsNotInUse) {
  add<MutableStyle>(text("m"));
  EXPECT_FALSE(manager_.isStyleIdInUse(KOSTYLE_TEXT("m")));
}

TEST_F(StyleManagerTest, AnIdentifierIsFreeAgainWhenItsStyleIsGone) {
  writeStyle(user_, "u");
  manager_.readUserStyles();
  EXPECT_TRUE(manager_.isStyleIdInUse(KOSTYLE_TEXT("u")));
  EXPECT_EQ(manager_.userStyle(0)->remove(), 0);
  EXPECT_FALSE(manager_.isStyleIdInUse(KOSTYLE_TEXT("u")));
}

TEST_F(StyleManagerTest, AReadReplacesItsOwnSetOnly) {
  writeStyle(system_, "s");
  writeStyle(user_, "u");
  IMutableStyle* const editable = manager_.createMutableStyle();
  EXPECT_EQ(manager_.readSystemStyles(), 0);
  EXPECT_EQ(manager_.readUserStyles(), 0);
  ISystemStyle* const system = manager_.systemStyle(0);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(manager_.readUserStyles(), 0);
    EXPECT_EQ(manager_.numUserStyle(), 1u);
    EXPECT_EQ(manager_.numUserStyleCreationResult(), 1u);
  }
  EXPECT_TRUE(manager_.hasSystemStyle(system));
  EXPECT_EQ(manager_.numSystemStyleCreationResult(), 1u);
  EXPECT_TRUE(manager_.hasMutableStyle(editable));
}

TEST_F(StyleManagerTest, AReadOfAMissingDirectoryLeavesNothing) {
  writeStyle(system_, "s");
  writeStyle(user_, "u");
  manager_.readSystemStyles();
  manager_.readUserStyles();
  test::fs::remove_all(system_);
  test::fs::remove_all(user_);
  EXPECT_EQ(manager_.readSystemStyles(), 7);
  EXPECT_EQ(manager_.readUserStyles(), 7);
  EXPECT_EQ(manager_.numSystemStyle(), 0u);
  EXPECT_EQ(manager_.numUserStyle(), 0u);
  EXPECT_EQ(manager_.numSystemStyleCreationResult(), 0u);
  EXPECT_EQ(manager_.numUserStyleCreationResult(), 0u);
}

TEST_F(StyleManagerTest, EachMutableStyleIsANewOneOfItsOwn) {
  IMutableStyle* const first = manager_.createMutableStyle();
  IMutableStyle* const second = manager_.createMutableStyle();
  EXPECT_NE(first, second);
  EXPECT_TRUE(manager_.hasMutableStyle(first));
  EXPECT_TRUE(manager_.hasMutableStyle(second));
  EXPECT_EQ(first->type(), 2u);
  EXPECT_EQ(first->parent(), &manager_);
  EXPECT_EQ(manager_.numUserStyle(), 0u);
}

TEST_F(StyleManagerTest, GivesTheSequencesOfEachKind) {
  add<SystemStyle>(text("s"));
  add<UserStyle>(text("u"));
  manager_.createMutableStyle();
  EXPECT_EQ(manager_.styles(StyleKind::system).at(0)->type(), 0u);
  EXPECT_EQ(manager_.styles(StyleKind::user).at(0)->type(), 1u);
  EXPECT_EQ(manager_.styles(StyleKind::editable).at(0)->type(), 2u);
  EXPECT_NE(manager_.creationResults(StyleKind::system), manager_.creationResults(StyleKind::user));
  EXPECT_EQ(manager_.creationResults(StyleKind::editable), nullptr);
}

TEST_F(StyleManagerTest, OutsideTheRegistryItIsNotDestroyed) {
  manager_.createMutableStyle();
  manager_.destroy();
  EXPECT_EQ(utf8(manager_.appID()), "app");
  EXPECT_EQ(manager_.styles(StyleKind::editable).size(), 1u);
}

}  // namespace
}  // namespace Tesk::KoStyle
