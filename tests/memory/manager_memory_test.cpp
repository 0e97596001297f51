// Running out of memory while managers and mutable styles are made, and while user styles are removed.
#include <gmock/gmock.h>

#include <utility>

#include "memory/disk.h"
#include "memory/failing_allocations.h"
#include "support/host.h"

namespace {

using test::Text;

TEST(CreatingAManagerWithoutMemory, RegistersNothingAndReleasesTheLock) {
  const test::TemporaryDirectory directory;
  const auto wrong = test::pathText(directory.folder("wrong"));
  const auto right = test::pathText(directory.folder("right"));
  const auto user = test::pathText(directory.folder("user"));
  const Text appID = test::text("an application identifier that is allocated");
  const KoStyleChar* const further[] = {wrong.c_str(), right.c_str()};
  constexpr int untouched = -1;
  int error = untouched;
  const auto create = [&](const Text& system) {
    return CreateStyleManager(appID.c_str(), system.c_str(), user.c_str(), further, 2, further, 2,
                              &error);
  };
  EXPECT_FALSE(HasStyleManager(nullptr));

  KoStyleManager* manager = nullptr;
  const long failures =
      test::failEachAllocation([&] { manager = create(wrong); },
                               [&](long n, bool thrown) {
                                 EXPECT_TRUE(thrown) << n;
                                 EXPECT_EQ(manager, nullptr) << n;
                                 EXPECT_EQ(error, untouched) << n;
                                 // Were one registered, it would be given, with the
                                 // directory of the call that failed.
                                 KoStyleManager* const other = create(right);
                                 ASSERT_NE(other, nullptr) << n;
                                 EXPECT_EQ(Text(StyleManager_systemStyleDirPath(other)), right) << n;
                                 EXPECT_TRUE(HasStyleManager(other));
                                 EXPECT_TRUE(StyleManager_destroy(other));
                                 error = untouched;
                               });
  EXPECT_GT(failures, 5);
  EXPECT_EQ(error, KOSTYLE_OK);
  ASSERT_NE(manager, nullptr);
  EXPECT_TRUE(HasStyleManager(manager));
  EXPECT_EQ(Text(StyleManager_systemStyleDirPath(manager)), wrong);
  StyleManager_destroy(manager);
}

TEST(FindingAManagerWithoutMemory, LeavesItAsItIs) {
  const test::TemporaryDirectory directory;
  const auto path = test::pathText(directory.folder("styles"));
  const KoStyleChar* const further[] = {path.c_str()};
  const auto create = [&] {
    return CreateStyleManager(KOSTYLE_TEXT("app"), path.c_str(), path.c_str(), further, 1, nullptr, 0,
                              nullptr);
  };
  KoStyleManager* const manager = create();
  KoStyleManager* found = nullptr;
  EXPECT_GT(test::failEachAllocation([&] { found = create(); },
                                     [&](long, bool thrown) {
                                       EXPECT_TRUE(thrown);
                                       EXPECT_TRUE(HasStyleManager(manager));
                                     }),
            0);
  EXPECT_EQ(found, manager);
  StyleManager_destroy(manager);
}

// Room is taken for several styles at a time, so not every creation asks for memory.
TEST(CreatingAMutableStyleWithoutMemory, GivesNoneAndKeepsTheOthers) {
  const test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  long failures = 0;
  for (int i = 0; i < 100; ++i) {
    KoStyleStyle* const earlier = std::exchange(style, nullptr);
    failures += test::failEachAllocation(
        [&] { style = StyleManager_createMutableStyle(host.manager); },
        [&](long n, bool thrown) {
          EXPECT_TRUE(thrown) << n;
          EXPECT_EQ(style, nullptr) << n;
          EXPECT_TRUE(StyleManager_hasMutableStyle(host.manager, earlier)) << n;
        });
    ASSERT_TRUE(StyleManager_hasMutableStyle(host.manager, style));
  }
  EXPECT_GT(failures, 2);
}

TEST(RemovingAUserStyleWithoutMemory, IsRefusedAndChangesNothing) {
  const test::Host host;
  KoStyleStyle* const style = host.addUserStyle("A");
  ASSERT_EQ(StyleManager_numUserStyle(host.manager), 1u);
  const auto before = test::filesOf(host.user);
  long n = 0;
  for (;; ++n) {
    int code = -1;
    bool failed = false;
    EXPECT_FALSE(test::runsOutOfMemory(n, failed, [&] { code = UserStyle_remove(style); })) << n;
    if (!failed) {
      EXPECT_EQ(code, KOSTYLE_OK);
      break;
    }
    ASSERT_EQ(code, KOSTYLE_ERROR_INVALID_HANDLE) << n;
    ASSERT_TRUE(StyleManager_hasUserStyle(host.manager, style)) << n;
    ASSERT_EQ(test::filesOf(host.user), before) << n;
  }
  EXPECT_GT(n, 0);
  EXPECT_EQ(StyleManager_numUserStyle(host.manager), 0u);
  EXPECT_TRUE(test::filesOf(host.user).empty());
}

}  // namespace
