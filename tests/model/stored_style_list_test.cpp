// System and user styles in their manager's lists.
#include <gmock/gmock.h>

#include "api/exports.h"
#include "chains.h"
#include "model/mutable_style.h"
#include "model/system_style.h"
#include "model/user_style.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;

class StoredStyleList : public testing::Test {
 protected:
  UserStyle& addUserStyle(const char* id) {
    const test::fs::path path = directory_ / (std::string(id) + ".kostyle");
    test::writeFile(path, "{}");
    auto& style = addStyle<UserStyle>(manager_, text(id));
    style.assignPath(test::pathText(path));
    return style;
  }

  const test::TemporaryDirectory directory_;
  StyleManager manager_ = detachedManager();
};

TEST_F(StoredStyleList, SystemStylesAreWalkedInTheirOrder) {
  const SystemStyle& b = addStyle<SystemStyle>(manager_, text("b"));
  const SystemStyle& a = addStyle<SystemStyle>(manager_, text("a"));
  addStyle<UserStyle>(manager_, text("c"));
  EXPECT_EQ(b.prev(), nullptr);
  EXPECT_EQ(b.next(), &a);
  EXPECT_EQ(a.prev(), &b);
  EXPECT_EQ(a.next(), nullptr);
}

TEST_F(StoredStyleList, UserStylesAreWalkedInTheirOrder) {
  addStyle<SystemStyle>(manager_, text("s"));
  const UserStyle& b = addStyle<UserStyle>(manager_, text("b"));
  const UserStyle& a = addStyle<UserStyle>(manager_, text("a"));
  EXPECT_EQ(b.prev(), nullptr);
  EXPECT_EQ(b.next(), &a);
  EXPECT_EQ(a.prev(), &b);
  EXPECT_EQ(a.next(), nullptr);
}

TEST_F(StoredStyleList, AStyleWithoutManagerHasNoNeighbours) {
  const SystemStyle system(nullptr);
  UserStyle user(nullptr);
  EXPECT_EQ(system.next(), nullptr);
  EXPECT_EQ(system.prev(), nullptr);
  EXPECT_EQ(user.next(), nullptr);
  EXPECT_EQ(user.prev(), nullptr);
  EXPECT_EQ(user.remove(), 4);
}

TEST_F(StoredStyleList, AnUnlistedStyleHasNoNeighboursAndIsNotRemoved) {
  addUserStyle("a");
  addStyle<SystemStyle>(manager_, text("s"));
  const SystemStyle system(&manager_);
  UserStyle user(&manager_);
  user.assignPath(test::pathText(directory_ / "a.kostyle"));
  EXPECT_EQ(system.next(), nullptr);
  EXPECT_EQ(user.next(), nullptr);
  EXPECT_EQ(user.prev(), nullptr);
  EXPECT_EQ(user.remove(), 5);
  EXPECT_TRUE(test::fs::exists(directory_ / "a.kostyle"));
}

TEST_F(StoredStyleList, ARemovedStyleLeavesItsNeighboursAdjacent) {
  UserStyle& a = addUserStyle("a");
  UserStyle& b = addUserStyle("b");
  UserStyle& c = addUserStyle("c");
  test::writeFile(directory_ / "other", "");
  EXPECT_EQ(b.remove(), 0);
  EXPECT_EQ(a.next(), &c);
  EXPECT_EQ(c.prev(), &a);
  EXPECT_EQ(manager_.numUserStyle(), 2u);
  EXPECT_EQ(manager_.styles(StyleKind::user).findKey(text("b")), nullptr);
  EXPECT_THAT(test::entryNames(directory_.path()),
              testing::ElementsAre("a.kostyle", "c.kostyle", "other"));
}

TEST_F(StoredStyleList, AStyleWhoseFileIsGoneIsNotRemoved) {
  UserStyle& a = addUserStyle("a");
  test::fs::remove(directory_ / "a.kostyle");
  EXPECT_EQ(a.remove(), 9);
  EXPECT_TRUE(manager_.hasUserStyle(&a));
  test::writeFile(directory_ / "a.kostyle", "");
  EXPECT_EQ(a.remove(), 0);
}

TEST_F(StoredStyleList, AStyleWithoutAPathIsNotRemoved) {
  UserStyle& style = addStyle<UserStyle>(manager_, text("a"));
  EXPECT_EQ(style.remove(), 9);
  EXPECT_EQ(manager_.numUserStyle(), 1u);
}

TEST_F(StoredStyleList, AFolderInTheFilesPlaceIsRemovedWhenItIsEmpty) {
  UserStyle& full = addStyle<UserStyle>(manager_, text("a"));
  full.assignPath(test::pathText(directory_.folder("full")));
  test::writeFile(directory_ / "full" / "x", "");
  EXPECT_EQ(full.remove(), 9);
  EXPECT_TRUE(test::fs::exists(directory_ / "full" / "x"));
  UserStyle& empty = addStyle<UserStyle>(manager_, text("b"));
  empty.assignPath(test::pathText(directory_.folder("empty")));
  EXPECT_EQ(empty.remove(), 0);
  EXPECT_FALSE(test::fs::exists(directory_ / "empty"));
}

TEST_F(StoredStyleList, OnlyAUserStyleIsRemovedThroughItsHandle) {
  SystemStyle& system = addStyle<SystemStyle>(manager_, text("s"));
  EXPECT_EQ(UserStyle_remove(&system), 2);
  EXPECT_EQ(UserStyle_next(&system), nullptr);
  EXPECT_EQ(UserStyle_createPropertyEditor(&system), nullptr);
  EXPECT_EQ(manager_.numSystemStyle(), 1u);
}

TEST_F(StoredStyleList, ASecondPropertyEditorTakesTheFirstOnesPlace) {
  UserStyle& style = addUserStyle("a");
  IPropertyEditor* const first = style.createPropertyEditor();
  IPropertyEditor* const second = style.createPropertyEditor();
  ASSERT_NE(second, nullptr);
  EXPECT_NE(second, first);
  EXPECT_TRUE(second->setStyleName(KOSTYLE_TEXT("n")));
  style.destroyPropertyEditor();
  style.destroyPropertyEditor();
}

TEST_F(StoredStyleList, AHundredThousandAreWalkedByNextAndPrev) {
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i) addStyle<SystemStyle>(manager_, text(std::to_string(i)));
  std::size_t walked = 0;
  const ISystemStyle* last = nullptr;
  for (const ISystemStyle* at = manager_.systemStyle(0); at; at = at->next()) {
    last = at;
    ++walked;
  }
  EXPECT_EQ(walked, count);
  for (const ISystemStyle* at = last; at; at = at->prev()) --walked;
  EXPECT_EQ(walked, 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
