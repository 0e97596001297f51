// Editing and removing user styles while the file system refuses.
#include "faults/editing_host.h"
#include "faults/faulty_platform.h"

namespace {

using test::EditingHost;
using test::Faults;
using test::utf8;

struct EditFaults : testing::Test {
  EditFaults() {
    host.writeStyle("a");
    host.writeStyle("b");
    StyleManager_readUserStyles(host.manager);
    style = host.userStyle("a");
    bytes = host.bytes("a");
  }

  bool edit() const {
    KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(style);
    PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("Edited"));
    PropertyEditor_addColor(editor, KOSTYLE_TEXT("red"));
    return PropertyEditor_save(editor, false);
  }

  EditingHost host;
  KoStyleStyle* style = nullptr;
  std::string bytes;
};

TEST_F(EditFaults, EditingAFileThatCannotBeOpenedChangesNothing) {
  Faults faults;
  faults.refuseOpening = true;
  EXPECT_FALSE(edit());
  EXPECT_EQ(utf8(Style_name(style)), "Old a");
  EXPECT_EQ(Style_numColor(style), 0U);
  EXPECT_EQ(host.bytes("a"), bytes);
}

TEST_F(EditFaults, EditingOnAFullDiskGoesUnreportedAndEmptiesTheFile) {
  Faults faults;
  faults.refuseWriting = true;
  EXPECT_TRUE(edit());
  EXPECT_EQ(utf8(Style_name(style)), "Edited");
  EXPECT_EQ(host.bytes("a"), "");
}

TEST_F(EditFaults, RemovingAFileThatCannotBeDeletedKeepsTheStyle) {
  Faults faults;
  faults.refusedDeletion = 1;
  EXPECT_EQ(UserStyle_remove(style), KOSTYLE_ERROR_DELETE_FAILED);
  EXPECT_TRUE(StyleManager_hasUserStyle(host.manager, style));
  EXPECT_EQ(host.bytes("a"), bytes);
}

}  // namespace
