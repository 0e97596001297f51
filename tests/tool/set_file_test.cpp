// What `set` does to the file itself: replaced at once or left as it is, and nothing left beside it.
#include <thread>

#include "tool/held_file.h"
#include "tool/tool.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace test {
namespace {

class SetFile : public testing::Test {
 protected:
  SetFile() { writeFile(file_, document("S", "N")); }

  Arguments rename(const std::string& name) const {
    return {"set", "S", "--user", argument(user_), "--name", name};
  }
  void expectRenamed(const std::string& name) const { EXPECT_EQ(readFile(file_), document("S", name)); }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
  const fs::path file_ = user_ / "mine.kostyle";
  const fs::path lock_ = user_ / "kostyle.lock";
};

TEST_F(SetFile, GivesUpWhenAnotherIsAtWork) {
  const HeldLock held(lock_);
  ASSERT_TRUE(held.isOpen());
  expectFailure(runTool(rename("X") + Arguments{"--wait", "0"}), 1,
                "another kostyle is changing files of this folder and is not done after 0 s");
  expectRenamed("N");
}

TEST_F(SetFile, WaitsForAnother) {
  auto held = std::make_unique<HeldLock>(lock_);
  ASSERT_TRUE(held->isOpen());
  std::thread other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(2500));
    held.reset();
  });
  const Outcome outcome = runTool(rename("X"));
  other.join();
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err,
            "kostyle: notice: waiting for another kostyle that has " + printed(lock_) + "\n");
  expectRenamed("X");
}

TEST_F(SetFile, MindsNothingThatIsLeftBehind) {
  writeFile(lock_, "");
  writeFile(user_ / "kostyle.new", "half a fi");
  expectSuccess(runTool(rename("X")));
  expectRenamed("X");
  EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
}

TEST_F(SetFile, NamesWhatStandsInTheWay) {
  fs::create_directory(user_ / "kostyle.new");
  writeFile(user_ / "kostyle.new" / "file", "mine");
  expectFailure(runTool(rename("X")), 1,
                printed(user_ / "kostyle.new") + ": stands in the way and cannot be removed: ");
  expectRenamed("N");
}

TEST_F(SetFile, SaysThatApplicationsWouldRefuseTheResult) {
  const std::string before = readFile(file_);
  expectFailure(runTool({"set", "S", "--user", argument(user_), "--delete-audio-effect", "E"}), 1,
                "the file is left as it is, because applications would refuse it");
  EXPECT_EQ(readFile(file_), before);
}

TEST_F(SetFile, KeepsALockFileThatIsSomebodysOwn) {
  writeFile(lock_, "mine");
  expectSuccess(runTool(rename("X")));
  EXPECT_EQ(readFile(lock_), "mine");
}

TEST_F(SetFile, LosesNoChangeOfMany) {
  constexpr int count = 16;
  runManyTools(count, [&](int i) {
    const std::string number = std::to_string(i);
    return Arguments{"set", "S", "--user", argument(user_), "--wait", "300"} +
           Arguments{"--add-genre", "g" + number, "--add", "--param", "E.p" + number + "=" + number};
  });
  EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
  const auto style = styleIn(file_);
  EXPECT_EQ(style["genres"].Size(), static_cast<unsigned>(count));
  for (int i = 0; i < count; ++i)
    EXPECT_EQ(parameter(style, "p" + std::to_string(i))["value"].GetInt(), i);
}

#if defined(_WIN32)
// Such as one that is just replacing it.
TEST_F(SetFile, WaitsForAProgramThatLetsNobodyReadTheFile) {
  auto held = std::make_unique<OpenFile>(file_, 0);
  ASSERT_TRUE(held->isOpen());
  std::thread other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(1000));
    held.reset();
  });
  const Outcome outcome = runTool(rename("X"));
  other.join();
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  expectRenamed("X");
}

TEST_F(SetFile, SaysThatAFileIsInUse) {
  const OpenFile held(file_, 0);
  ASSERT_TRUE(held.isOpen());
  expectFailure(runTool(rename("X") + Arguments{"--wait", "0"}), 1,
                "S: no style has this identifier; " + printed(file_) + ": cannot be opened: ");
}
#endif

TEST_F(SetFile, KeepsALink) {
  const fs::path target = directory_.folder("elsewhere") / "real.txt";
  fs::rename(file_, target);
  std::error_code error;
  fs::create_symlink(fs::path("..") / "elsewhere" / "real.txt", file_, error);
  if (error) GTEST_SKIP() << "links cannot be made here: " << error.message();
  const Outcome outcome = runTool(rename("X"));
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "S\t" + printed(file_) + "\n");
  EXPECT_TRUE(fs::is_symlink(file_));
  EXPECT_EQ(readFile(target), document("S", "X"));
  EXPECT_THAT(entryNames(target.parent_path()), ElementsAre("real.txt"));
  EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
}

TEST_F(SetFile, TouchesNothingWhenNothingChanges) {
  const auto before = fs::last_write_time(file_) - std::chrono::hours(1);
  fs::last_write_time(file_, before);
  expectSuccess(runTool(rename("N")));
  EXPECT_EQ(fs::last_write_time(file_), before);
}

#if defined(_WIN32)
TEST_F(SetFile, RefusesAReadOnlyFile) {
  SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
  expectFailure(runTool(rename("X")), 1, "mine.kostyle: cannot be written: it is marked as read-only");
  expectRenamed("N");
  SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SetFile, KeepsItsAttributes) {
  SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE);
  expectSuccess(runTool(rename("X")));
  expectRenamed("X");
  EXPECT_NE(GetFileAttributesW(file_.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0u);
}

TEST_F(SetFile, RefusesAFileThatIsOpenElsewhere) {
  {
    const OpenFile open(file_, FILE_SHARE_READ);
    ASSERT_TRUE(open.isOpen());
    expectFailure(runTool(rename("X") + Arguments{"--wait", "0"}), 1, "a program may have it open");
  }
  expectRenamed("N");
  EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
}

TEST_F(SetFile, WaitsUntilAFileIsClosedElsewhere) {
  auto open = std::make_unique<OpenFile>(file_, FILE_SHARE_READ);
  ASSERT_TRUE(open->isOpen());
  std::thread other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(2500));
    open.reset();
  });
  const Outcome outcome = runTool(rename("X"));
  other.join();
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err,
            "kostyle: notice: waiting for a program that has " + printed(file_) + " open\n");
  expectRenamed("X");
}
#else
TEST_F(SetFile, KeepsItsMode) {
  for (const mode_t mode : {0600U, 0644U, 0660U, 0777U}) {
    ASSERT_EQ(chmod(file_.c_str(), mode), 0);
    expectSuccess(runTool(rename("mode " + std::to_string(mode))));
    struct stat status {};
    ASSERT_EQ(stat(file_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode);
  }
}

TEST_F(SetFile, KeepsItsOwner) {
  constexpr uid_t owner = 1234;
  constexpr gid_t group = 5678;
  if (chown(file_.c_str(), owner, group) != 0) GTEST_SKIP() << "only root gives files away";
  expectSuccess(runTool(rename("X")));
  expectRenamed("X");
  struct stat status {};
  ASSERT_EQ(stat(file_.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, owner);
  EXPECT_EQ(status.st_gid, group);
}

TEST_F(SetFile, RefusesAFileWhoseOwnerCannotBeKept) {
  if (std::system("command -v setpriv > /dev/null") != 0) GTEST_SKIP() << "setpriv is missing";
  if (chown(file_.c_str(), 1234, 5678) != 0) GTEST_SKIP() << "only root gives files away";
  ASSERT_EQ(chmod(file_.c_str(), 0666), 0);
  expectFailure(runUnprivileged(rename("X")), 1,
                "its owner and group cannot be kept: Operation not permitted");
  expectRenamed("N");
  EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
}

TEST_F(SetFile, RefusesAReadOnlyFile) {
  if (std::system("command -v setpriv > /dev/null") != 0) GTEST_SKIP() << "setpriv is missing";
  ASSERT_EQ(chmod(file_.c_str(), 0444), 0);
  expectFailure(runUnprivileged(rename("X")), 1, "mine.kostyle: cannot be written: Permission denied");
  expectRenamed("N");
}

TEST_F(SetFile, RefusesAFolderThatIsReadOnly) {
  if (std::system("command -v setpriv > /dev/null") != 0) GTEST_SKIP() << "setpriv is missing";
  ASSERT_EQ(chmod(user_.c_str(), 0555), 0);
  expectFailure(runUnprivileged(rename("X")), 1,
                printed(user_) + ": no file can be made in it: Permission denied");
  ASSERT_EQ(chmod(user_.c_str(), 0755), 0);
  expectRenamed("N");
}

TEST_F(SetFile, KeepsTheFileOnAFullDisk) {
  const auto before = contents(directory_.path());
  const Outcome outcome = runToolOnFullDisk(
      1, {"set", "S", "--user", argument(user_), "--add-genre", std::string(2000, 'g')});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out,
            "kostyle: " + printed(file_) + ": its new content cannot be written: File too large\n");
  EXPECT_EQ(contents(directory_.path()), before);
}

TEST_F(SetFile, KeepsAFileThatWouldNotFitTwice) {
  writeFile(file_, document("S", "N", R"("p":1)", "\"more\":\"" + std::string(5000, 'm') + "\""));
  const auto before = contents(directory_.path());
  const Outcome outcome = runToolOnFullDisk(1, rename("Other"));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("a copy to be read cannot be written: File too large"));
  EXPECT_EQ(contents(directory_.path()), before);
}
#endif

}  // namespace
}  // namespace test
