// What opening a file must not do on Linux.
#include <gmock/gmock.h>

#if !defined(_WIN32)

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "platform/platform.h"
#include "support/temporary_directory.h"

namespace {

std::atomic<bool> refuseStreams{false};

}  // namespace

// Stands before the system's own, which allocates the stream.
extern "C" std::FILE* fdopen(int descriptor, const char* mode) noexcept {
  if (refuseStreams) {
    errno = ENOMEM;
    return nullptr;
  }
  using Open = std::FILE* (*)(int, const char*);
  static const auto real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "fdopen"));
  return real(descriptor, mode);
}

namespace {

namespace platform = Tesk::KoStyle::platform;

struct PosixOpen : testing::Test {
  platform::NativePath path(const char* name) const {
    return platform::nativePath(test::pathText(directory / name));
  }
  test::TemporaryDirectory directory;
};

TEST_F(PosixOpen, WithoutMemoryForTheStreamAnOldFileKeepsItsContent) {
  test::writeFile(directory / "old", "kept");
  refuseStreams = true;
  EXPECT_FALSE(platform::openForWriting(path("old")));
  refuseStreams = false;
  EXPECT_EQ(test::readFile(directory / "old"), "kept");
}

// A sanitizer's own memory cannot be used up.
#if !defined(__SANITIZE_ADDRESS__)

void useUpMemory() {
  const rlimit none{0, 0};
  if (setrlimit(RLIMIT_AS, &none) != 0) _exit(2);
  // Small blocks are kept by their exact size.
  for (std::size_t size = 1U << 20; size > 0; size -= size > 4096 ? size / 2 : 16) {
    while (void* const block = std::malloc(size)) *static_cast<volatile char*>(block) = 0;
  }
}

TEST_F(PosixOpen, WithoutMemoryForTheStreamNoNewFileStays) {
  const platform::NativePath file = path("new");
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    useUpMemory();
    _exit(platform::openForWriting(file) ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0) << "it was opened";
  EXPECT_THAT(test::entryNames(directory.path()), testing::IsEmpty());
}

#endif

TEST_F(PosixOpen, OldContentIsGoneOnceTheFileIsOpen) {
  test::writeFile(directory / "old", "long content");
  EXPECT_TRUE(platform::openForWriting(path("old")));
  EXPECT_EQ(test::readFile(directory / "old"), "");
}

TEST_F(PosixOpen, AnotherThanTheRegularFileThatWasListedIsNotRead) {
  ASSERT_EQ(mkfifo((directory / "pipe").c_str(), 0600), 0);
  EXPECT_FALSE(platform::openForReading(path("pipe")));
  EXPECT_FALSE(platform::openForReading(path(".")));
}

// Whoever waits for a pipe's other end goes on waiting. The pauses give a fault time to show.
TEST_F(PosixOpen, PipeIsNotOpenedForWritingAtAll) {
  ASSERT_EQ(mkfifo((directory / "pipe").c_str(), 0600), 0);
  std::atomic<bool> released{false};
  std::thread writer([&] {
    const int end = open((directory / "pipe").c_str(), O_WRONLY);
    released = true;
    close(end);
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_FALSE(platform::openForWriting(path("pipe")));
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_FALSE(released);
  const int otherEnd = open((directory / "pipe").c_str(), O_RDONLY);
  writer.join();
  close(otherEnd);
  EXPECT_TRUE(released);
}

}  // namespace

#endif
