// Overwriting a user style while the file system refuses.
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
    StyleManager_readUserStyles(host.manager);
    otherBytes = host.bytes("b");
  }

  int overwrite(bool expectSuccess) {
    int code = -1;
    const auto* result = MutableStyle_overwrite(unsaved, KOSTYLE_TEXT("a"), false, &code);
    EXPECT_EQ(result != nullptr, expectSuccess);
    EXPECT_EQ(StyleManager_numUserStyle(host.manager), 2U);
    EXPECT_EQ(host.bytes("b"), otherBytes);
    return code;
  }

  void expectNothingChangedInMemory() {
    EXPECT_TRUE(StyleManager_hasMutableStyle(host.manager, unsaved));
    EXPECT_EQ(utf8(Style_name(host.userStyle("a"))), "Old a");
    EXPECT_EQ(utf8(Effect_id(Style_audioEffect(host.userStyle("a"), 0))), "E");
  }

  EditingHost host;
  KoStyleStyle* unsaved = host.createMutableStyle();
  std::string otherBytes;
};

TEST_F(OverwriteFaults, RefusedOpeningGivesItsCode) {
  const std::string bytes = host.bytes("a");
  Faults faults;
  faults.refuseOpening = true;
  EXPECT_EQ(overwrite(false), int{KOSTYLE_ERROR_OPEN_FAILED});
  expectNothingChangedInMemory();
  EXPECT_EQ(host.bytes("a"), bytes);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, TargetThatCannotBeDeletedGivesItsCodeAndNoTemporaryFile) {
  const std::string bytes = host.bytes("a");
  Faults faults;
  faults.refusedDeletion = 1;
  EXPECT_EQ(overwrite(false), int{KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE});
  expectNothingChangedInMemory();
  EXPECT_EQ(host.bytes("a"), bytes);
  EXPECT_EQ(faults.deletions, 2);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, UserDirectoryThatCannotBeCreatedGivesItsCode) {
  const fs::path aside = host.directory / "aside";
  fs::rename(host.user, aside);
  Faults faults;
  faults.refuseMakingDirectories = true;
  int code = -1;
  EXPECT_EQ(MutableStyle_overwrite(unsaved, KOSTYLE_TEXT("a"), false, &code), nullptr);
  EXPECT_EQ(code, int{KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE});
  expectNothingChangedInMemory();
  EXPECT_THAT(test::entryNames(aside), ElementsAre("a.kostyle", "b.kostyle"));
}

TEST_F(OverwriteFaults, TakenTemporaryNamesArePassedOver) {
  test::writeFile(host.user / "taken", "kept");
  Faults faults;
  faults.nextUuids = {text("taken"), text("free")};
  EXPECT_EQ(overwrite(true), int{KOSTYLE_OK});
  EXPECT_EQ(test::readFile(host.user / "taken"), "kept");
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle", "taken"));
}

TEST_F(OverwriteFaults, RefusedRenameSucceedsAndLeavesTheTemporaryFile) {
  Faults faults;
  faults.refuseRenaming = true;
  faults.nextUuids = {text("temporary")};
  EXPECT_EQ(overwrite(true), int{KOSTYLE_OK});
  EXPECT_EQ(utf8(Style_name(host.userStyle("a"))), "New");
  EXPECT_EQ(Style_path(host.userStyle("a")), test::pathText(host.user / "a.kostyle"));
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("b.kostyle", "temporary"));
  EXPECT_THAT(test::readFile(host.user / "temporary"),
              testing::StartsWith(R"({"id":"a","name":"New")"));
}

TEST_F(OverwriteFaults, FullDiskGoesUnreported) {
  Faults faults;
  faults.refuseWriting = true;
  EXPECT_EQ(overwrite(true), int{KOSTYLE_OK});
  EXPECT_EQ(utf8(Style_name(host.userStyle("a"))), "New");
  EXPECT_EQ(host.bytes("a"), "");
}

}  // namespace
