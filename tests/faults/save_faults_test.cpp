// Saving a new style while the file system refuses.
#include "faults/editing_host.h"
#include "faults/faulty_platform.h"

namespace {

using test::EditingHost;
using test::Faults;
using test::text;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = test::fs;

struct Saved {
  KoStyleStyle* style;
  int code = -1;
};

Saved save(KoStyleStyle* unsaved) {
  Saved saved{nullptr};
  saved.style = MutableStyle_save(unsaved, false, &saved.code);
  return saved;
}

// A refused save leaves the lists as they were and the style ready to be saved.
void expectRefusal(EditingHost& host, KoStyleStyle* unsaved, int code) {
  const std::size_t styles = StyleManager_numUserStyle(host.manager);
  const Saved saved = save(unsaved);
  EXPECT_EQ(saved.style, nullptr);
  EXPECT_EQ(saved.code, code);
  EXPECT_EQ(StyleManager_numUserStyle(host.manager), styles);
  EXPECT_TRUE(StyleManager_hasMutableStyle(host.manager, unsaved));
}

TEST(SaveFaults, RefusedOpeningGivesItsCodeAndNoFile) {
  EditingHost host;
  KoStyleStyle* const unsaved = host.createMutableStyle();
  {
    Faults faults;
    faults.refuseOpening = true;
    expectRefusal(host, unsaved, KOSTYLE_ERROR_OPEN_FAILED);
    EXPECT_THAT(test::entryNames(host.user), IsEmpty());
  }
  EXPECT_NE(save(unsaved).style, nullptr);
}

TEST(SaveFaults, RefusedOpeningComesBeforeWhatTheStyleLacks) {
  EditingHost host;
  KoStyleStyle* const unsaved = host.createMutableStyle();
  MutableEffect_destroy(MutableStyle_audioEffect(unsaved, 0));
  Faults faults;
  faults.refuseOpening = true;
  expectRefusal(host, unsaved, KOSTYLE_ERROR_OPEN_FAILED);
  faults.refuseOpening = false;
  expectRefusal(host, unsaved, KOSTYLE_ERROR_NO_EFFECT);
  EXPECT_THAT(test::entryNames(host.user), IsEmpty());
}

TEST(SaveFaults, UserDirectoryThatCannotBeCreatedGivesItsCode) {
  EditingHost host;
  KoStyleStyle* const unsaved = host.createMutableStyle();
  fs::remove_all(host.user);
  Faults faults;
  faults.refuseMakingDirectories = true;
  expectRefusal(host, unsaved, KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
  EXPECT_FALSE(fs::exists(host.user));
}

TEST(SaveFaults, TakenNamesArePassedOver) {
  EditingHost host;
  host.writeStyle("taken-id");
  StyleManager_readUserStyles(host.manager);
  test::writeFile(host.user / "taken-file.kostyle", "kept");
  host.directory.folder("user/taken-folder.kostyle");
  fs::rename(host.user / "taken-id.kostyle", host.user / "elsewhere.kostyle");
  Faults faults;
  faults.nextUuids = {text("taken-id"), text("taken-file"), text("taken-folder"), text("free")};
  const Saved saved = save(host.createMutableStyle());
  ASSERT_NE(saved.style, nullptr);
  EXPECT_EQ(test::utf8(Style_id(saved.style)), "free");
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("elsewhere.kostyle", "free.kostyle",
                                                       "taken-file.kostyle", "taken-folder.kostyle"));
  EXPECT_EQ(test::readFile(host.user / "taken-file.kostyle"), "kept");
}

TEST(SaveFaults, FullDiskGoesUnreported) {
  EditingHost host;
  Faults faults;
  faults.refuseWriting = true;
  const Saved saved = save(host.createMutableStyle());
  ASSERT_NE(saved.style, nullptr);
  EXPECT_EQ(saved.code, int{KOSTYLE_OK});
  EXPECT_EQ(fs::file_size(fs::path(host.user / test::utf8(Style_id(saved.style))) += ".kostyle"), 0U);
}

}  // namespace
