// What stands at a path, and making, enumerating and removing directories.
#include <gmock/gmock.h>

#include <map>
#include <stdexcept>
#include <string>

#include "native_path.h"

namespace Tesk::KoStyle::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Entries = std::map<std::string, bool>;  // name, and whether it is a directory

Entries entriesOf(const NativePath& directory) {
  Entries entries;
  EXPECT_TRUE(enumerateDirectory(directory, [&](DirectoryEntry&& entry) {
    EXPECT_TRUE(entries.emplace(test::utf8(entry.name), entry.isDirectory).second);
    return true;
  }));
  return entries;
}

class Directories : public testing::Test {
 protected:
  NativePath at(const char* relative) const {
    return nativeLongPath(*relative ? directory_ / relative : directory_.path());
  }

  NativePath below(const char* folder) const {
    return nativeLongPath(directory_.path() / folder / "below");
  }

  const test::TemporaryDirectory directory_;
};

TEST_F(Directories, TellsFilesFromDirectories) {
  test::writeFile(directory_ / "file", "");
  directory_.folder("folder");
  EXPECT_EQ(entryKind(at("file")), EntryKind::file);
  EXPECT_EQ(entryKind(at("folder")), EntryKind::directory);
  EXPECT_EQ(entryKind(at("missing")), EntryKind::none);
  EXPECT_EQ(entryKind(below("missing")), EntryKind::none);
  EXPECT_EQ(entryKind(NativePath()), EntryKind::none);
}

TEST_F(Directories, EnumeratesFilesAndDirectoriesButNotItselfAndItsParent) {
  for (const char* name : {"a", ".hidden", "..b"}) test::writeFile(directory_ / name, "");
  directory_.folder("folder");
  directory_.folder("empty");
  test::writeFile(directory_ / "folder" / "below", "");
  EXPECT_THAT(entriesOf(at("")),
              ElementsAre(Pair("..b", false), Pair(".hidden", false), Pair("a", false),
                          Pair("empty", true), Pair("folder", true)));
  EXPECT_THAT(entriesOf(at("empty")), IsEmpty());
}

TEST_F(Directories, EnumeratesNamesOfEveryPlane) {
  const std::string name = "é漢😀";
  test::writeFile(directory_ / test::fs::u8path(name), "");
  EXPECT_THAT(entriesOf(at("")), ElementsAre(Pair(name, false)));
}

TEST_F(Directories, StopsEnumeratingWhenItsVisitorSaysSo) {
  for (const char* name : {"a", "b", "c"}) test::writeFile(directory_ / name, "");
  int visited = 0;
  EXPECT_TRUE(enumerateDirectory(at(""), [&](DirectoryEntry&&) { return ++visited < 2; }));
  EXPECT_EQ(visited, 2);
}

TEST_F(Directories, EnumeratesOnlyDirectoriesThatExist) {
  test::writeFile(directory_ / "file", "");
  const auto neverCalled = [](DirectoryEntry&&) {
    ADD_FAILURE();
    return true;
  };
  EXPECT_FALSE(enumerateDirectory(at("missing"), neverCalled));
  EXPECT_FALSE(enumerateDirectory(at("file"), neverCalled));
}

TEST_F(Directories, LetsGoOfADirectoryWhenItsVisitorThrows) {
  directory_.folder("folder");
  test::writeFile(directory_ / "folder" / "below", "");
  const auto fail = [](DirectoryEntry&&) -> bool { throw std::runtime_error("visitor"); };
  EXPECT_THROW(enumerateDirectory(at("folder"), fail), std::runtime_error);
  EXPECT_TRUE(deleteFile(below("folder")));
  EXPECT_TRUE(removeDirectory(at("folder")));
}

TEST_F(Directories, MakesOneLevel) {
  EXPECT_TRUE(makeDirectory(at("made")));
  EXPECT_TRUE(test::fs::is_directory(directory_ / "made"));
  EXPECT_FALSE(makeDirectory(below("missing")));
  EXPECT_FALSE(makeDirectory(NativePath()));
}

TEST_F(Directories, TakesWhateverExistsAsMade) {
  test::writeFile(directory_ / "file", "content");
  EXPECT_TRUE(makeDirectory(at("")));
  EXPECT_TRUE(makeDirectory(at("file")));
  EXPECT_EQ(test::readFile(directory_ / "file"), "content");
}

TEST_F(Directories, RemovesEmptyDirectoriesOnly) {
  directory_.folder("empty");
  directory_.folder("full");
  test::writeFile(directory_ / "full" / "below", "");
  EXPECT_TRUE(removeDirectory(at("empty")));
  EXPECT_FALSE(removeDirectory(at("empty")));
  EXPECT_FALSE(removeDirectory(at("full")));
  EXPECT_FALSE(removeDirectory(below("full")));
  EXPECT_THAT(test::entryNames(directory_.path()), ElementsAre("full"));
}

}  // namespace
}  // namespace Tesk::KoStyle::platform
