#include "manager/style_directory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>
#if defined(_WIN32)
#include <share.h>
#endif

#include "manager/style_manager.h"
#include "model/system_style.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::pathText;
using test::text;
using test::utf8;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

std::string document(const std::string& id) {
  return R"({"id":")" + id + R"(","name":"n","audioEffect":{"e":{"parameter":{}}}})";
}

class StyleDirectory : public testing::Test {
 protected:
  void write(const test::fs::path& path, const std::string& id) {
    test::writeFile(directory_ / path, document(id));
  }
  int read(StyleKind kind, const std::vector<Text>& further = {}) {
    return readStyleDirectory(manager_, pathText(main_).c_str(), further, kind, manager_.styles(kind));
  }
  bool load(const test::fs::path& path, StyleKind kind = StyleKind::system) {
    return loadStyleFile(manager_, pathText((directory_ / path).make_preferred()), kind,
                         manager_.styles(kind));
  }
  std::vector<std::string> ids(StyleKind kind) {
    std::vector<std::string> result;
    for (const StyleBase& style : manager_.styles(kind)) result.push_back(utf8(style.id()));
    return result;
  }
  /// Identifier and code of each creation result.
  std::vector<std::pair<std::string, std::uint32_t>> results(StyleKind kind) {
    std::vector<std::pair<std::string, std::uint32_t>> result;
    for (const StyleCreationResult& each : *manager_.creationResults(kind))
      result.emplace_back(utf8(each.id()), each.error());
    return result;
  }

  const test::TemporaryDirectory directory_;
  const test::fs::path main_ = directory_.folder("main");
  StyleManager manager_{text("tests"), pathText(main_), pathText(main_), {}, {}};
};

TEST_F(StyleDirectory, WithoutAPathTheSetIsEmptied) {
  write("main/a.kostyle", "a");
  EXPECT_EQ(read(StyleKind::user), 0);
  StyleSequence& styles = manager_.styles(StyleKind::user);
  ASSERT_EQ(styles.size(), 1u);
  EXPECT_EQ(readStyleDirectory(manager_, nullptr, {pathText(main_)}, StyleKind::user, styles), 1);
  EXPECT_TRUE(styles.empty());
}

TEST_F(StyleDirectory, WithoutADirectoryTheSetIsEmptied) {
  write("main/a.kostyle", "a");
  StyleSequence& styles = manager_.styles(StyleKind::system);
  for (const char* path : {"missing", "main/a.kostyle"}) {
    EXPECT_EQ(read(StyleKind::system), 0);
    ASSERT_EQ(styles.size(), 1u);
    const Text noDirectory = pathText((directory_ / path).make_preferred());
    EXPECT_EQ(
        readStyleDirectory(manager_, noDirectory.c_str(), {pathText(main_)}, StyleKind::system, styles),
        7);
    EXPECT_TRUE(styles.empty());
  }
  EXPECT_EQ(readStyleDirectory(manager_, KOSTYLE_TEXT(""), {}, StyleKind::system, styles), 7);
}

TEST_F(StyleDirectory, AnEmptyOneGivesNothing) {
  EXPECT_EQ(read(StyleKind::system), 0);
  EXPECT_THAT(ids(StyleKind::system), IsEmpty());
  EXPECT_THAT(results(StyleKind::system), IsEmpty());
}

TEST_F(StyleDirectory, OnlyItsOwnStyleFilesAreRead) {
  write("main/a.kostyle", "a");
  write("main/b.txt", "b");
  directory_.folder("main/sub");
  write("main/sub/c.kostyle", "c");
  directory_.folder("main/folder.kostyle");
  EXPECT_EQ(read(StyleKind::system), 0);
  EXPECT_THAT(ids(StyleKind::system), ElementsAre("a"));
  EXPECT_THAT(results(StyleKind::system), ElementsAre(Pair("a", 0u)));
}

TEST_F(StyleDirectory, TheResultsOfEarlierReadsAreKept) {
  write("main/a.kostyle", "a");
  read(StyleKind::user);
  read(StyleKind::user);
  EXPECT_THAT(ids(StyleKind::user), ElementsAre("a"));
  EXPECT_THAT(results(StyleKind::user), ElementsAre(Pair("a", 0u), Pair("a", 0u)));
}

TEST_F(StyleDirectory, FurtherDirectoriesFollowInTheirOrder) {
  write("main/z.kostyle", "z");
  for (const char* name : {"y", "x"}) {
    directory_.folder(name);
    write(test::fs::path(name) / "s.kostyle", name);
  }
  EXPECT_EQ(read(StyleKind::user, {pathText(directory_ / "y"), pathText(directory_ / "x")}), 0);
  EXPECT_THAT(ids(StyleKind::user), ElementsAre("z", "y", "x"));
  EXPECT_THAT(results(StyleKind::user), ElementsAre(Pair("z", 0u), Pair("y", 0u), Pair("x", 0u)));
}

TEST_F(StyleDirectory, FurtherDirectoriesThatAreNoneLeaveNoTrace) {
  directory_.folder("x/sub");
  write("x/s.kostyle", "x");
  write("x/sub/t.kostyle", "t");
  const std::vector<Text> further = {Text(), pathText(directory_ / "missing"),
                                     pathText(directory_.path() / "x" / "s.kostyle"),
                                     pathText(directory_ / "x")};
  EXPECT_EQ(read(StyleKind::user, further), 0);
  EXPECT_THAT(results(StyleKind::user), ElementsAre(Pair("x", 0u)));
}

TEST_F(StyleDirectory, ADirectoryThatIsGivenTwiceIsReadTwice) {
  directory_.folder("x");
  write("x/s.kostyle", "x");
  test::writeFile(directory_ / "x/broken.kostyle", "{");
  const Text x = pathText(directory_ / "x");
  EXPECT_EQ(read(StyleKind::system, {x, x}), 0);
  EXPECT_THAT(ids(StyleKind::system), ElementsAre("x"));
  EXPECT_THAT(results(StyleKind::system),
              UnorderedElementsAre(Pair("x", 0u), Pair("x", 22u), Pair("", 17u), Pair("", 17u)));
}

TEST_F(StyleDirectory, TheFirstOfTwoFilesWithOneIdentifierIsTaken) {
  write("main/1.kostyle", "same");
  write("main/2.kostyle", "same");
  EXPECT_EQ(read(StyleKind::system), 0);
  EXPECT_THAT(results(StyleKind::system), ElementsAre(Pair("same", 0u), Pair("same", 22u)));
  const auto& taken = *manager_.creationResults(StyleKind::system)->at(0);
  ASSERT_EQ(manager_.numSystemStyle(), 1u);
  EXPECT_EQ(utf8(manager_.systemStyle(0)->path()), utf8(taken.filePath()));
}

TEST_F(StyleDirectory, IdentifiersAreUniqueAmongSystemAndUserStyles) {
  write("main/a.kostyle", "a");
  EXPECT_EQ(read(StyleKind::user), 0);
  EXPECT_EQ(read(StyleKind::system), 0);
  EXPECT_THAT(results(StyleKind::user), ElementsAre(Pair("a", 0u)));
  EXPECT_THAT(results(StyleKind::system), ElementsAre(Pair("a", 22u)));
  EXPECT_THAT(ids(StyleKind::system), IsEmpty());
}

TEST_F(StyleDirectory, AMutableStylesIdentifierIsFree) {
  manager_.createMutableStyle();
  manager_.styles(StyleKind::editable).at(0)->assignId(text("a"));
  write("main/a.kostyle", "a");
  EXPECT_EQ(read(StyleKind::user), 0);
  EXPECT_THAT(results(StyleKind::user), ElementsAre(Pair("a", 0u)));
}

TEST_F(StyleDirectory, IdentifiersThatDifferOnlyPastTheirNulAreTheSame) {
  write("main/1.kostyle", R"(a\u0000x)");
  write("main/2.kostyle", R"(a\u0000y)");
  EXPECT_EQ(read(StyleKind::system), 0);
  EXPECT_THAT(results(StyleKind::system), ElementsAre(Pair("a", 0u), Pair("a", 22u)));
}

TEST_F(StyleDirectory, TheLastDotDecidesWhatAStyleFileIs) {
  for (const char* name :
       {"A.KOSTYLE", "a.kostyle.old", "a.kostyle ", "kostyle", "a.kostyles", "a", ""})
    EXPECT_FALSE(load(test::fs::path("main") / name)) << name;
  for (const char* name : {"a.KOSTYLE", "b.kostyle.old", "kostyle", "c.kostyles"}) {
    write(test::fs::path("main") / name, name);
    EXPECT_FALSE(load(test::fs::path("main") / name)) << name;
  }
  EXPECT_THAT(results(StyleKind::system), IsEmpty());
  directory_.folder("x.kostyle");
  write("x.kostyle/file", "x");
  EXPECT_FALSE(load("x.kostyle/file"));
  for (const char* name : {"my.styles.kostyle", ".kostyle", "..kostyle"}) {
    write(test::fs::path("main") / name, name);
    EXPECT_TRUE(load(test::fs::path("main") / name)) << name;
  }
  EXPECT_THAT(ids(StyleKind::system), ElementsAre("my.styles.kostyle", ".kostyle", "..kostyle"));
}

TEST_F(StyleDirectory, AFileThatCannotBeOpenedLeavesNoTrace) {
  directory_.folder("folder.kostyle");
  EXPECT_FALSE(load("folder.kostyle"));
  EXPECT_FALSE(load("missing.kostyle"));
#if defined(_WIN32)
  write("main/locked.kostyle", "locked");
  std::FILE* const lock = _wfsopen(pathText(main_ / "locked.kostyle").c_str(), L"rb", _SH_DENYRW);
  ASSERT_NE(lock, nullptr);
  EXPECT_FALSE(load("main/locked.kostyle"));
  std::fclose(lock);
#endif
  EXPECT_THAT(results(StyleKind::system), IsEmpty());
}

TEST_F(StyleDirectory, AStyleAndItsResultKeepThePathAsItWasGiven) {
  write("main/a.kostyle", "a");
  const Text path = pathText(main_ / "a.kostyle");
  EXPECT_TRUE(loadStyleFile(manager_, path, StyleKind::user, manager_.styles(StyleKind::user)));
  ASSERT_EQ(manager_.numUserStyle(), 1u);
  EXPECT_EQ(manager_.userStyle(0)->path(), path);
  EXPECT_EQ(manager_.userStyle(0)->parent(), &manager_);
  EXPECT_EQ(manager_.userStyleCreationResult(0)->filePath(), path);
  EXPECT_EQ(manager_.userStyleCreationResult(0)->type(), 1u);
}

TEST_F(StyleDirectory, ARefusedFileLeavesItsReasonAndNoStyle) {
  test::writeFile(main_ / "a.kostyle", R"({"id":"a","name":5})");
  test::writeFile(main_ / "b.kostyle", "");
  EXPECT_TRUE(load("main/a.kostyle"));
  EXPECT_TRUE(load("main/b.kostyle"));
  EXPECT_THAT(ids(StyleKind::system), IsEmpty());
  const IStyleCreationResult* wrongType = manager_.systemStyleCreationResult(0);
  EXPECT_EQ(wrongType->error(), 20u);
  EXPECT_EQ(utf8(wrongType->jsonPath()), "/name");
  EXPECT_EQ(utf8(wrongType->id()), "");
  const IStyleCreationResult* empty = manager_.systemStyleCreationResult(1);
  EXPECT_EQ(empty->error(), 17u);
  EXPECT_EQ(empty->parseError(), 1u);
}

TEST_F(StyleDirectory, ADuplicatesResultHasNothingButItsIdentifier) {
  write("main/a.kostyle", "a");
  EXPECT_TRUE(load("main/a.kostyle"));
  EXPECT_TRUE(load("main/a.kostyle", StyleKind::user));
  const IStyleCreationResult* duplicate = manager_.userStyleCreationResult(0);
  EXPECT_EQ(duplicate->error(), 22u);
  EXPECT_EQ(utf8(duplicate->id()), "a");
  EXPECT_EQ(utf8(duplicate->jsonPath()), "");
  EXPECT_EQ(duplicate->parseError(), 0u);
  EXPECT_EQ(duplicate->parseErrorOffset(), 0u);
  EXPECT_EQ(manager_.numUserStyle(), 0u);
}

TEST_F(StyleDirectory, AKindThatIsNotReadGivesNeitherStyleNorRecord) {
  write("main/a.kostyle", "a");
  test::writeFile(main_ / "broken.kostyle", "{");
  EXPECT_TRUE(load("main/a.kostyle", StyleKind::editable));
  EXPECT_TRUE(load("main/broken.kostyle", StyleKind::editable));
  EXPECT_EQ(read(StyleKind::editable), 0);
  for (const StyleKind kind : {StyleKind::system, StyleKind::user, StyleKind::editable})
    EXPECT_THAT(ids(kind), IsEmpty());
  EXPECT_THAT(results(StyleKind::system), IsEmpty());
  EXPECT_THAT(results(StyleKind::user), IsEmpty());
  EXPECT_EQ(manager_.creationResults(StyleKind::editable), nullptr);
}

TEST_F(StyleDirectory, AFileThatWasReadIsClosed) {
  write("main/a.kostyle", "a");
  EXPECT_TRUE(load("main/a.kostyle"));
  test::writeFile(main_ / "a.kostyle", "{");
  EXPECT_TRUE(load("main/a.kostyle"));
  EXPECT_TRUE(test::fs::remove(main_ / "a.kostyle"));
}

TEST_F(StyleDirectory, AThousandFilesGiveAThousandStyles) {
  for (int i = 0; i < 1000; ++i)
    write("main/" + std::to_string(i) + ".kostyle", std::to_string(i % 900));
  EXPECT_EQ(read(StyleKind::user), 0);
  EXPECT_EQ(manager_.numUserStyle(), 900u);
  EXPECT_EQ(manager_.numUserStyleCreationResult(), 1000u);
  std::size_t walked = 0;
  for (auto* at = manager_.userStyleCreationResult(0); at; at = at->next()) ++walked;
  EXPECT_EQ(walked, 1000u);
}

}  // namespace
}  // namespace Tesk::KoStyle
