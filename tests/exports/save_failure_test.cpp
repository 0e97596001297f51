// The codes of saving and overwriting, in the order in which the steps can fail. A style that fails a
// step would fail the later ones as well.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <memory>
#include <string>

#include "support/host.h"
#include "support/style_value.h"

namespace {

using test::document;
using test::writeFile;
using test::fs::path;

class SaveFailure : public testing::Test {
 protected:
  void SetUp() override {
    writeFile(user / "u.kostyle", document("u", "old"));
    writeFile(system / "s.kostyle", document("s", "old"));
    ASSERT_EQ(StyleManager_readSystemStyles(manager), KOSTYLE_OK);
    ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
    target = StyleManager_userStyle(manager, 0);
  }

  void giveName() { ASSERT_TRUE(MutableStyle_setName(style, KOSTYLE_TEXT("N"))); }
  void giveEffect() { ASSERT_NE(MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E")), nullptr); }

  /// Neither the directory nor its parent can be made: a file is in the parent's place.
  void makeUserDirectoryNotCreatable() {
    test::fs::remove_all(parent);
    writeFile(parent, "in the way");
  }
  /// The directory seems to be there, but no file can be made in it.
  void putFileInUserDirectorysPlace() {
    test::fs::remove_all(user);
    writeFile(user, "in the way");
  }

  // Each expects a code, and that nothing has changed.
  void expectSave(int code) {
    int error = -1;
    const Untouched untouched(*this);
    EXPECT_EQ(MutableStyle_save(style, true, &error), nullptr);
    EXPECT_EQ(error, code);
  }
  void expectOverwrite(const KoStyleChar* id, int code) {
    int error = -1;
    const Untouched untouched(*this);
    EXPECT_EQ(MutableStyle_overwrite(style, id, true, &error), nullptr);
    EXPECT_EQ(error, code);
  }

  struct Untouched {
    explicit Untouched(const SaveFailure& failing) : test(failing) {}
    ~Untouched() {
      EXPECT_TRUE(StyleManager_hasMutableStyle(test.manager, test.style));
      EXPECT_EQ(test::valueOf(test.style), style);
      EXPECT_EQ(test::valueOf(test.target), target);
      EXPECT_EQ(StyleManager_numUserStyle(test.manager), 1u);
      EXPECT_EQ(test.userEntries(), entries);
    }
    const SaveFailure& test;
    test::StyleValue style = test::valueOf(test.style);
    test::StyleValue target = test::valueOf(test.target);
    std::vector<std::string> entries = test.userEntries();
  };
  std::vector<std::string> userEntries() const {
    return is_directory(user) ? test::entryNames(user) : std::vector<std::string>{"no directory"};
  }

  test::TemporaryDirectory directory;
  path system = directory.folder("system");
  path parent = directory / "parent";
  path user = directory.folder(path("parent") / "user");
  test::Manager manager{system, user};
  KoStyleStyle* style = StyleManager_createMutableStyle(manager);
  KoStyleStyle* target = nullptr;
};

TEST_F(SaveFailure, OfSavingIsArgumentMissingWithoutAName) {
  expectSave(KOSTYLE_ERROR_ARGUMENT_MISSING);
  makeUserDirectoryNotCreatable();
  expectSave(KOSTYLE_ERROR_ARGUMENT_MISSING);
}

TEST_F(SaveFailure, OfSavingIsDirectoryNotCreatableWhenTheUserDirectoryCannotBeMade) {
  giveName();
  makeUserDirectoryNotCreatable();
  expectSave(KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
}

TEST_F(SaveFailure, OfSavingIsOpenFailedWhenTheFileCannotBeOpened) {
  giveName();
  putFileInUserDirectorysPlace();
  expectSave(KOSTYLE_ERROR_OPEN_FAILED);
}

TEST_F(SaveFailure, OfSavingIsNoEffectWithoutAnEffect) {
  giveName();
  expectSave(KOSTYLE_ERROR_NO_EFFECT);
}

TEST_F(SaveFailure, OfSavingDoesNotKeepTheStyleFromBeingSavedLater) {
  giveName();
  expectSave(KOSTYLE_ERROR_NO_EFFECT);
  giveEffect();
  test::Host::save(style);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 2u);
  EXPECT_EQ(userEntries().size(), 2u);
}

TEST_F(SaveFailure, OfOverwritingIsArgumentMissingWithoutAnIdentifier) {
  makeUserDirectoryNotCreatable();
  expectOverwrite(nullptr, KOSTYLE_ERROR_ARGUMENT_MISSING);
}

TEST_F(SaveFailure, OfOverwritingIsNotFoundWhenNoUserStyleHasTheIdentifier) {
  giveName();
  giveEffect();
  for (const KoStyleChar* id : {KOSTYLE_TEXT("x"), KOSTYLE_TEXT(""), KOSTYLE_TEXT("U"),
                                KOSTYLE_TEXT("u "), KOSTYLE_TEXT("s")}) {
    expectOverwrite(id, KOSTYLE_ERROR_USER_STYLE_NOT_FOUND);
  }
  makeUserDirectoryNotCreatable();
  expectOverwrite(KOSTYLE_TEXT("x"), KOSTYLE_ERROR_USER_STYLE_NOT_FOUND);
}

TEST_F(SaveFailure, OfOverwritingIsDirectoryNotCreatableWhenTheUserDirectoryCannotBeMade) {
  makeUserDirectoryNotCreatable();
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
}

TEST_F(SaveFailure, OfOverwritingIsOpenFailedWhenTheTemporaryFileCannotBeOpened) {
  putFileInUserDirectorysPlace();
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_OPEN_FAILED);
}

TEST_F(SaveFailure, OfOverwritingIsEmptyNameWithoutAName) {
  test::fs::remove(user / "u.kostyle");
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_WRITE_EMPTY_NAME);
}

TEST_F(SaveFailure, OfOverwritingIsNoEffectWithoutAnEffect) {
  giveName();
  test::fs::remove(user / "u.kostyle");
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_NO_EFFECT);
}

TEST_F(SaveFailure, OfOverwritingLeavesTheTargetsFile) {
  const std::string before = test::readFile(user / "u.kostyle");
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_WRITE_EMPTY_NAME);
  giveName();
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_NO_EFFECT);
  EXPECT_EQ(test::readFile(user / "u.kostyle"), before);
}

TEST_F(SaveFailure, OfOverwritingIsTargetNotReplaceableWhenTheTargetIsGone) {
  giveName();
  giveEffect();
  test::fs::remove(user / "u.kostyle");
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  EXPECT_TRUE(userEntries().empty());
}

TEST_F(SaveFailure, OfOverwritingIsTargetNotReplaceableWhenTheTargetIsADirectoryThatIsNotEmpty) {
  giveName();
  giveEffect();
  test::fs::remove(user / "u.kostyle");
  test::fs::create_directories(user / "u.kostyle" / "inside");
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
}

TEST_F(SaveFailure, OfOverwritingIsTargetNotReplaceableWhenTheUserDirectoryHadToBeMade) {
  giveName();
  giveEffect();
  test::fs::remove_all(parent);
  int error = -1;
  EXPECT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("u"), true, &error), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  EXPECT_TRUE(userEntries().empty());
}

TEST_F(SaveFailure, OfOverwritingDoesNothingWithoutAnErrorPointer) {
  giveName();
  giveEffect();
  const std::string before = test::readFile(user / "u.kostyle");
  const Untouched untouched(*this);
  EXPECT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("u"), true, nullptr), nullptr);
  EXPECT_EQ(test::readFile(user / "u.kostyle"), before);
}

#if defined(_WIN32)

TEST_F(SaveFailure, OfOverwritingAndRemovingShowsWhenTheFileIsHeldOpen) {
  giveName();
  giveEffect();
  const std::ifstream held(user / "u.kostyle");
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  EXPECT_EQ(UserStyle_remove(target), KOSTYLE_ERROR_DELETE_FAILED);
}

TEST_F(SaveFailure, OfOverwritingAndRemovingShowsWhenTheFileIsReadOnly) {
  giveName();
  giveEffect();
  permissions(user / "u.kostyle", test::fs::perms::owner_read);
  expectOverwrite(KOSTYLE_TEXT("u"), KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  EXPECT_EQ(UserStyle_remove(target), KOSTYLE_ERROR_DELETE_FAILED);
  permissions(user / "u.kostyle", test::fs::perms::owner_all);
  EXPECT_EQ(UserStyle_remove(target), KOSTYLE_OK);
}

#endif

}  // namespace
