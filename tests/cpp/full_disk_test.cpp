// Saving with care where there is no room: in a child process that may write no long files, as on a
// full disk.
#include "cpp/cpp_host.h"

#if defined(__linux__)

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "support/style_value.h"

namespace {

using namespace kostyle;
using test::entryNames;
using test::storedValueOf;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = test::fs;

// Runs a check in a child whose files hold so many bytes; 0 when it holds.
int withRoomFor(rlim_t bytes, const std::function<bool()>& check) {
  const pid_t child = fork();
  if (child == 0) {
    try {
      signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{bytes, bytes};
      _exit(setrlimit(RLIMIT_FSIZE, &limit) == 0 && check() ? 0 : 1);
    } catch (...) {
      _exit(99);
    }
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool isOnly(const Problems& problems, ProblemKind kind) {
  return problems.size() == 1 && problems[0].kind == kind;
}

struct CppFullDisk : testing::Test {
  test::CppHost host;
  MutableStyle style = host.createMutableStyle();
};

TEST_F(CppFullDisk, RefusesANewStyleAndLeavesNoFile) {
  EXPECT_EQ(withRoomFor(16,
                        [&] {
                          const SafeSaveResult saved = safeSave(style);
                          return !saved && isOnly(saved.problems, ProblemKind::notReadBack) &&
                                 host.manager.has(style) && host.manager.userStyles().empty();
                        }),
            0);
  EXPECT_THAT(entryNames(host.user), IsEmpty());
}

TEST_F(CppFullDisk, LeavesTheOldFileAndStyleAsTheyWere) {
  const UserStyle target = host.addUserStyle("u");
  const std::string bytes = host.bytes("u");
  EXPECT_EQ(withRoomFor(16,
                        [&] {
                          const AudioEffect effect = target.audioEffects()[0];
                          const SafeSaveResult saved = safeOverwrite(style, target);
                          return !saved && isOnly(saved.problems, ProblemKind::notReadBack) &&
                                 host.manager.has(style) && target.has(effect) &&
                                 target.name() == "Old";
                        }),
            0);
  EXPECT_EQ(host.bytes("u"), bytes);
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
}

// The identifier makes the style's own file longer than the one that was tried.
TEST_F(CppFullDisk, PutsTheOldFileAndStyleBackWhenItBecomesFullMeanwhile) {
  const std::string longId(5000, 'i');
  const std::string document = test::document(longId, "Old");
  test::writeFile(host.user / "u.kostyle", document);
  ASSERT_TRUE(host.manager.readUserStyles());
  const UserStyle target = host.manager.userStyles()[0];
  EXPECT_EQ(withRoomFor(1000,
                        [&] {
                          const test::StoredValue before = storedValueOf(target.handle());
                          const SafeSaveResult saved = safeOverwrite(style, target);
                          return !saved && isOnly(saved.problems, ProblemKind::notReadBack) &&
                                 host.manager.has(style) && storedValueOf(target.handle()) == before;
                        }),
            0);
  EXPECT_EQ(host.bytes("u"), document);
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
}

TEST_F(CppFullDisk, OnAnotherFileSystemThanTheUserDirectoryRefusesToOverwrite) {
  const fs::path memory = "/dev/shm";
  std::error_code error;
  const fs::path further = memory / ("kostyle-test-" + std::to_string(getpid()));
  if (!fs::create_directory(further, error)) GTEST_SKIP() << "no second file system";
  test::writeFile(further / "f.kostyle", test::document("f", "Old"));
  const Manager manager =
      test::valueOf(Manager::create(test::freshAppID(), host.system, host.user, {{}, {further}}));
  EXPECT_TRUE(manager.readUserStyles());
  const MutableStyle copy = createMutableCopy(manager.userStyles()[0]).style;
  const SafeSaveResult saved = safeOverwrite(copy, manager.userStyles()[0]);
  const bool oneFileSystem = static_cast<bool>(saved);
  const auto names = entryNames(further);
  const std::string bytes = test::readFile(further / "f.kostyle");
  fs::remove_all(further);
  if (oneFileSystem) GTEST_SKIP() << "the temporary folder is on the same file system";
  EXPECT_TRUE(isOnly(saved.problems, ProblemKind::notReplaceable));
  EXPECT_EQ(saved.problems[0].cause, std::errc::cross_device_link);
  EXPECT_EQ(bytes, test::document("f", "Old"));
  EXPECT_THAT(names, ElementsAre("f.kostyle"));
  EXPECT_THAT(entryNames(host.user), IsEmpty());
}

}  // namespace

#endif
