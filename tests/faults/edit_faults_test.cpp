// Editing and removing user styles while the file system refuses.
#include <kostyle/codes.h>

#include "faults/editing_host.h"
#include "faults/faulty_platform.h"

namespace {

using test::EditingHost;
using test::Faults;
using test::utf8;
using testing::ElementsAre;
namespace fs = test::fs;

struct EditFaults : testing::Test {
  EditFaults() {
    host.writeStyle("a");
    host.writeStyle("b");
    host.manager.readUserStyles();
    style = host.find("a");
    bytes = host.bytes("a");
  }

  bool edit() const {
    auto* editor = style->createPropertyEditor();
    editor->setStyleName(KOSTYLE_TEXT("Edited"));
    editor->addColor(KOSTYLE_TEXT("red"));
    return editor->save(false);
  }

  EditingHost host;
  test::IUserStyle* style = nullptr;
  std::string bytes;
};

TEST_F(EditFaults, EditingAFileThatCannotBeOpenedChangesNothing) {
  Faults faults;
  faults.refuseOpening = true;
  EXPECT_FALSE(edit());
  EXPECT_EQ(utf8(style->name()), "Old a");
  EXPECT_EQ(style->numColor(), 0U);
  EXPECT_EQ(host.bytes("a"), bytes);
}

TEST_F(EditFaults, EditingOnAFullDiskGoesUnreportedAndEmptiesTheFile) {
  Faults faults;
  faults.refuseWriting = true;
  EXPECT_TRUE(edit());
  EXPECT_EQ(utf8(style->name()), "Edited");
  EXPECT_EQ(host.bytes("a"), "");
}

TEST_F(EditFaults, EditingAFileThatADirectoryReplacedChangesNothing) {
  fs::remove(host.user / "a.kostyle");
  host.directory.folder("user/a.kostyle");
  EXPECT_FALSE(edit());
  EXPECT_EQ(utf8(style->name()), "Old a");
  EXPECT_TRUE(fs::is_directory(host.user / "a.kostyle"));
}

TEST_F(EditFaults, RemovingAFileThatCannotBeDeletedKeepsTheStyle) {
  Faults faults;
  faults.refusedDeletion = 1;
  EXPECT_EQ(style->remove(), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_TRUE(host.manager.hasUserStyle(style));
  EXPECT_EQ(host.bytes("a"), bytes);
}

TEST_F(EditFaults, RemovingAStyleWhoseFileIsAnEmptyDirectoryRemovesThat) {
  fs::remove(host.user / "a.kostyle");
  host.directory.folder("user/a.kostyle");
  EXPECT_EQ(style->remove(), KOSTYLE_OK);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("b.kostyle"));
}

TEST_F(EditFaults, RemovingAStyleWhoseFileIsAFilledDirectoryIsRefused) {
  fs::remove(host.user / "a.kostyle");
  test::writeFile(host.directory.folder("user/a.kostyle") / "x", "kept");
  EXPECT_EQ(style->remove(), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_TRUE(host.manager.hasUserStyle(style));
  EXPECT_EQ(test::readFile(host.user / "a.kostyle" / "x"), "kept");
}

}  // namespace
