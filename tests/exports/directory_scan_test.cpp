// Which files of the style directories become styles, and in which order.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>
#if defined(_WIN32)
#include <share.h>

#include <cstdio>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>
#endif

#include "support/host.h"

namespace {

using test::document;
using test::utf8;
using test::writeFile;
using test::fs::path;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

std::vector<std::string> ids(KoStyleManager* manager,
                             KoStyleStyle* (*at)(KoStyleManager*, std::size_t)) {
  std::vector<std::string> result;
  for (std::size_t i = 0; KoStyleStyle* style = at(manager, i); ++i)
    result.push_back(utf8(Style_id(style)));
  return result;
}

/// Identifier and code of each record.
using Records = std::vector<std::pair<std::string, int>>;

Records records(KoStyleManager* manager, KoStyleCreationResult* (*at)(KoStyleManager*, std::size_t)) {
  Records result;
  for (std::size_t i = 0; KoStyleCreationResult* record = at(manager, i); ++i)
    result.emplace_back(utf8(StyleCreationResult_id(record)), StyleCreationResult_error(record));
  return result;
}

class DirectoryScan : public testing::Test {
 protected:
  void put(const path& relative, const std::string& id) const {
    writeFile(directory / relative, document(id, id));
  }
  void make(const std::vector<path>& furtherSystem, const std::vector<path>& furtherUser) {
    manager = std::make_unique<test::Manager>(system, user, furtherSystem, furtherUser);
  }
  int readSystem() { return StyleManager_readSystemStyles(*manager); }
  int readUser() { return StyleManager_readUserStyles(*manager); }
  std::vector<std::string> systemIDs() { return ids(*manager, StyleManager_systemStyle); }
  std::vector<std::string> userIDs() { return ids(*manager, StyleManager_userStyle); }
  Records systemRecords() { return records(*manager, StyleManager_systemStyleCreationResult); }
  Records userRecords() { return records(*manager, StyleManager_userStyleCreationResult); }

  test::TemporaryDirectory directory;
  path system = directory.folder("system");
  path user = directory.folder("user");
  std::unique_ptr<test::Manager> manager = std::make_unique<test::Manager>(system, user);
};

TEST_F(DirectoryScan, OfAnEmptyDirectorySucceeds) {
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_EQ(readUser(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), IsEmpty());
  EXPECT_THAT(userRecords(), IsEmpty());
}

TEST_F(DirectoryScan, TakesOnlyFilesOfTheExtensionDirectlyInside) {
  put("system/a.kostyle", "a");
  put("system/b.txt", "b");
  directory.folder("system/sub");
  put("system/sub/c.kostyle", "c");
  directory.folder("system/d.kostyle");
  put("system/d.kostyle/e.kostyle", "e");
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), ElementsAre("a"));
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("a", KOSTYLE_OK)));
}

TEST_F(DirectoryScan, TakesTheExtensionExactlyAndFromTheLastDot) {
  for (const char* name : {"A.KOSTYLE", "b.Kostyle", "c.kostyle.old", "d", "kostyle", "e.kostyl",
                           "f.kostyles", "g.kostyle ~", "h_kostyle"}) {
    put(path("system") / name, name);
  }
  put("system/my.styles.kostyle", "dots");
  put("system/.kostyle", "bare");
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), UnorderedElementsAre("dots", "bare"));
}

TEST_F(DirectoryScan, LooksForTheLastDotInTheWholePath) {
  const path dotted = directory.folder("x.kostyle");
  writeFile(dotted / "noextension", document("a", "a"));
  make({dotted}, {});
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), IsEmpty());
}

TEST_F(DirectoryScan, KeepsTheFirstOfTwoFilesWithOneIdentifier) {
  put("system/one.kostyle", "same");
  put("system/two.kostyle", "same");
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  ASSERT_THAT(systemRecords(),
              ElementsAre(Pair("same", KOSTYLE_OK), Pair("same", KOSTYLE_ERROR_DUPLICATE_ID)));
  ASSERT_THAT(systemIDs(), ElementsAre("same"));
  EXPECT_EQ(utf8(Style_path(StyleManager_systemStyle(*manager, 0))),
            utf8(StyleCreationResult_filePath(StyleManager_systemStyleCreationResult(*manager, 0))));
}

TEST_F(DirectoryScan, RefusesAUserStyleWithASystemStylesIdentifier) {
  put("system/s.kostyle", "same");
  put("user/u.kostyle", "same");
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  ASSERT_EQ(readUser(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), ElementsAre("same"));
  EXPECT_THAT(userIDs(), IsEmpty());
  EXPECT_THAT(userRecords(), ElementsAre(Pair("same", KOSTYLE_ERROR_DUPLICATE_ID)));
}

TEST_F(DirectoryScan, RefusesASystemStyleWithTheIdentifierOfAUserStyleReadBefore) {
  put("system/s.kostyle", "same");
  put("user/u.kostyle", "same");
  ASSERT_EQ(readUser(), KOSTYLE_OK);
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(userIDs(), ElementsAre("same"));
  EXPECT_THAT(systemIDs(), IsEmpty());
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("same", KOSTYLE_ERROR_DUPLICATE_ID)));
}

TEST_F(DirectoryScan, DoesNotCountTheStylesOfTheSetThatItReplaces) {
  put("system/s.kostyle", "same");
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("same", KOSTYLE_OK)));
}

TEST_F(DirectoryScan, TakesARefusedFileOnceItsIdentifierIsFree) {
  put("system/s.kostyle", "same");
  put("user/u.kostyle", "same");
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  ASSERT_EQ(readUser(), KOSTYLE_OK);
  ASSERT_THAT(userIDs(), IsEmpty());
  test::fs::remove(system / "s.kostyle");
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  ASSERT_EQ(readUser(), KOSTYLE_OK);
  EXPECT_THAT(userRecords(), ElementsAre(Pair("same", KOSTYLE_OK)));
}

TEST_F(DirectoryScan, LeavesTheIdentifierOfARefusedFileFree) {
  const path more = directory.folder("more");
  writeFile(system / "a.kostyle", R"({"id":"A","name":"N"})");
  put("more/b.kostyle", "A");
  make({more}, {});
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("", KOSTYLE_ERROR_NO_EFFECT), Pair("A", KOSTYLE_OK)));
}

TEST_F(DirectoryScan, ComparesIdentifiersExactly) {
  const std::vector<std::string> similar{"Sys", "sys", "SYS", "Sy", "Sys ", "Sys1"};
  for (std::size_t i = 0; i < similar.size(); ++i)
    put(path("system") / (std::to_string(i) + ".kostyle"), similar[i]);
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), testing::UnorderedElementsAreArray(similar));
}

TEST_F(DirectoryScan, TakesIdentifiersThatAHostCannotTellApartForOne) {
  const path more = directory.folder("more");
  put("system/a.kostyle", R"(A\u0000b)");
  put("more/b.kostyle", R"(A\u0000c)");
  put("more/c.kostyle", "A");
  make({more}, {});
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("A", KOSTYLE_OK), Pair("A", KOSTYLE_ERROR_DUPLICATE_ID),
                                           Pair("A", KOSTYLE_ERROR_DUPLICATE_ID)));
}

TEST_F(DirectoryScan, NeverTakesAnIdentifierThatAHostSeesAsEmptyForHeld) {
  put("system/a.kostyle", R"(\u0000)");
  put("system/b.kostyle", R"(\u0000)");
  put("system/c.kostyle", R"(\u0000c)");
  ASSERT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), ElementsAre("", "", ""));
}

TEST_F(DirectoryScan, GoesOnToTheFurtherDirectoriesInTheirOrder) {
  directory.folder("second");
  directory.folder("first");
  put("system/z.kostyle", "own");
  put("second/a.kostyle", "second");
  put("first/b.kostyle", "first");
  put("user/z.kostyle", "user");
  make({directory / "second", directory / "first"}, {directory / "first", directory / "second"});
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), ElementsAre("own", "second", "first"));
  make({}, {directory / "first", directory / "second"});
  EXPECT_EQ(readUser(), KOSTYLE_OK);
  EXPECT_THAT(userIDs(), ElementsAre("user", "first", "second"));
  EXPECT_EQ(Style_type(StyleManager_userStyle(*manager, 2)), KOSTYLE_KIND_USER);
}

TEST_F(DirectoryScan, PassesOverFurtherDirectoriesThatAreNone) {
  directory.folder("good/sub");
  directory.folder("empty");
  put("good/g.kostyle", "g");
  put("good/sub/s.kostyle", "s");
  put("file.kostyle", "file");
  make({directory / "missing", directory / "file.kostyle", path(), directory / "empty",
        directory / "good"},
       {});
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("g", KOSTYLE_OK)));
}

TEST_F(DirectoryScan, ReadsADirectoryThatIsGivenTwiceTwice) {
  directory.folder("more");
  put("more/a.kostyle", "a");
  writeFile(directory / "more" / "bad.kostyle", "{");
  make({directory / "more", directory / "more"}, {});
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), ElementsAre("a"));
  EXPECT_THAT(
      systemRecords(),
      UnorderedElementsAre(Pair("a", KOSTYLE_OK), Pair("", KOSTYLE_ERROR_JSON_SYNTAX),
                           Pair("a", KOSTYLE_ERROR_DUPLICATE_ID), Pair("", KOSTYLE_ERROR_JSON_SYNTAX)));
}

TEST_F(DirectoryScan, LooksForFurtherDirectoriesAnewOnEachRead) {
  make({directory / "later"}, {});
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), IsEmpty());
  directory.folder("later");
  put("later/a.kostyle", "a");
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemIDs(), ElementsAre("a"));
}

TEST_F(DirectoryScan, ReadsFurtherDirectoriesOnlyBesideTheMainOne) {
  directory.folder("more");
  put("more/a.kostyle", "a");
  make({directory / "more"}, {});
  test::fs::remove_all(system);
  EXPECT_EQ(readSystem(), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_THAT(systemRecords(), IsEmpty());
}

TEST_F(DirectoryScan, ClosesTheFilesThatItRead) {
  put("system/a.kostyle", "a");
  writeFile(system / "broken.kostyle", "{");
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_TRUE(test::fs::remove(system / "a.kostyle"));
  EXPECT_TRUE(test::fs::remove(system / "broken.kostyle"));
}

#if defined(_WIN32)

TEST_F(DirectoryScan, PassesOverAFileThatIsLocked) {
  put("system/a.kostyle", "a");
  put("system/locked.kostyle", "locked");
  std::FILE* const lock = _wfsopen((system / "locked.kostyle").c_str(), L"rb", _SH_DENYRW);
  ASSERT_NE(lock, nullptr);
  EXPECT_EQ(readSystem(), KOSTYLE_OK);
  EXPECT_THAT(systemRecords(), ElementsAre(Pair("a", KOSTYLE_OK)));
  std::fclose(lock);
}

#endif

TEST_F(DirectoryScan, KeepsTheOrderOfTheFileSystem) {
  for (int i = 0; i < 100; ++i)
    put("user/" + std::to_string(i * 37 % 100) + ".kostyle", std::to_string(i));
  std::vector<std::string> expected;
  for (const auto& entry : test::fs::directory_iterator(user))
    expected.push_back(utf8(test::pathText(entry.path())));
  ASSERT_EQ(readUser(), KOSTYLE_OK);
  std::vector<std::string> paths;
  for (std::size_t i = 0; KoStyleStyle* style = StyleManager_userStyle(*manager, i); ++i)
    paths.push_back(utf8(Style_path(style)));
  EXPECT_EQ(paths, expected);
}

TEST_F(DirectoryScan, ReadsNamesFromEveryPlane) {
  const std::string names[] = {u8"é", u8"日本", u8"𝄞"};
  for (const std::string& name : names)
    writeFile(user / test::fs::u8path(name + ".kostyle"), document(name, name));
  ASSERT_EQ(readUser(), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_numUserStyle(*manager), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    KoStyleStyle* style = StyleManager_userStyle(*manager, i);
    const test::Text expected =
        test::pathText(user / test::fs::u8path(utf8(Style_id(style)) + ".kostyle"));
    EXPECT_EQ(Style_path(style), expected);
  }
}

#if !defined(_WIN32)

// Whoever waits for a pipe's other end goes on waiting. The pauses give a fault time to show.
TEST_F(DirectoryScan, DoesNotOpenAPipeNorALinkToOne) {
  const test::fs::path pipe = user / "pipe.kostyle";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  test::fs::create_symlink(pipe, user / "link.kostyle");
  std::atomic<bool> released{false};
  std::thread writer([&] {
    const int end = open(pipe.c_str(), O_WRONLY);
    released = true;
    close(end);
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_EQ(readUser(), KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(*manager), 0u);
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_FALSE(released);
  const int otherEnd = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  writer.join();
  close(otherEnd);
}

#endif

}  // namespace
