// Opening, deleting and renaming files.
#include <gmock/gmock.h>

#include <string>

#include "native_path.h"

namespace Tesk::KoStyle::platform {
namespace {

using testing::ElementsAre;

std::string contentOf(std::FILE* file) {
  std::string content(100, '\0');
  content.resize(std::fread(content.data(), 1, content.size(), file));
  return content;
}

class Files : public testing::Test {
 protected:
  NativePath at(const char* name) const { return nativeLongPath(directory_ / name); }

  const test::TemporaryDirectory directory_;
};

TEST_F(Files, ReadsAFileAsItIs) {
  const std::string content("a\r\n\x1a\0b\n", 7);
  test::writeFile(directory_ / "file", content);
  const File file = openForReading(at("file"));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(contentOf(file.get()), content);
}

TEST_F(Files, WritesAFileAsItIs) {
  const std::string content("a\r\n\x1a\0b\n", 7);
  File file = openForWriting(at("file"));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(std::fwrite(content.data(), 1, content.size(), file.get()), content.size());
  file.reset();
  EXPECT_EQ(test::readFile(directory_ / "file"), content);
}

TEST_F(Files, EmptiesTheFileItOpensForWriting) {
  test::writeFile(directory_ / "file", "old content");
  EXPECT_NE(openForWriting(at("file")), nullptr);
  EXPECT_EQ(test::readFile(directory_ / "file"), "");
}

TEST_F(Files, OpensNoMissingFileForReading) {
  EXPECT_EQ(openForReading(at("missing")), nullptr);
  EXPECT_EQ(openForReading(NativePath()), nullptr);
  EXPECT_FALSE(test::fs::exists(directory_ / "missing"));
}

TEST_F(Files, OpensNothingInAMissingDirectoryForWriting) {
  EXPECT_EQ(openForWriting(nativeLongPath(directory_.path() / "missing" / "file")), nullptr);
  EXPECT_EQ(openForWriting(NativePath()), nullptr);
  EXPECT_FALSE(test::fs::exists(directory_ / "missing"));
}

TEST_F(Files, OpensNoDirectory) {
  directory_.folder("folder.kostyle");
  EXPECT_EQ(openForReading(at("folder.kostyle")), nullptr);
  EXPECT_EQ(openForWriting(at("folder.kostyle")), nullptr);
  EXPECT_TRUE(test::fs::is_directory(directory_ / "folder.kostyle"));
}

TEST_F(Files, DeletesFilesOnly) {
  test::writeFile(directory_ / "file", "");
  directory_.folder("folder");
  EXPECT_TRUE(deleteFile(at("file")));
  EXPECT_FALSE(deleteFile(at("file")));
  EXPECT_FALSE(deleteFile(at("folder")));
  EXPECT_THAT(test::entryNames(directory_.path()), ElementsAre("folder"));
}

TEST_F(Files, RenamesAFile) {
  test::writeFile(directory_ / "old", "content");
  EXPECT_TRUE(renameFile(at("old"), at("new")));
  EXPECT_FALSE(renameFile(at("old"), at("newer")));
  EXPECT_THAT(test::entryNames(directory_.path()), ElementsAre("new"));
  EXPECT_EQ(test::readFile(directory_ / "new"), "content");
}

TEST_F(Files, RenamesOntoAnotherFileWhereTheSystemDoes) {
  test::writeFile(directory_ / "old", "one");
  test::writeFile(directory_ / "new", "other");
#if defined(_WIN32)
  EXPECT_FALSE(renameFile(at("old"), at("new")));
  EXPECT_EQ(test::readFile(directory_ / "new"), "other");
#else
  EXPECT_TRUE(renameFile(at("old"), at("new")));
  EXPECT_EQ(test::readFile(directory_ / "new"), "one");
#endif
}

}  // namespace
}  // namespace Tesk::KoStyle::platform
