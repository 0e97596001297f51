#include "manager/file_system.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "platform/platform.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::pathText;
using test::text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FileSystem : public testing::Test {
 protected:
  Text at(const char* relative) const { return pathText(directory_ / relative); }
  Text root() const { return pathText(directory_.path()); }

  const test::TemporaryDirectory directory_;
};

TEST_F(FileSystem, TellsWhatExists) {
  test::writeFile(directory_ / "file", "");
  directory_.folder("folder");
  EXPECT_TRUE(pathExists(at("file").c_str()));
  EXPECT_TRUE(pathExists(at("folder").c_str()));
  EXPECT_TRUE(pathExists(at("folder")));
  EXPECT_FALSE(pathExists(at("missing")));
  EXPECT_FALSE(pathExists(at("missing").c_str()));
  EXPECT_FALSE(pathExists(KOSTYLE_TEXT("")));
  EXPECT_FALSE(pathExists(static_cast<const Char*>(nullptr)));
}

TEST_F(FileSystem, TellsDirectories) {
  test::writeFile(directory_ / "file", "");
  directory_.folder("folder");
  EXPECT_TRUE(isDirectory(at("folder").c_str()));
  EXPECT_FALSE(isDirectory(at("file").c_str()));
  EXPECT_FALSE(isDirectory(at("missing").c_str()));
  EXPECT_FALSE(isDirectory(KOSTYLE_TEXT("")));
  EXPECT_FALSE(isDirectory(nullptr));
}

TEST_F(FileSystem, JoinsWithOneSeparatorWhateverTheDirectorysText) {
  const Text separator(1, platform::separator);
  EXPECT_EQ(joinPath(text("a"), text("b")), text("a") + separator + text("b"));
  EXPECT_EQ(joinPath(text("a") + separator, text("b")), text("a") + separator + separator + text("b"));
  EXPECT_EQ(joinPath(TextView(), text("b")), separator + text("b"));
}

TEST_F(FileSystem, CreatesAllMissingLevels) {
  const Text path = pathText(directory_.path() / "a" / "b" / "c");
  EXPECT_TRUE(createDirectories(path.c_str()));
  EXPECT_TRUE(test::fs::is_directory(directory_.path() / "a" / "b" / "c"));
  EXPECT_TRUE(createDirectories(path.c_str()));
  EXPECT_TRUE(createDirectories(root().c_str()));
}

TEST_F(FileSystem, CreatesADirectoryWithASeparatorAtItsEnd) {
  const Text path = pathText(directory_.path() / "a" / "b") + platform::separator;
  EXPECT_TRUE(createDirectories(path.c_str()));
  EXPECT_TRUE(test::fs::is_directory(directory_.path() / "a" / "b"));
}

TEST_F(FileSystem, CreatesNothingForNoPath) {
  EXPECT_FALSE(createDirectories(nullptr));
  EXPECT_FALSE(createDirectories(KOSTYLE_TEXT("")));
}

TEST_F(FileSystem, TakesAFileForACreatedDirectory) {
  test::writeFile(directory_ / "file", "content");
  EXPECT_TRUE(createDirectories(at("file").c_str()));
  EXPECT_EQ(test::readFile(directory_ / "file"), "content");
}

TEST_F(FileSystem, CreatesNothingBelowAFile) {
  test::writeFile(directory_ / "file", "content");
  EXPECT_FALSE(createDirectories(pathText(directory_.path() / "file" / "a").c_str()));
  EXPECT_FALSE(createDirectories(pathText(directory_.path() / "file" / "a" / "b").c_str()));
  EXPECT_EQ(test::readFile(directory_ / "file"), "content");
}

TEST_F(FileSystem, EnsuresADirectory) {
  EXPECT_TRUE(ensureDirectory(root().c_str()));
  EXPECT_TRUE(ensureDirectory(pathText(directory_.path() / "a" / "b").c_str()));
  EXPECT_TRUE(test::fs::is_directory(directory_.path() / "a" / "b"));
  EXPECT_FALSE(ensureDirectory(nullptr));
  EXPECT_FALSE(ensureDirectory(KOSTYLE_TEXT("")));
}

TEST_F(FileSystem, RemovesFilesAndEmptyDirectories) {
  for (const bool recursive : {false, true}) {
    test::writeFile(directory_ / "file", "");
    directory_.folder("empty");
    EXPECT_TRUE(removePath(at("file").c_str(), recursive));
    EXPECT_TRUE(removePath(at("empty").c_str(), recursive));
    EXPECT_FALSE(removePath(at("file").c_str(), recursive));
    EXPECT_FALSE(removePath(at("missing").c_str(), recursive));
    EXPECT_FALSE(removePath(nullptr, recursive));
    EXPECT_FALSE(removePath(KOSTYLE_TEXT(""), recursive));
  }
  EXPECT_THAT(test::entryNames(directory_.path()), IsEmpty());
}

TEST_F(FileSystem, RemovesAFullDirectoryOnlyWhenRecursive) {
  directory_.folder("full");
  test::writeFile(directory_.path() / "full" / "file", "content");
  EXPECT_FALSE(removePath(at("full").c_str(), false));
  EXPECT_EQ(test::readFile(directory_.path() / "full" / "file"), "content");
  EXPECT_TRUE(removePath(at("full").c_str(), true));
  EXPECT_FALSE(test::fs::exists(directory_ / "full"));
}

TEST_F(FileSystem, RemovesADirectoryOfFilesInOneCall) {
  directory_.folder("tree");
  for (const char* name : {"a", "b", ".hidden"})
    test::writeFile(directory_.path() / "tree" / name, "content");
  EXPECT_TRUE(removeDirectoryTree(at("tree").c_str()));
  EXPECT_FALSE(test::fs::exists(directory_ / "tree"));
}

TEST_F(FileSystem, RemovesNoTreeThatIsNoDirectory) {
  test::writeFile(directory_ / "file", "");
  EXPECT_FALSE(removeDirectoryTree(nullptr));
  EXPECT_FALSE(removeDirectoryTree(at("missing").c_str()));
  EXPECT_FALSE(removeDirectoryTree(at("file").c_str()));
  EXPECT_TRUE(test::fs::exists(directory_ / "file"));
}

TEST_F(FileSystem, StopsAfterTheFirstSubdirectoryThatItRemoves) {
  directory_.folder("tree/sub");
  test::writeFile(directory_.path() / "tree" / "sub" / "file", "");
  test::writeFile(directory_.path() / "tree" / "file", "");
  EXPECT_FALSE(removeDirectoryTree(at("tree").c_str()));
  EXPECT_FALSE(test::fs::exists(directory_.path() / "tree" / "sub"));
  EXPECT_TRUE(test::fs::exists(directory_ / "tree"));
  EXPECT_TRUE(removeDirectoryTree(at("tree").c_str()));
  EXPECT_FALSE(test::fs::exists(directory_ / "tree"));
}

// How many calls it takes until a tree is gone.
int callsToRemove(const Text& tree) {
  int calls = 1;
  while (!removeDirectoryTree(tree.c_str()) && calls < 100) ++calls;
  return calls;
}

TEST_F(FileSystem, TakesOneCallMoreThanThereAreSubdirectoriesSideBySide) {
  for (const int count : {0, 1, 2, 5}) {
    directory_.folder("tree");
    for (int i = 0; i < count; ++i) {
      const auto folder = directory_.folder(test::fs::path("tree") / std::to_string(i));
      test::writeFile(folder / "file", "");
    }
    EXPECT_EQ(callsToRemove(at("tree")), count + 1);
    EXPECT_FALSE(test::fs::exists(directory_ / "tree"));
  }
}

TEST_F(FileSystem, TakesOneCallMoreThanThereAreSubdirectoriesInEachOther) {
  for (const int count : {1, 2, 5}) {
    test::fs::path nested = "tree";
    for (int i = 0; i < count; ++i) nested /= "sub";
    test::writeFile(directory_.folder(nested) / "file", "");
    EXPECT_EQ(callsToRemove(at("tree")), count + 1);
    EXPECT_FALSE(test::fs::exists(directory_ / "tree"));
  }
}

class FileListing : public FileSystem {
 protected:
  // root: 1, 2, sub: 3, sub: 4
  FileListing() {
    directory_.folder(test::fs::path("sub") / "sub");
    for (const auto& file : {one_, two_, three_, four_}) test::writeFile(file, "");
  }
  Text sub() const { return pathText(directory_ / "sub"); }

  const test::fs::path one_ = directory_ / "1";
  const test::fs::path two_ = directory_ / "2";
  const test::fs::path three_ = directory_.path() / "sub" / "3";
  const test::fs::path four_ = directory_.path() / "sub" / "sub" / "4";
};

TEST_F(FileListing, GoesAsDeepAsItsLimit) {
  EXPECT_THAT(listFiles(root().c_str(), 1), UnorderedElementsAre(pathText(one_), pathText(two_)));
  EXPECT_THAT(listFiles(root().c_str(), 2),
              UnorderedElementsAre(pathText(one_), pathText(two_), pathText(three_)));
  for (const std::size_t limit : {std::size_t{3}, SIZE_MAX, std::size_t{0}}) {
    EXPECT_THAT(
        listFiles(root().c_str(), limit),
        UnorderedElementsAre(pathText(one_), pathText(two_), pathText(three_), pathText(four_)));
  }
}

TEST_F(FileListing, ListsASubdirectorysFilesAtItsPlace) {
  std::vector<Text> expected;
  platform::enumerateDirectory(
      platform::nativePath(toLongPath(root().c_str())), [&](platform::DirectoryEntry&& entry) {
        expected.push_back(entry.isDirectory ? pathText(three_) : joinPath(root(), entry.name));
        return true;
      });
  EXPECT_EQ(listFiles(root().c_str(), 2), expected);
}

TEST_F(FileListing, CountsItsLimitFromTheDepthItStartsAt) {
  std::vector<Text> files = {text("first")};
  enumerateFiles(sub(), 2, 1, files);
  EXPECT_THAT(files, ElementsAre(text("first"), pathText(three_)));
  files.clear();
  enumerateFiles(sub(), 3, 1, files);
  EXPECT_THAT(files, UnorderedElementsAre(pathText(three_), pathText(four_)));
  files.clear();
  enumerateFiles(sub(), 0, 9, files);
  EXPECT_EQ(files.size(), 2u);
}

TEST_F(FileListing, IsEmptyForWhatIsNoDirectory) {
  EXPECT_THAT(listFiles(nullptr, 1), IsEmpty());
  EXPECT_THAT(listFiles(at("missing").c_str(), 0), IsEmpty());
  EXPECT_THAT(listFiles(pathText(one_).c_str(), 0), IsEmpty());
  EXPECT_THAT(listFiles(pathText(directory_.folder("empty")).c_str(), 0), IsEmpty());
}

TEST_F(FileSystem, WorksFarBeyondTheClassicPathLimit) {
  const Text part(40, Char('p'));
  Text folder = root();
  for (int i = 0; i < 12; ++i) folder = joinPath(folder, part);
  ASSERT_GT(folder.size(), 480u);
  EXPECT_TRUE(createDirectories(folder.c_str()));
  EXPECT_TRUE(isDirectory(folder.c_str()));
  const Text file = joinPath(folder, text("file"));
  EXPECT_NE(platform::openForWriting(platform::nativePath(toLongPath(file.c_str()))), nullptr);
  EXPECT_TRUE(pathExists(file.c_str()));
  EXPECT_THAT(listFiles(folder.c_str(), 1), ElementsAre(file));
  EXPECT_THAT(listFiles(root().c_str(), 0), ElementsAre(file));
  EXPECT_FALSE(removePath(folder.c_str(), false));
  EXPECT_TRUE(removePath(file.c_str(), false));
  EXPECT_EQ(callsToRemove(joinPath(root(), part)), 12);
  EXPECT_FALSE(pathExists(joinPath(root(), part)));
}

TEST_F(FileSystem, ComesBackFromAPathOfThousandsOfMissingLevels) {
  test::writeFile(directory_ / "file", "content");
  Text path = at("file");
  for (int i = 0; i < 4000; ++i) path.append(1, platform::separator).append(1, Char('d'));
  EXPECT_FALSE(createDirectories(path.c_str()));
  EXPECT_EQ(test::readFile(directory_ / "file"), "content");
}

}  // namespace
}  // namespace Tesk::KoStyle
