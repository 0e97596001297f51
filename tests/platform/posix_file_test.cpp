// Entries of a POSIX system that are neither plain files nor directories, and links to all of them.
#if !defined(_WIN32)

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <map>
#include <string>
#include <tuple>

#include "native_path.h"

namespace Tesk::KoStyle::platform {
namespace {

// A file descriptor that is closed at the end of its scope.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int number() const { return number_; }

 private:
  const int number_;
};

class PosixFiles : public testing::Test {
 protected:
  std::string at(const char* name) const { return (directory_ / name).native(); }

  void expectRefused(const std::string& path) {
    EXPECT_EQ(entryKind(path), EntryKind::file);
    EXPECT_EQ(openForReading(path), nullptr);
    EXPECT_EQ(openForWriting(path), nullptr);
  }

  const test::TemporaryDirectory directory_;
};

TEST_F(PosixFiles, APipeIsRefusedAtOnce) {
  ASSERT_EQ(mkfifo(at("pipe.kostyle").c_str(), 0600), 0);
  expectRefused(at("pipe.kostyle"));
}

TEST_F(PosixFiles, APipeWithAnotherEndIsRefusedToo) {
  ASSERT_EQ(mkfifo(at("pipe.kostyle").c_str(), 0600), 0);
  const Descriptor reader(open(at("pipe.kostyle").c_str(), O_RDONLY | O_NONBLOCK));
  const Descriptor writer(open(at("pipe.kostyle").c_str(), O_WRONLY | O_NONBLOCK));
  ASSERT_GE(writer.number(), 0);
  expectRefused(at("pipe.kostyle"));
}

TEST_F(PosixFiles, ASocketIsRefused) {
  const Descriptor server(socket(AF_UNIX, SOCK_STREAM, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string path = at("s.kostyle");
  ASSERT_LT(path.size(), sizeof(address.sun_path));
  std::memcpy(address.sun_path, path.c_str(), path.size());
  ASSERT_EQ(bind(server.number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  expectRefused(path);
}

TEST_F(PosixFiles, ADeviceIsRefused) {
  for (const char* device : {"/dev/null", "/dev/zero"}) {
    const test::fs::path link = directory_ / "device.kostyle";
    test::fs::create_symlink(device, link);
    expectRefused(link.native());
    test::fs::remove(link);
  }
}

TEST_F(PosixFiles, RefusedFilesLeaveNoDescriptorOpen) {
  const int before = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(before);
  test::fs::create_symlink("/dev/null", directory_ / "device");
  directory_.folder("folder");
  for (const char* name : {"device", "folder"}) {
    openForReading(at(name));
    openForWriting(at(name));
  }
  const Descriptor after(open("/dev/null", O_RDONLY | O_CLOEXEC));
  EXPECT_EQ(after.number(), before);
}

TEST_F(PosixFiles, AFileIsNotOpenInProgramsThatAreStarted) {
  test::writeFile(directory_ / "file", "");
  const File file = openForReading(at("file"));
  ASSERT_NE(file, nullptr);
  EXPECT_NE(fcntl(fileno(file.get()), F_GETFD) & FD_CLOEXEC, 0);
}

TEST_F(PosixFiles, LinksAreFollowed) {
  test::writeFile(directory_ / "file", "content");
  directory_.folder("folder");
  test::fs::create_symlink("file", directory_ / "to-file");
  test::fs::create_directory_symlink("folder", directory_ / "to-folder");
  EXPECT_EQ(entryKind(at("to-file")), EntryKind::file);
  EXPECT_EQ(entryKind(at("to-folder")), EntryKind::directory);
  const File file = openForReading(at("to-file"));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(std::fgetc(file.get()), 'c');
  EXPECT_EQ(openForReading(at("to-folder")), nullptr);
}

TEST_F(PosixFiles, ALinkThatLeadsNowhereOccupiesItsName) {
  test::fs::create_symlink("missing", directory_ / "dangling");
  test::fs::create_symlink("circle", directory_ / "circle");
  for (const char* name : {"dangling", "circle"}) {
    EXPECT_EQ(entryKind(at(name)), EntryKind::file);
    EXPECT_EQ(openForReading(at(name)), nullptr);
    EXPECT_TRUE(makeDirectory(at(name)));
    EXPECT_TRUE(deleteFile(at(name)));
    EXPECT_EQ(entryKind(at(name)), EntryKind::none);
  }
}

TEST_F(PosixFiles, DeletingALinkKeepsWhatItLeadsTo) {
  test::writeFile(directory_ / "file", "content");
  test::fs::create_symlink("file", directory_ / "link");
  EXPECT_TRUE(deleteFile(at("link")));
  EXPECT_EQ(test::readFile(directory_ / "file"), "content");
}

TEST_F(PosixFiles, EnumerationTellsLinksAndWhatTheyLeadTo) {
  test::writeFile(directory_ / "file", "");
  directory_.folder("folder");
  test::fs::create_symlink("file", directory_ / "to-file");
  test::fs::create_directory_symlink("folder", directory_ / "to-folder");
  test::fs::create_symlink("missing", directory_ / "dangling");
  ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
  test::fs::create_symlink("pipe", directory_ / "to-pipe");
  using Facts = std::tuple<bool, bool, bool>;  // a directory, a regular file, a link
  std::map<std::string, Facts> entries;
  enumerateDirectory(directory_.path().native(), [&](DirectoryEntry&& entry) {
    entries[test::utf8(entry.name)] = {entry.isDirectory, entry.isRegularFile, entry.isLink};
    return true;
  });
  const std::map<std::string, Facts> expected = {
      {"file", {false, true, false}},    {"folder", {true, false, false}},
      {"to-file", {false, true, true}},  {"to-folder", {true, false, true}},
      {"pipe", {false, false, false}},   {"to-pipe", {false, false, true}},
      {"dangling", {false, false, true}}};
  EXPECT_EQ(entries, expected);
}

TEST_F(PosixFiles, ANameThatIsNotUtf8IsFoundAgain) {
  const std::string name = "stray\xFF\xC3(\xED\xA0\x80.kostyle";
  test::writeFile(directory_ / name, "content");
  Text found;
  enumerateDirectory(directory_.path().native(), [&](DirectoryEntry&& entry) {
    found = entry.name;
    return true;
  });
  EXPECT_EQ(nativePath(found), name);
  const Text path = test::pathText(directory_.path()) + Char('/') + found;
  EXPECT_NE(openForReading(nativePath(path)), nullptr);
}

TEST_F(PosixFiles, ATextThatNamesNothingDoesNotExist) {
  const Text path = test::pathText(directory_.path()) + Char('/') + Char(0xD800);
  EXPECT_EQ(entryKind(nativePath(path)), EntryKind::none);
  EXPECT_FALSE(makeDirectory(nativePath(path)));
  EXPECT_EQ(openForWriting(nativePath(path)), nullptr);
  EXPECT_TRUE(test::fs::is_empty(directory_.path()));
}

TEST_F(PosixFiles, APathsLongFormIsThePathItself) {
  for (const char* path : {"", "/", "/a//b/", "relative", "\\\\server", "C:\\x"})
    EXPECT_EQ(longPathForm(test::text(path)), test::text(path));
}

}  // namespace
}  // namespace Tesk::KoStyle::platform

#endif
