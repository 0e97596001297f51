// What looks like a fault and stays (docs/compatibility.md), as far as no other test shows it.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <memory>
#include <string>
#include <vector>

#include "support/host.h"

#if !defined(_WIN32)
#include <sys/resource.h>
#endif

namespace {

using test::Text;
using test::text;
using test::utf8;
using test::fs::path;

#if defined(_WIN32)
constexpr bool onWindows = true;
const path otherVolume = L"Z:\\dev\\shm";
#else
constexpr bool onWindows = false;
const path otherVolume = "/dev/shm";
#endif

class Compatibility : public testing::Test {
 protected:
  /// A manager over a user directory that is given by its text.
  void make(const Text& userDirectory) {
    KoStyleManager* made = CreateStyleManager(appID.c_str(), test::pathText(host.system).c_str(),
                                              userDirectory.c_str(), nullptr, 0, nullptr, 0, &error);
    manager = {made, [](KoStyleManager* each) { StyleManager_destroy(each); }};
  }

  KoStyleStyle* save() {
    KoStyleStyle* style = StyleManager_createMutableStyle(manager.get());
    MutableStyle_setName(style, KOSTYLE_TEXT("N"));
    MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
    return MutableStyle_save(style, false, &error);
  }

  /// Reads a user style, gives it another name and reads it again: the code of its record.
  int codeAfterEditing(const std::string& parameters) {
    KoStylePropertyEditor* editor = UserStyle_createPropertyEditor(host.addUserStyle(
        "u", R"({"id":"u","name":"N","audioEffect":{"E":{"parameter":)" + parameters + "}}}"));
    EXPECT_TRUE(PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("other")));
    EXPECT_TRUE(PropertyEditor_save(editor, true));
    EXPECT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
    return StyleCreationResult_error(StyleManager_userStyleCreationResult(host.manager, 0));
  }

  test::Host host;
  Text appID = test::freshAppID();
  int error = -1;
  std::shared_ptr<KoStyleManager> manager;
};

TEST_F(Compatibility, ADirectoryThatCannotBeListedIsReadAsAnEmptyOne) {
  host.addUserStyle("u");
#if defined(_WIN32)
  // A pattern is found, but nothing is below it.
  make(test::pathText(host.directory.path()) + text("\\use*"));
  ASSERT_EQ(error, KOSTYLE_OK);
  const int code = StyleManager_readUserStyles(manager.get());
#else
  make(test::pathText(host.user));
  ASSERT_EQ(StyleManager_readUserStyles(manager.get()), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_numUserStyle(manager.get()), 1u);
  // A new manager, for a sanitizer takes a pipe to look at objects that end.
  manager.reset();
  make(test::pathText(host.user));
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
  const rlimit nothingMore{0, limit.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &nothingMore), 0);
  const int code = StyleManager_readUserStyles(manager.get());
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
#endif
  EXPECT_EQ(code, KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numUserStyle(manager.get()), 0u);
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(manager.get()), 0u);
}

TEST_F(Compatibility, ASeparatorAtTheEndHidesAUserDirectoryFromAllButSavingOnWindows) {
  make(test::pathText(host.user / ""));
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(StyleManager_readUserStyles(manager.get()),
            onWindows ? KOSTYLE_ERROR_DIRECTORY_MISSING : KOSTYLE_OK);
  KoStyleStyle* saved = save();
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(test::entryNames(host.user).size(), 1u);
  EXPECT_EQ(UserStyle_remove(saved), onWindows ? KOSTYLE_ERROR_DELETE_FAILED : KOSTYLE_OK);
}

TEST_F(Compatibility, AStepToTheDirectoryItselfLeadsNowhereOnWindows) {
  make(test::pathText(host.directory.path() / "." / "user"));
  EXPECT_EQ(error, onWindows ? KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE : KOSTYLE_OK);
}

TEST_F(Compatibility, OverwritingOnAnotherVolumeReplacesTheFileOnlyOnWindows) {
  if (!is_directory(otherVolume)) GTEST_SKIP() << "there is no other volume";
  const path further = otherVolume / host.directory.path().filename();
  test::fs::create_directory(further);
  const std::shared_ptr<void> removal(nullptr, [&](void*) { test::fs::remove_all(further); });
  test::writeFile(further / "far.kostyle", test::document("far", "old"));
  const test::Manager other(host.system, host.user, {}, {further});
  ASSERT_EQ(StyleManager_readUserStyles(other), KOSTYLE_OK);
  KoStyleStyle* style = StyleManager_createMutableStyle(other);
  MutableStyle_setName(style, KOSTYLE_TEXT("new"));
  MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));

  KoStyleStyle* overwritten = MutableStyle_overwrite(style, KOSTYLE_TEXT("far"), false, &error);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(utf8(Style_name(overwritten)), "new");
  EXPECT_EQ(test::entryNames(further).size(), onWindows ? 1u : 0u);
  const std::vector<std::string> left = test::entryNames(host.user);
  ASSERT_EQ(left.size(), onWindows ? 0u : 1u);
  if (!onWindows) {
    EXPECT_EQ(left[0].size(), 36u) << "a bare UUID";
    EXPECT_NE(test::readFile(host.user / left[0]).find("new"), std::string::npos);
  }
}

TEST_F(Compatibility, TextsWithU0000LookRepeatedAndShort) {
  KoStyleStyle* style = host.addUserStyle(
      "u", R"({"id":"u","name":"N","filter":{"singerIDs":["ab\u0000defghijklmnop"]},)"
           R"("audioEffect":{"E\u0000a":{"parameter":{}},"E\u0000b":{"parameter":{}}}})");
  ASSERT_EQ(Style_numAudioEffect(style), 2u);
  EXPECT_EQ(utf8(Effect_id(Style_audioEffect(style, 0))), "E");
  EXPECT_EQ(utf8(Effect_id(Style_audioEffect(style, 1))), "E");
  ASSERT_EQ(Style_numSingerID(style), 1u);
  EXPECT_EQ(utf8(Style_singerID(style, 0)), "ab");
}

TEST_F(Compatibility, AnEditorSpoilsTheFileOfAStyleThatHeldWhatCannotBeWritten) {
  EXPECT_EQ(codeAfterEditing(R"({"p":1e30})"), KOSTYLE_OK);
  EXPECT_EQ(codeAfterEditing(R"({"p":1e300})"), KOSTYLE_ERROR_JSON_SYNTAX) << "read as infinite";
  EXPECT_EQ(codeAfterEditing(R"({"p":"\uDC00"})"), KOSTYLE_ERROR_JSON_SYNTAX) << "a lone surrogate";
}

TEST_F(Compatibility, AnEditorLosesEffectsWhoseParametersWereAllLeftOut) {
  EXPECT_EQ(codeAfterEditing(R"({"p":true,"q":1})"), KOSTYLE_OK);
  EXPECT_EQ(codeAfterEditing(R"({"p":true})"), KOSTYLE_ERROR_NO_EFFECT);
}

}  // namespace
