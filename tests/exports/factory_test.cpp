// Creating, finding and destroying managers.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include "support/host.h"

namespace {

using test::pathText;
using test::Text;
using test::text;
using test::utf8;
using test::fs::path;

class Factory : public testing::Test {
 protected:
  KoStyleManager* create(const KoStyleChar* identifier, const path& systemDir, const path& userDir) {
    error = -1;
    return CreateStyleManager(identifier, pathText(systemDir).c_str(), pathText(userDir).c_str(),
                              nullptr, 0, nullptr, 0, &error);
  }

  test::TemporaryDirectory directory;
  path system = directory.folder("system");
  path user = directory.folder("user");
  path missing = directory / "missing";
  Text appID = test::freshAppID();
  int error = -1;
};

TEST_F(Factory, RefusesAMissingIdentifierBeforeItLooksAtDirectories) {
  EXPECT_EQ(create(nullptr, missing, missing), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_APP_ID_MISSING);
  EXPECT_EQ(create(KOSTYLE_TEXT(""), missing, missing), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_APP_ID_MISSING);
  EXPECT_FALSE(exists(missing));
}

TEST_F(Factory, RefusesAMissingSystemDirectoryAndMakesNoUserDirectory) {
  EXPECT_EQ(create(appID.c_str(), missing, directory / "made"), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING);
  EXPECT_FALSE(exists(directory / "made"));
}

TEST_F(Factory, RefusesANullSystemDirectory) {
  EXPECT_EQ(CreateStyleManager(appID.c_str(), nullptr, pathText(user).c_str(), nullptr, 0, nullptr, 0,
                               &error),
            nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING);
}

TEST_F(Factory, RefusesAFileAsSystemDirectory) {
  test::writeFile(directory / "file", "x");
  EXPECT_EQ(create(appID.c_str(), directory / "file", user), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING);
}

TEST_F(Factory, RefusesANullUserDirectory) {
  EXPECT_EQ(CreateStyleManager(appID.c_str(), pathText(system).c_str(), nullptr, nullptr, 0, nullptr, 0,
                               &error),
            nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
}

TEST_F(Factory, RefusesAUserDirectoryBelowAFile) {
  test::writeFile(directory / "file", "x");
  EXPECT_EQ(create(appID.c_str(), system, directory / "file" / "user"), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
}

TEST_F(Factory, TakesAFileAtTheUserDirectorysPathForTheDirectory) {
  test::writeFile(directory / "file", "x");
  KoStyleManager* manager = create(appID.c_str(), system, directory / "file");
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_TRUE(StyleManager_destroy(manager));
}

TEST_F(Factory, RegistersNothingWhenItRefuses) {
  EXPECT_EQ(create(appID.c_str(), missing, user), nullptr);
  KoStyleManager* manager = create(appID.c_str(), system, user);
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(utf8(StyleManager_systemStyleDirPath(manager)), utf8(pathText(system)));
  StyleManager_destroy(manager);
}

TEST_F(Factory, MakesAMissingUserDirectoryWithItsParents) {
  const path deep = missing / "a" / "b" / "user";
  KoStyleManager* manager = create(appID.c_str(), system, deep);
  EXPECT_NE(manager, nullptr);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_TRUE(is_directory(deep));
  StyleManager_destroy(manager);
}

TEST_F(Factory, KeepsDirectoriesAsGiven) {
  const Text given = pathText(missing / "user") + Text(1, path::preferred_separator);
  KoStyleManager* manager = CreateStyleManager(appID.c_str(), pathText(system).c_str(), given.c_str(),
                                               nullptr, 0, nullptr, 0, &error);
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_TRUE(is_directory(missing / "user"));
  EXPECT_EQ(StyleManager_userStyleDirPath(manager), given);
  EXPECT_EQ(StyleManager_systemStyleDirPath(manager), pathText(system));
  StyleManager_destroy(manager);
}

TEST_F(Factory, AnswersWithTheManagerThatHasTheIdentifier) {
  KoStyleManager* manager = create(appID.c_str(), system, user);
  ASSERT_NE(manager, nullptr);
  const path otherSystem = directory.folder("other");
  EXPECT_EQ(create(appID.c_str(), otherSystem, missing), manager);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(create(appID.c_str(), missing, missing), manager);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(utf8(StyleManager_systemStyleDirPath(manager)), utf8(pathText(system)));
  EXPECT_EQ(utf8(StyleManager_userStyleDirPath(manager)), utf8(pathText(user)));
  EXPECT_FALSE(exists(missing));
  EXPECT_TRUE(StyleManager_destroy(manager));
  EXPECT_FALSE(HasStyleManager(manager));
}

TEST_F(Factory, CopiesTheIdentifier) {
  Text changed = appID;
  KoStyleManager* manager = create(changed.c_str(), system, user);
  changed[0] = 'X';
  EXPECT_EQ(StyleManager_appID(manager), appID);
  StyleManager_destroy(manager);
}

TEST_F(Factory, TellsIdentifiersApartByCaseAndByLength) {
  const Text names[] = {appID + text("Name"), appID + text("name"), appID + text("nam"),
                        appID + text("names")};
  KoStyleManager* managers[4] = {};
  for (int i = 0; i < 4; ++i) managers[i] = create(names[i].c_str(), system, user);
  for (int i = 0; i < 4; ++i) {
    ASSERT_NE(managers[i], nullptr);
    EXPECT_EQ(StyleManager_appID(managers[i]), names[i]);
    for (int j = 0; j < i; ++j) EXPECT_NE(managers[i], managers[j]);
  }
  for (KoStyleManager* manager : managers) EXPECT_TRUE(StyleManager_destroy(manager));
}

TEST_F(Factory, NeedsNoErrorPointerOnAnyPath) {
  const Text systemText = pathText(system);
  const Text userText = pathText(user);
  const Text missingText = pathText(missing);
  const auto make = [&](const Text& id, const Text& systemDir, const KoStyleChar* userDir) {
    return CreateStyleManager(id.c_str(), systemDir.c_str(), userDir, nullptr, 0, nullptr, 0, nullptr);
  };
  EXPECT_EQ(make(Text(), systemText, userText.c_str()), nullptr);
  EXPECT_EQ(make(appID, missingText, userText.c_str()), nullptr);
  EXPECT_EQ(make(appID, systemText, nullptr), nullptr);
  KoStyleManager* manager = make(appID, systemText, userText.c_str());
  EXPECT_NE(manager, nullptr);
  EXPECT_EQ(make(appID, systemText, userText.c_str()), manager);
  StyleManager_destroy(manager);
}

TEST_F(Factory, ReadsTheDirectoryArraysOnlyByAPositiveCount) {
  test::writeFile(directory.folder("more") / "m.kostyle", test::document("m", "m"));
  const Text more = pathText(directory / "more");
  const KoStyleChar* const dirs[] = {more.c_str()};
  const struct {
    const KoStyleChar* const* array;
    int count;
    std::size_t styles;
  } cases[] = {{dirs, 1, 1}, {dirs, 0, 0}, {dirs, -1, 0}, {nullptr, 1, 0}, {nullptr, -1, 0}};
  for (const auto& each : cases) {
    KoStyleManager* manager =
        CreateStyleManager(appID.c_str(), pathText(system).c_str(), pathText(user).c_str(), each.array,
                           each.count, each.array, each.count, &error);
    ASSERT_NE(manager, nullptr);
    StyleManager_readSystemStyles(manager);
    EXPECT_EQ(StyleManager_numSystemStyle(manager), each.styles) << each.count;
    StyleManager_destroy(manager);
    manager = CreateStyleManager(appID.c_str(), pathText(system).c_str(), pathText(user).c_str(),
                                 nullptr, 0, each.array, each.count, &error);
    ASSERT_NE(manager, nullptr);
    StyleManager_readUserStyles(manager);
    EXPECT_EQ(StyleManager_numUserStyle(manager), each.styles) << each.count;
    StyleManager_destroy(manager);
  }
}

TEST_F(Factory, HasTheSameEffectUnderItsOtherNames) {
  KoStyleManager* manager = Module_createStyleManager(
      appID.c_str(), pathText(system).c_str(), pathText(user).c_str(), nullptr, 0, nullptr, 0, &error);
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(create(appID.c_str(), system, user), manager);
  EXPECT_TRUE(Module_hasStyleManager(manager));
  StyleManager_destroy(manager);
  EXPECT_FALSE(Module_hasStyleManager(manager));
}

TEST_F(Factory, KnowsItsManagersUntilTheyAreDestroyed) {
  KoStyleManager* first = create(appID.c_str(), system, user);
  const Text otherID = test::freshAppID();
  KoStyleManager* second = create(otherID.c_str(), system, user);
  EXPECT_TRUE(HasStyleManager(first));
  EXPECT_TRUE(HasStyleManager(second));
  EXPECT_TRUE(StyleManager_destroy(first));
  EXPECT_FALSE(HasStyleManager(first));
  EXPECT_TRUE(HasStyleManager(second));
  EXPECT_TRUE(StyleManager_destroy(second));
  EXPECT_FALSE(HasStyleManager(second));
  EXPECT_FALSE(HasStyleManager(nullptr));
}

TEST_F(Factory, GivesAnIdentifierAgainAfterItsManagerIsGone) {
  test::writeFile(system / "s.kostyle", test::document("s", "s"));
  KoStyleManager* manager = create(appID.c_str(), system, user);
  StyleManager_readSystemStyles(manager);
  EXPECT_EQ(StyleManager_numSystemStyle(manager), 1u);
  StyleManager_destroy(manager);
  const path other = directory.folder("other");
  manager = create(appID.c_str(), other, user);
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(StyleManager_numSystemStyle(manager), 0u);
  EXPECT_EQ(utf8(StyleManager_systemStyleDirPath(manager)), utf8(pathText(other)));
  StyleManager_destroy(manager);
}

}  // namespace
