// Overwriting a user style while the file system refuses.
#include <kostyle/codes.h>

#include "faults/editing_host.h"
#include "faults/faulty_platform.h"

namespace {

using test::EditingHost;
using test::Faults;
using test::text;
using test::utf8;
using testing::ElementsAre;
namespace fs = test::fs;

struct OverwriteFaults : testing::Test {
  OverwriteFaults() {
    host.writeStyle("a");
    host.writeStyle("b");
    host.manager.readUserStyles();
    otherBytes = host.bytes("b");
  }

  std::uint32_t overwrite(bool expectSuccess) {
    std::uint32_t code = 99;
    const auto* result = draft->overwrite(KOSTYLE_TEXT("a"), false, &code);
    EXPECT_EQ(result != nullptr, expectSuccess);
    EXPECT_EQ(host.manager.numUserStyle(), 2U);
    EXPECT_EQ(host.bytes("b"), otherBytes);
    return code;
  }

  void expectNothingChangedInMemory() {
    EXPECT_TRUE(host.manager.hasMutableStyle(draft));
    EXPECT_EQ(utf8(host.find("a")->name()), "Old a");
    EXPECT_EQ(utf8(host.find("a")->audioEffect(0)->id()), "E");
  }

  EditingHost host;
  test::MutableStyle* draft = host.draft();
  std::string otherBytes;
};

TEST_F(OverwriteFaults, RefusedOpeningGivesItsCode) {
  const std::string bytes = host.bytes("a");
  Faults faults;
  faults.refuseOpening = true;
  EXPECT_EQ(overwrite(false), std::uint32_t{KOSTYLE_ERROR_OPEN_FAILED});
  expectNothingChangedInMemory();
  EXPECT_EQ(host.bytes("a"), bytes);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, StyleThatCannotBeWrittenLeavesTheTarget) {
  const std::string bytes = host.bytes("a");
  draft->audioEffect(0)->destroy();
  EXPECT_EQ(overwrite(false), std::uint32_t{KOSTYLE_ERROR_NO_EFFECT});
  expectNothingChangedInMemory();
  EXPECT_EQ(host.bytes("a"), bytes);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, DeletedTargetGivesItsCodeAndNoTemporaryFile) {
  fs::remove(host.user / "a.kostyle");
  EXPECT_EQ(overwrite(false), std::uint32_t{KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE});
  expectNothingChangedInMemory();
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("b.kostyle"));
}

TEST_F(OverwriteFaults, TargetThatCannotBeDeletedGivesItsCodeAndNoTemporaryFile) {
  const std::string bytes = host.bytes("a");
  Faults faults;
  faults.refusedDeletion = 1;
  EXPECT_EQ(overwrite(false), std::uint32_t{KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE});
  expectNothingChangedInMemory();
  EXPECT_EQ(host.bytes("a"), bytes);
  EXPECT_EQ(faults.deletions, 2);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, EmptyDirectoryAtTheTargetIsReplaced) {
  fs::remove(host.user / "a.kostyle");
  host.directory.folder("user/a.kostyle");
  EXPECT_EQ(overwrite(true), std::uint32_t{KOSTYLE_OK});
  EXPECT_TRUE(fs::is_regular_file(host.user / "a.kostyle"));
}

TEST_F(OverwriteFaults, FilledDirectoryAtTheTargetStays) {
  fs::remove(host.user / "a.kostyle");
  test::writeFile(host.directory.folder("user/a.kostyle") / "x", "kept");
  EXPECT_EQ(overwrite(false), std::uint32_t{KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE});
  expectNothingChangedInMemory();
  EXPECT_EQ(test::readFile(host.user / "a.kostyle" / "x"), "kept");
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, UserDirectoryThatCannotBeCreatedGivesItsCode) {
  const fs::path aside = host.directory / "aside";
  fs::rename(host.user, aside);
  Faults faults;
  faults.refuseMakingDirectories = true;
  std::uint32_t code = 99;
  EXPECT_EQ(draft->overwrite(KOSTYLE_TEXT("a"), false, &code), nullptr);
  EXPECT_EQ(code, std::uint32_t{KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE});
  expectNothingChangedInMemory();
  EXPECT_THAT(test::entryNames(aside), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, TakenTemporaryNamesArePassedOver) {
  test::writeFile(host.user / "taken", "kept");
  Faults faults;
  faults.nextUuids = {text("taken"), text("free")};
  EXPECT_EQ(overwrite(true), std::uint32_t{KOSTYLE_OK});
  EXPECT_EQ(test::readFile(host.user / "taken"), "kept");
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle", "taken"));
}

TEST_F(OverwriteFaults, RefusedRenameSucceedsAndLeavesTheTemporaryFile) {
  Faults faults;
  faults.refuseRenaming = true;
  faults.nextUuids = {text("temporary")};
  EXPECT_EQ(overwrite(true), std::uint32_t{KOSTYLE_OK});
  EXPECT_EQ(utf8(host.find("a")->name()), "New");
  EXPECT_EQ(host.find("a")->path(), test::pathText(host.user / "a.kostyle"));
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("b.kostyle", "temporary"));
  EXPECT_THAT(test::readFile(host.user / "temporary"),
              testing::StartsWith(R"({"id":"a","name":"New")"));
}

TEST_F(OverwriteFaults, FullDiskGoesUnreported) {
  Faults faults;
  faults.refuseWriting = true;
  EXPECT_EQ(overwrite(true), std::uint32_t{KOSTYLE_OK});
  EXPECT_EQ(utf8(host.find("a")->name()), "New");
  EXPECT_EQ(host.bytes("a"), "");
}

}  // namespace
