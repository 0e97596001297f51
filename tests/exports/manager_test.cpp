// What a manager holds and how it answers for it.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <set>
#include <string>

#include "support/host.h"

namespace {

using test::document;
using test::utf8;
using test::writeFile;

class ManagerExports : public testing::Test {
 protected:
  test::Host host;
  KoStyleManager* manager = host.manager;
};

TEST_F(ManagerExports, StartsEmpty) {
  writeFile(host.system / "s.kostyle", document("s", "s"));
  EXPECT_EQ(StyleManager_numSystemStyle(manager), 0u);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
  EXPECT_EQ(StyleManager_numSystemStyleCreationResult(manager), 0u);
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(manager), 0u);
  EXPECT_EQ(StyleManager_systemStyle(manager, 0), nullptr);
  EXPECT_EQ(StyleManager_userStyle(manager, 0), nullptr);
}

TEST_F(ManagerExports, AnswersWhoItIs) {
  EXPECT_EQ(StyleManager_appID(manager), host.manager.appID());
  EXPECT_EQ(StyleManager_systemStyleDirPath(manager), test::pathText(host.system));
  EXPECT_EQ(StyleManager_userStyleDirPath(manager), test::pathText(host.user));
}

TEST_F(ManagerExports, GivesNullAtAndPastTheEnd) {
  host.addSystemStyle("s");
  host.addUserStyle("u");
  for (const std::size_t index : {std::size_t{1}, std::size_t{2}, SIZE_MAX}) {
    EXPECT_EQ(StyleManager_systemStyle(manager, index), nullptr);
    EXPECT_EQ(StyleManager_userStyle(manager, index), nullptr);
    EXPECT_EQ(StyleManager_systemStyleCreationResult(manager, index), nullptr);
    EXPECT_EQ(StyleManager_userStyleCreationResult(manager, index), nullptr);
  }
  EXPECT_NE(StyleManager_systemStyle(manager, 0), nullptr);
  EXPECT_NE(StyleManager_userStyle(manager, 0), nullptr);
  EXPECT_NE(StyleManager_systemStyleCreationResult(manager, 0), nullptr);
  EXPECT_NE(StyleManager_userStyleCreationResult(manager, 0), nullptr);
}

TEST_F(ManagerExports, KeepsTheSetsApart) {
  KoStyleStyle* system = host.addSystemStyle("s");
  KoStyleStyle* user = host.addUserStyle("u");
  KoStyleStyle* unsaved = StyleManager_createMutableStyle(manager);
  EXPECT_EQ(Style_type(system), KOSTYLE_KIND_SYSTEM);
  EXPECT_EQ(Style_type(user), KOSTYLE_KIND_USER);
  EXPECT_EQ(Style_type(unsaved), KOSTYLE_KIND_MUTABLE);
  EXPECT_EQ(StyleManager_numSystemStyle(manager), 1u);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 1u);
  EXPECT_FALSE(StyleManager_hasSystemStyle(manager, user));
  EXPECT_FALSE(StyleManager_hasUserStyle(manager, system));
}

TEST_F(ManagerExports, ReadsOneSetAndLeavesTheOtherAndTheMutableStyles) {
  KoStyleStyle* user = host.addUserStyle("u");
  KoStyleStyle* unsaved = StyleManager_createMutableStyle(manager);
  KoStyleStyle* system = host.addSystemStyle("s");
  EXPECT_TRUE(StyleManager_hasUserStyle(manager, user));
  EXPECT_TRUE(StyleManager_hasMutableStyle(manager, unsaved));
  ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
  EXPECT_TRUE(StyleManager_hasSystemStyle(manager, system));
  EXPECT_TRUE(StyleManager_hasMutableStyle(manager, unsaved));
  EXPECT_EQ(StyleManager_numSystemStyleCreationResult(manager), 1u);
}

TEST_F(ManagerExports, ReadsTheSameAgain) {
  for (const char* id : {"a", "b", "c"}) host.addUserStyle(id);
  writeFile(host.user / "bad.kostyle", "{");
  for (int i = 0; i < 3; ++i) {
    ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
    EXPECT_EQ(StyleManager_numUserStyle(manager), 3u);
    EXPECT_EQ(StyleManager_numUserStyleCreationResult(manager), 4u);
  }
}

TEST_F(ManagerExports, IsEmptyAfterReadingADirectoryThatIsGone) {
  host.addSystemStyle("s");
  host.addUserStyle("u");
  test::fs::remove_all(host.system);
  test::fs::remove_all(host.user);
  EXPECT_EQ(StyleManager_readSystemStyles(manager), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_EQ(StyleManager_numSystemStyle(manager), 0u);
  EXPECT_EQ(StyleManager_numSystemStyleCreationResult(manager), 0u);
  EXPECT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(manager), 0u);
}

TEST_F(ManagerExports, IsEmptyAfterReadingAFileInTheDirectorysPlace) {
  host.addUserStyle("u");
  test::fs::remove_all(host.user);
  writeFile(host.user, "x");
  EXPECT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
}

TEST_F(ManagerExports, ReadsADirectoryThatIsBack) {
  host.addUserStyle("u");
  test::fs::remove_all(host.user);
  ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_ERROR_DIRECTORY_MISSING);
  test::fs::create_directory(host.user);
  EXPECT_NE(host.addUserStyle("v"), nullptr);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 1u);
}

TEST_F(ManagerExports, GivesDistinctMutableStylesThatAreNotUserStyles) {
  KoStyleStyle* first = StyleManager_createMutableStyle(manager);
  KoStyleStyle* second = StyleManager_createMutableStyle(manager);
  EXPECT_NE(first, second);
  EXPECT_TRUE(StyleManager_hasMutableStyle(manager, first));
  EXPECT_TRUE(StyleManager_hasMutableStyle(manager, second));
  EXPECT_EQ(StyleManager_numUserStyle(manager), 0u);
  EXPECT_EQ(Style_parent(first), manager);
}

TEST_F(ManagerExports, DoesNotKnowAnotherManagersStyles) {
  const test::Host other;
  KoStyleStyle* system = host.addSystemStyle("same");
  KoStyleStyle* user = host.addUserStyle("u");
  KoStyleStyle* unsaved = StyleManager_createMutableStyle(manager);
  other.addSystemStyle("same");
  EXPECT_FALSE(StyleManager_hasSystemStyle(other.manager, system));
  EXPECT_FALSE(StyleManager_hasUserStyle(other.manager, user));
  EXPECT_FALSE(StyleManager_hasMutableStyle(other.manager, unsaved));
  EXPECT_EQ(Style_parent(system), manager);
}

TEST_F(ManagerExports, WorksOnTheSameDirectoriesAsAnother) {
  const test::Manager other(host.system, host.user);
  host.addUserStyle("u");
  ASSERT_EQ(StyleManager_readUserStyles(other), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_numUserStyle(other), 1u);
  EXPECT_NE(StyleManager_userStyle(other, 0), StyleManager_userStyle(manager, 0));
}

}  // namespace
