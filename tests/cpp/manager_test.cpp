// Managers that end with their objects.
#include <utility>

#include "cpp/cpp_host.h"

namespace {

using namespace kostyle;
using test::freshAppID;
using test::fs::path;

struct CppManager : testing::Test {
  test::TemporaryDirectory directory;
  path system = directory.folder("system");
  path user = directory / "made" / "user";
};

TEST_F(CppManager, IsDestroyedWithItsObject) {
  KoStyleManager* handle = nullptr;
  {
    const Manager manager = test::valueOf(Manager::create(freshAppID(), system, user));
    handle = manager.handle();
    EXPECT_TRUE(HasStyleManager(handle));
  }
  EXPECT_FALSE(HasStyleManager(handle));
}

TEST_F(CppManager, KnowsWhatItWasMadeOf) {
  const auto manager = Manager::create("app \xC3\xA4", system, user);
  ASSERT_TRUE(manager);
  EXPECT_EQ(manager->applicationId(), "app \xC3\xA4");
  EXPECT_EQ(manager->systemDirectory(), system);
  EXPECT_EQ(manager->userDirectory(), user);
  EXPECT_TRUE(test::fs::is_directory(user));
}

TEST_F(CppManager, ThatCannotBeMadeGivesCodeAndSentence) {
  const auto nameless = Manager::create("", system, user);
  EXPECT_FALSE(nameless);
  EXPECT_EQ(nameless.code(), KOSTYLE_ERROR_APP_ID_MISSING);
  EXPECT_STREQ(nameless.sentence(), "the application identifier is missing");
  EXPECT_EQ(Manager::create("a", directory / "none", user).code(),
            KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING);
  test::writeFile(directory / "file", "");
  EXPECT_EQ(Manager::create("a", system, directory / "file" / "user").code(),
            KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
}

TEST_F(CppManager, IsMovedWithWhatItOwns) {
  Manager first = test::valueOf(Manager::create(freshAppID(), system, user));
  KoStyleManager* const handle = first.handle();
  Manager second = std::move(first);
  EXPECT_FALSE(first);
  EXPECT_EQ(second.handle(), handle);
  Manager third = test::valueOf(Manager::create(freshAppID(), system, user));
  KoStyleManager* const replaced = third.handle();
  third = std::move(second);
  EXPECT_EQ(third.handle(), handle);
  EXPECT_FALSE(HasStyleManager(replaced));
  EXPECT_TRUE(HasStyleManager(handle));
  Manager& same = third;
  third = std::move(same);
  EXPECT_TRUE(HasStyleManager(handle));
}

TEST_F(CppManager, CanBeGivenUpAndTakenOver) {
  KoStyleManager* const handle = test::valueOf(Manager::create(freshAppID(), system, user)).release();
  EXPECT_TRUE(HasStyleManager(handle));
  {
    const Manager owner(handle);
    const ManagerView view = owner;
    EXPECT_TRUE(view == owner);
  }
  EXPECT_FALSE(HasStyleManager(handle));
}

TEST_F(CppManager, ReadsFurtherDirectories) {
  test::writeFile(directory.folder("s") / "s.kostyle", test::document("s", "S"));
  test::writeFile(directory.folder("u") / "u.kostyle", test::document("u", "U"));
  const auto manager =
      Manager::create(freshAppID(), system, user, {{directory / "s"}, {directory / "u"}});
  ASSERT_TRUE(manager && manager->readSystemStyles() && manager->readUserStyles());
  ASSERT_EQ(manager->systemStyles().size(), 1U);
  ASSERT_EQ(manager->userStyles().size(), 1U);
  EXPECT_EQ(manager->systemStyles()[0].name(), "S");
  EXPECT_EQ(manager->userStyles()[0].path(), directory / "u" / "u.kostyle");
}

TEST_F(CppManager, TakesPathsAsHostsHaveThem) {
  test::writeFile(system / "s.kostyle", test::document("s", "S"));
  const auto manager = Manager::create(freshAppID(), system / "." / ".." / "system" / "", user);
  ASSERT_TRUE(manager && manager->readSystemStyles());
  EXPECT_EQ(manager->systemStyles().size(), 1U);
}

TEST_F(CppManager, ThatCannotReadGivesCodeAndSentence) {
  const auto manager = Manager::create(freshAppID(), system, user);
  ASSERT_TRUE(manager);
  test::fs::remove_all(directory / "made");
  test::fs::remove_all(system);
  const auto read = manager->readUserStyles();
  EXPECT_FALSE(read);
  EXPECT_FALSE(read.has_value());
  EXPECT_EQ(read.code(), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_STREQ(read.sentence(), "the directory does not exist");
  EXPECT_EQ(manager->readSystemStyles().error().code(), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_EQ(ManagerView().readUserStyles().code(), KOSTYLE_ERROR_INVALID_HANDLE);
}

TEST_F(CppManager, KnowsItsStyles) {
  const test::CppHost host;
  const SystemStyle systemStyle = host.addSystemStyle("s", test::document("s", "S"));
  const UserStyle userStyle = host.addUserStyle("u");
  const MutableStyle mutableStyle = host.createMutableStyle();
  EXPECT_TRUE(host.manager.has(systemStyle) && host.manager.has(userStyle) &&
              host.manager.has(mutableStyle));
  EXPECT_FALSE(host.manager.has(SystemStyle()) || host.manager.has(UserStyle()) ||
               host.manager.has(MutableStyle()));
  EXPECT_TRUE(systemStyle.manager() == host.manager && mutableStyle.manager() == host.manager);
  mutableStyle.destroy();
  EXPECT_FALSE(host.manager.has(mutableStyle));
}

}  // namespace
