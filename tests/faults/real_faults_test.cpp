// Faults that the system itself brings about, where it lets a test do so: in a child process without
// privileges or with little space.
#include <gmock/gmock.h>

#if defined(__linux__)

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "faults/editing_host.h"

namespace {

using test::EditingHost;
using test::utf8;
using testing::ElementsAre;
namespace fs = test::fs;

constexpr int notPossibleHere = 77;

// The child's answer: 0 when `check` holds.
int inChild(const std::function<int()>& check) {
  const pid_t child = fork();
  if (child == 0) {
    try {
      _exit(check());
    } catch (...) {
      _exit(99);
    }
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool dropPrivileges() {
  constexpr uid_t nobody = 65534;
  return geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0);
}

struct RealFaults : testing::Test {
  RealFaults() {
    host.writeStyle("a");
    StyleManager_readUserStyles(host.manager);
    fs::permissions(host.directory.path(), fs::perms(0755));
  }
  ~RealFaults() override { fs::permissions(host.user, fs::perms(0755)); }

  int codeOfSave() {
    int code = -1;
    MutableStyle_save(host.createMutableStyle(), false, &code);
    return code;
  }

  EditingHost host;
  KoStyleStyle* unsaved = host.createMutableStyle();
};

TEST_F(RealFaults, ReadOnlyDirectoryRefusesSavingOverwritingAndRemoving) {
  fs::permissions(host.user, fs::perms(0555));
  EXPECT_EQ(inChild([&] {
              if (!dropPrivileges()) return notPossibleHere;
              return codeOfSave();
            }),
            KOSTYLE_ERROR_OPEN_FAILED);
  EXPECT_EQ(inChild([&] {
              if (!dropPrivileges()) return notPossibleHere;
              int code = -1;
              MutableStyle_overwrite(unsaved, KOSTYLE_TEXT("a"), false, &code);
              return code;
            }),
            KOSTYLE_ERROR_OPEN_FAILED);
  EXPECT_EQ(inChild([&] {
              if (!dropPrivileges()) return notPossibleHere;
              return UserStyle_remove(host.userStyle("a"));
            }),
            KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle"));
}

TEST_F(RealFaults, ReadOnlyFileRefusesEditingAndStaysWhole) {
  const std::string bytes = host.bytes("a");
  fs::permissions(host.user / "a.kostyle", fs::perms(0444));
  EXPECT_EQ(inChild([&] {
              if (!dropPrivileges()) return notPossibleHere;
              KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(host.userStyle("a"));
              PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("Edited"));
              return PropertyEditor_save(editor, false) ||
                             utf8(Style_name(host.userStyle("a"))) != "Old a"
                         ? 1
                         : 0;
            }),
            0);
  EXPECT_EQ(host.bytes("a"), bytes);
}

TEST_F(RealFaults, FileWithoutReadPermissionIsPassedOver) {
  host.writeStyle("b");
  fs::permissions(host.user / "b.kostyle", fs::perms::none);
  EXPECT_EQ(inChild([&] {
              if (!dropPrivileges()) return notPossibleHere;
              StyleManager_readUserStyles(host.manager);
              return static_cast<int>(10 * StyleManager_numUserStyle(host.manager) +
                                      StyleManager_numUserStyleCreationResult(host.manager));
            }),
            11);
}

TEST_F(RealFaults, WritesPastTheSizeLimitGoUnreported) {
  EXPECT_EQ(inChild([&] {
              signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{16, 16};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return notPossibleHere;
              return codeOfSave();
            }),
            KOSTYLE_OK);
  fs::remove(host.user / "a.kostyle");
  const auto names = test::entryNames(host.user);
  ASSERT_EQ(names.size(), 1U);
  EXPECT_EQ(fs::file_size(host.user / names[0]), 16U);
}

TEST_F(RealFaults, FullFileSystemGoesUnreported) {
  const int answer = inChild([&] {
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("none", host.user.c_str(), "tmpfs", 0, "size=4k,nr_inodes=3") != 0) {
      return notPossibleHere;
    }
    test::writeFile(host.user / "filler", std::string(4096, 'x'));
    const int code = codeOfSave();
    const auto names = test::entryNames(host.user);
    const bool empty =
        names.size() == 2 &&
        fs::file_size(host.user / names[0]) + fs::file_size(host.user / names[1]) == 4096;
    return code == KOSTYLE_OK && empty ? codeOfSave() : 1;
  });
  if (answer == notPossibleHere)
    GTEST_SKIP() << "this process may not mount a file system; SaveFaults has a full disk without one";
  EXPECT_EQ(answer, KOSTYLE_ERROR_OPEN_FAILED);
}

TEST_F(RealFaults, StyleFileThatADeviceReplacedIsNotWritten) {
  fs::remove(host.user / "a.kostyle");
  fs::create_symlink("/dev/full", host.user / "a.kostyle");
  KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(host.userStyle("a"));
  PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("Edited"));
  EXPECT_FALSE(PropertyEditor_save(editor, false));
  EXPECT_EQ(utf8(Style_name(host.userStyle("a"))), "Old a");
}

}  // namespace

#endif
