// Files that another program holds.
#pragma once

#include "support/temporary_directory.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace test {

#if defined(_WIN32)
/// A file that others may only use as `sharing` says.
class OpenFile {
 public:
  OpenFile(const fs::path& path, DWORD sharing)
      : file_(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { CloseHandle(file_); }
  bool isOpen() const { return file_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE file_;
};

struct HeldLock : OpenFile {
  explicit HeldLock(const fs::path& path) : OpenFile(path, 0) {}
};
#else
class HeldLock {
 public:
  explicit HeldLock(const fs::path& path)
      : file_(open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0600)) {}
  HeldLock(const HeldLock&) = delete;
  HeldLock& operator=(const HeldLock&) = delete;
  ~HeldLock() { close(file_); }
  bool isOpen() const { return file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) == 0; }

 private:
  int file_;
};
#endif

}  // namespace test
