#include <fcntl.h>
#include <fmt/core.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "basics/failure.h"
#include "writing/system_files.h"

namespace tool {
namespace {

// A link or a pipe that took the file's place is not followed and keeps nobody waiting.
constexpr int quietly = O_CLOEXEC | O_NOCTTY | O_NOFOLLOW | O_NONBLOCK;

// Less what the user keeps from new files.
constexpr mode_t forAll = 0666;

[[noreturn]] void fail(const fs::path& path, const char* what, int error = errno) {
  throw Refused(
      fmt::format("{}: {}: {}", shownPath(path), what, std::generic_category().message(error)));
}

// A descriptor that is closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  int get() const { return number_; }

  // What was kept back so far may fail here.
  bool close() {
    const int number = number_;
    number_ = -1;
    return ::close(number) == 0;
  }

 private:
  int number_;
};

bool writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// Access lists and labels. A name that the system will not let the user write is its own to keep.
void copyExtendedAttributes(int from, int to) {
  std::vector<char> names(static_cast<std::size_t>(std::max<ssize_t>(flistxattr(from, nullptr, 0), 0)));
  const ssize_t size = flistxattr(from, names.data(), names.size());
  for (ssize_t at = 0; at < size;) {
    const std::string name(names.data() + at);
    std::vector<char> value(
        static_cast<std::size_t>(std::max<ssize_t>(fgetxattr(from, name.c_str(), nullptr, 0), 0)));
    const ssize_t length = fgetxattr(from, name.c_str(), value.data(), value.size());
    if (length >= 0) fsetxattr(to, name.c_str(), value.data(), static_cast<std::size_t>(length), 0);
    at += static_cast<ssize_t>(name.size()) + 1;
  }
}

void makeLike(int file, const fs::path& like) {
  const Descriptor original(open(like.c_str(), O_RDONLY | quietly));
  struct stat wanted {};
  struct stat given {};
  if (original.get() < 0 || fstat(original.get(), &wanted) != 0) fail(like, "cannot be read");
  if (fstat(file, &given) != 0) fail(like, "its new content cannot be written");
  const bool sameOwner = wanted.st_uid == given.st_uid && wanted.st_gid == given.st_gid;
  if (!sameOwner && fchown(file, wanted.st_uid, wanted.st_gid) != 0)
    fail(like, "its owner and group cannot be kept");
  copyExtendedAttributes(original.get(), file);
  constexpr mode_t modeBits = 07777;
  if (fchmod(file, wanted.st_mode & modeBits) != 0) fail(like, "its mode cannot be kept");
}

// Opens the file at a path for locking; it is made when it is missing.
int openForHolding(const fs::path& path) {
  for (;;) {
    int number = open(path.c_str(), O_RDONLY | quietly);
    if (number >= 0 || errno != ENOENT) return number;
    number = open(path.c_str(), O_RDONLY | O_CREAT | O_EXCL | quietly, forAll);
    if (number >= 0) fchmod(number, forAll);  // one that is left behind is opened by every user
    if (number >= 0 || errno != EEXIST) return number;
  }
}

[[noreturn]] void failToHold(const fs::path& path) {
  const int error = errno;
  if (faccessat(AT_FDCWD, path.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
    fail(path, "cannot be opened", error);
  fail(path.parent_path(), "no file can be made in it", error);
}

// The one who held the file before may have deleted it: then it is no longer the one that others find.
bool isAt(int number, const fs::path& path) {
  struct stat opened {};
  struct stat found {};
  return fstat(number, &opened) == 0 && lstat(path.c_str(), &found) == 0 &&
         opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

}  // namespace

fs::path throughLinks(const fs::path& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  fs::path target = fs::canonical(path, error);
  if (error) throw Refused(fmt::format("{}: {}", shownPath(path), error.message()));
  return target;
}

void requireWriteAccess(const fs::path& file) {
  if (faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) fail(file, "cannot be written");
}

void writeNewFile(const fs::path& path, std::string_view bytes, const fs::path& like) {
  constexpr mode_t mineAlone = 0600;
  const bool isReplacing = faccessat(AT_FDCWD, like.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
  Descriptor file(
      open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | quietly, isReplacing ? mineAlone : forAll));
  if (file.get() < 0) fail(like, "no file can be made beside it");
  try {
    if (!writeAll(file.get(), bytes)) fail(like, "its new content cannot be written");
    if (isReplacing) makeLike(file.get(), like);
    if (fsync(file.get()) != 0 || !file.close()) fail(like, "its new content cannot be written");
  } catch (...) {
    unlink(path.c_str());
    throw;
  }
}

std::error_code moveOver(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  return error;
}

std::error_code moveToNewName(const fs::path& from, const fs::path& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
  if (errno != EINVAL && errno != ENOSYS) return {errno, std::generic_category()};
  // A file system that cannot look and rename at once.
  std::error_code error;
  if (fs::exists(fs::symlink_status(to, error))) return std::make_error_code(std::errc::file_exists);
  return moveOver(from, to);
}

bool isInUse(std::error_code) { return false; }

struct HeldFile::Open {
  explicit Open(int number) : file(number) {}
  Descriptor file;
};

HeldFile::HeldFile(const fs::path& path) : path_(path) {
  for (;;) {
    auto opened = std::make_unique<Open>(openForHolding(path_));
    const int number = opened->file.get();
    if (number < 0) failToHold(path_);
    if (flock(number, LOCK_EX | LOCK_NB) != 0) {
      if (errno != EWOULDBLOCK && errno != EINTR) fail(path_, "cannot be locked");
      return;
    }
    if (!isAt(number, path_)) continue;
    open_ = std::move(opened);
    return;
  }
}

HeldFile::~HeldFile() {
  struct stat status {};
  if (isHeld() && fstat(open_->file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
      status.st_size == 0)
    unlink(path_.c_str());
}

}  // namespace tool
