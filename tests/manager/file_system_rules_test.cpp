// What the file-system operations do on one of the systems only.
#include <gmock/gmock.h>
#if !defined(_WIN32)
#include <pthread.h>
#endif

#include <cstddef>
#include <vector>

#include "manager/file_system.h"
#include "platform/platform.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::pathText;
using test::text;
using testing::ElementsAre;

TEST(LongPath, OfNullIsEmpty) { EXPECT_EQ(toLongPath(nullptr), Text()); }

#if defined(_WIN32)

TEST(LongPath, OfAPathHasThePrefix) {
  EXPECT_EQ(toLongPath(LR"(C:\a\b)"), LR"(\\?\C:\a\b)");
  EXPECT_EQ(toLongPath(L"C:"), LR"(\\?\C:)");
  EXPECT_EQ(toLongPath(L""), LR"(\\?\)");
  EXPECT_EQ(toLongPath(LR"(relative\path)"), LR"(\\?\relative\path)");
  EXPECT_EQ(toLongPath(L"C:/a/b/"), LR"(\\?\C:/a/b/)");
  EXPECT_EQ(toLongPath(L"/a"), LR"(\\?\/a)");
  EXPECT_EQ(toLongPath(LR"(.\a\..\b\)"), LR"(\\?\.\a\..\b\)");
}

TEST(LongPath, OfAPathThatStartsWithABackslashIsThePath) {
  for (const wchar_t* path :
       {LR"(\\server\share\a)", LR"(\\?\C:\a)", LR"(\\.\pipe\a)", LR"(\rooted)", LR"(\)"})
    EXPECT_EQ(toLongPath(path), path);
}

TEST(WindowsPaths, RelativeOnesDoNotExist) {
  EXPECT_FALSE(isDirectory(L"."));
  EXPECT_FALSE(pathExists(L"."));
}

TEST(WindowsPaths, NothingIsCreatedOnAMissingDrive) {
  EXPECT_FALSE(createDirectories(LR"(Q:\kostyle\a\b)"));
  EXPECT_FALSE(createDirectories(LR"(Q:)"));
}

TEST(WindowsPaths, APatternFindsItsFirstMatch) {
  const test::TemporaryDirectory directory;
  directory.folder("folder");
  EXPECT_TRUE(pathExists(pathText(directory / "fold*")));
  EXPECT_TRUE(isDirectory(pathText(directory / "f?lder").c_str()));
  EXPECT_FALSE(pathExists(pathText(directory / "g*")));
}

TEST(WindowsPaths, ABackslashAtTheEndHidesADirectory) {
  const test::TemporaryDirectory directory;
  EXPECT_FALSE(isDirectory((pathText(directory.path()) + L'\\').c_str()));
}

TEST(WindowsPaths, AForwardSlashSeparatesNothing) {
  const test::TemporaryDirectory directory;
  EXPECT_FALSE(createDirectories((pathText(directory.path()) + L"/made").c_str()));
  EXPECT_FALSE(createDirectories((pathText(directory.path()) + L"/made/below").c_str()));
  EXPECT_TRUE(test::fs::is_empty(directory.path()));
}

#else

TEST(LongPath, OfAPathIsThePath) {
  for (const char16_t* path : {u"", u"/", u"/a/b/", u"relative/path", u"C:\\a", u"\\\\server\\share"})
    EXPECT_EQ(toLongPath(path), path);
}

TEST(PosixPaths, ASeparatorAtTheEndNamesTheDirectory) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory / "file", "");
  const Text path = pathText(directory.path()) + u'/';
  EXPECT_TRUE(isDirectory(path.c_str()));
  EXPECT_THAT(listFiles(path.c_str(), 1), ElementsAre(path + u"/file"));
  EXPECT_FALSE(pathExists(pathText(directory / "file") + u'/'));
}

TEST(PosixPaths, ABackslashIsAnOrdinaryCharacter) {
  const test::TemporaryDirectory directory;
  EXPECT_TRUE(createDirectories((pathText(directory.path()) + u"/a\\b").c_str()));
  EXPECT_THAT(test::entryNames(directory.path()), ElementsAre("a\\b"));
}

TEST(PosixPaths, NamesThatAreNotUtf8AreListedMadeAndRemoved) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory / "stray\xFF\xC3", "");
  const Text root = pathText(directory.path());
  const std::vector<Text> files = listFiles(root.c_str(), 1);
  const Text name = Text(u"/stray") + Char(0xDCFF) + Char(0xDCC3);
  ASSERT_THAT(files, ElementsAre(root + name));
  EXPECT_TRUE(pathExists(files.front()));
  EXPECT_TRUE(removePath(files.front().c_str(), false));
  EXPECT_TRUE(createDirectories((root + name + u"/sub").c_str()));
  EXPECT_TRUE(test::fs::is_directory(directory.path() / "stray\xFF\xC3" / "sub"));
}

TEST(PosixPaths, AnUnpairedSurrogateNamesNothing) {
  const test::TemporaryDirectory directory;
  const Text path = pathText(directory.path()) + u"/a" + Char(0xD800);
  EXPECT_FALSE(pathExists(path));
  EXPECT_FALSE(createDirectories(path.c_str()));
  EXPECT_FALSE(removePath(path.c_str(), true));
  EXPECT_TRUE(test::fs::is_empty(directory.path()));
}

TEST(PosixPaths, ALinkIsRemovedAndNotWhatItLeadsTo) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory.folder("kept") / "file", "content");
  test::fs::create_directory_symlink("../kept", directory.folder("tree") / "to-folder");
  test::fs::create_symlink("../kept/file", directory.path() / "tree" / "to-file");
  test::fs::create_symlink("missing", directory.path() / "tree" / "dangling");
  EXPECT_TRUE(removeDirectoryTree(pathText(directory / "tree").c_str()));
  EXPECT_EQ(test::readFile(directory.path() / "kept" / "file"), "content");
}

void* createOnSmallStack(void* path) {
  const bool created = createDirectories(static_cast<const Char*>(path));
  return created ? path : nullptr;
}

TEST(PosixPaths, ThousandsOfMissingLevelsNeedNoMoreStackThanOne) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory / "file", "content");
  Text path = pathText(directory / "file");
  for (int i = 0; i < 4000; ++i) path += u"/d";
  constexpr std::size_t smallStack = 256 * 1024;
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, smallStack), 0);
  pthread_t thread;
  ASSERT_EQ(pthread_create(&thread, &attributes, createOnSmallStack, path.data()), 0);
  pthread_attr_destroy(&attributes);
  void* result = path.data();
  ASSERT_EQ(pthread_join(thread, &result), 0);
  EXPECT_EQ(result, nullptr);
}

#endif

}  // namespace
}  // namespace Tesk::KoStyle
