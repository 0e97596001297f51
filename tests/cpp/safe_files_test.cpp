// What a safe save keeps beside the files that matter.
#include "cpp/cpp_host.h"

namespace {

using kostyle::detail::Backup;
using kostyle::detail::ScratchFolder;
using test::entryNames;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = test::fs;

struct CppBackup : testing::Test {
  CppBackup() { test::writeFile(file, "old"); }

  // In the library's way: the old file is deleted, and another gets its name.
  void replace() const {
    fs::remove(file);
    test::writeFile(file, "new");
  }

  test::TemporaryDirectory directory;
  fs::path file = directory / "f";
};

TEST_F(CppBackup, PutsTheOldFileBack) {
  Backup backup(file);
  replace();
  EXPECT_EQ(test::readFile(backup.path()), "old");
  EXPECT_FALSE(backup.restore());
  EXPECT_EQ(test::readFile(file), "old");
  EXPECT_THAT(entryNames(directory.path()), ElementsAre("f"));
}

TEST_F(CppBackup, PutsTheOldFileBackAtItsEnd) {
  { const Backup backup(file); }
  EXPECT_THAT(entryNames(directory.path()), ElementsAre("f"));
  {
    const Backup backup(file);
    replace();
  }
  EXPECT_EQ(test::readFile(file), "old");
  EXPECT_THAT(entryNames(directory.path()), ElementsAre("f"));
}

TEST_F(CppBackup, StandsInForAFileThatIsGone) {
  Backup backup(file);
  replace();
  backup.standIn();
  EXPECT_EQ(test::readFile(file), "new");
  fs::remove(file);
  backup.standIn();
  EXPECT_EQ(test::readFile(file), "old");
  EXPECT_EQ(test::readFile(backup.path()), "old");
}

TEST_F(CppBackup, IsRemovedWhenItIsNotNeeded) {
  Backup backup(file);
  replace();
  backup.discard();
  EXPECT_FALSE(backup.restore());
  EXPECT_EQ(test::readFile(file), "new");
  EXPECT_THAT(entryNames(directory.path()), ElementsAre("f"));
}

TEST_F(CppBackup, OfAFileThatWasNotReplacedIsGivenUp) {
  {
    Backup backup(file);
    backup.giveUp();
    EXPECT_THAT(entryNames(directory.path()), ElementsAre("f"));
    test::writeFile(file, "changed by somebody else");
  }
  EXPECT_EQ(test::readFile(file), "changed by somebody else");
  Backup backup(file);
  fs::remove(file);
  backup.giveUp();
  EXPECT_EQ(test::readFile(file), "changed by somebody else");
  EXPECT_THAT(entryNames(directory.path()), ElementsAre("f"));
}

TEST_F(CppBackup, TakesNoNameThatSomethingHas) {
  test::writeFile(directory / "g", "of somebody else");
  EXPECT_EQ(kostyle::detail::linkOrCopy(file, directory / "g"), std::errc::file_exists);
  EXPECT_EQ(kostyle::detail::linkOrCopy(directory / "missing", directory / "g"),
            std::errc::no_such_file_or_directory);
  EXPECT_EQ(test::readFile(directory / "g"), "of somebody else");
}

TEST_F(CppBackup, OfAMissingFileIsNone) {
  fs::remove(file);
  Backup backup(file);
  EXPECT_TRUE(backup.error());
  EXPECT_FALSE(backup.restore());
  EXPECT_THAT(entryNames(directory.path()), IsEmpty());
}

TEST_F(CppBackup, StaysWhenItCannotBePutBack) {
  Backup backup(file);
  fs::remove(file);
  fs::create_directories(file / "full");
  EXPECT_TRUE(backup.restore());
  EXPECT_EQ(test::readFile(backup.path()), "old");
}

TEST(CppScratchFolder, IsRemovedWithItsContent) {
  const test::TemporaryDirectory directory;
  {
    const ScratchFolder first(directory / "missing");
    const ScratchFolder second(directory / "missing");
    ASSERT_FALSE(first.error() || second.error());
    EXPECT_NE(first.path(), second.path());
    test::writeFile(first.path() / "file", "x");
    EXPECT_EQ(entryNames(directory / "missing").size(), 2U);
  }
  EXPECT_THAT(entryNames(directory / "missing"), IsEmpty());
}

TEST(CppScratchFolder, InAFileIsNone) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory / "file", "");
  EXPECT_TRUE(ScratchFolder(directory / "file").error());
}

}  // namespace
