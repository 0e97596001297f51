// Saving a new style while the file system refuses.
#include <kostyle/codes.h>

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
  test::IUserStyle* style;
  std::uint32_t code = 99;
};

Saved save(test::MutableStyle* draft) {
  Saved saved{nullptr};
  saved.style = draft->save(false, &saved.code);
  return saved;
}

// A refused save leaves the lists as they were and the draft ready to be saved.
void expectRefusal(EditingHost& host, test::MutableStyle* draft, std::uint32_t code) {
  const std::size_t styles = host.manager.numUserStyle();
  const Saved saved = save(draft);
  EXPECT_EQ(saved.style, nullptr);
  EXPECT_EQ(saved.code, code);
  EXPECT_EQ(host.manager.numUserStyle(), styles);
  EXPECT_TRUE(host.manager.hasMutableStyle(draft));
}

TEST(SaveFaults, RefusedOpeningGivesItsCodeAndNoFile) {
  EditingHost host;
  auto* draft = host.draft();
  {
    Faults faults;
    faults.refuseOpening = true;
    expectRefusal(host, draft, KOSTYLE_ERROR_OPEN_FAILED);
    EXPECT_THAT(test::entryNames(host.user), IsEmpty());
  }
  EXPECT_NE(save(draft).style, nullptr);
}

TEST(SaveFaults, RefusedOpeningComesBeforeWhatTheStyleLacks) {
  EditingHost host;
  auto* draft = host.draft();
  draft->audioEffect(0)->destroy();
  Faults faults;
  faults.refuseOpening = true;
  expectRefusal(host, draft, KOSTYLE_ERROR_OPEN_FAILED);
  faults.refuseOpening = false;
  expectRefusal(host, draft, KOSTYLE_ERROR_NO_EFFECT);
  EXPECT_THAT(test::entryNames(host.user), IsEmpty());
}

TEST(SaveFaults, MissingUserDirectoryIsCreated) {
  EditingHost host;
  fs::remove_all(host.user);
  const Saved saved = save(host.draft());
  EXPECT_EQ(saved.code, std::uint32_t{KOSTYLE_OK});
  EXPECT_EQ(test::entryNames(host.user).size(), 1U);
}

TEST(SaveFaults, UserDirectoryThatCannotBeCreatedGivesItsCode) {
  EditingHost host;
  auto* draft = host.draft();
  fs::remove_all(host.user);
  Faults faults;
  faults.refuseMakingDirectories = true;
  expectRefusal(host, draft, KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
  EXPECT_FALSE(fs::exists(host.user));
}

TEST(SaveFaults, TakenNamesArePassedOver) {
  EditingHost host;
  host.writeStyle("taken-id");
  host.manager.readUserStyles();
  test::writeFile(host.user / "taken-file.kostyle", "kept");
  host.directory.folder("user/taken-folder.kostyle");
  fs::rename(host.user / "taken-id.kostyle", host.user / "elsewhere.kostyle");
  Faults faults;
  faults.nextUuids = {text("taken-id"), text("taken-file"), text("taken-folder"), text("free")};
  const Saved saved = save(host.draft());
  ASSERT_NE(saved.style, nullptr);
  EXPECT_EQ(test::utf8(saved.style->id()), "free");
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("elsewhere.kostyle", "free.kostyle",
                                                       "taken-file.kostyle", "taken-folder.kostyle"));
  EXPECT_EQ(test::readFile(host.user / "taken-file.kostyle"), "kept");
}

TEST(SaveFaults, FullDiskGoesUnreported) {
  EditingHost host;
  Faults faults;
  faults.refuseWriting = true;
  const Saved saved = save(host.draft());
  ASSERT_NE(saved.style, nullptr);
  EXPECT_EQ(saved.code, std::uint32_t{KOSTYLE_OK});
  EXPECT_EQ(fs::file_size(fs::path(host.user / test::utf8(saved.style->id())) += ".kostyle"), 0U);
}

}  // namespace
