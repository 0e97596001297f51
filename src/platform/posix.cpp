#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <uuid/uuid.h>

#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/platform.h"
#include "platform/posix_names.h"

namespace Tesk::KoStyle::platform {
namespace {

struct DirectoryCloser {
  void operator()(DIR* directory) const noexcept { closedir(directory); }
};
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

bool isDirectory(const struct stat& status) { return S_ISDIR(status.st_mode); }

// Opens regular files only: a pipe would block, a device would answer without end. O_NONBLOCK keeps
// the opening itself from waiting for a pipe's other end.
File openRegular(const NativePath& path, int flags, const char* mode) noexcept {
  constexpr mode_t readWriteForAll = 0666;
  const int descriptor = open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, readWriteForAll);
  if (descriptor < 0) return nullptr;
  struct stat status {};
  std::FILE* file = nullptr;
  if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) file = fdopen(descriptor, mode);
  if (!file) close(descriptor);
  return File(file);
}

// A link counts as what it leads to.
DirectoryEntry describe(int directory, const char* name) {
  DirectoryEntry entry{textFromName(name), false, false};
  struct stat status {};
  entry.isLink = fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
  entry.isDirectory = fstatat(directory, name, &status, 0) == 0 && isDirectory(status);
  return entry;
}

}  // namespace

const Char separator = u'/';

Text longPathForm(TextView path) { return Text(path); }

NativePath nativePath(TextView path) { return nameFromText(path).value_or(NativePath()); }

EntryKind entryKind(const NativePath& path) noexcept {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0)
    return isDirectory(status) ? EntryKind::directory : EntryKind::file;
  // A link that leads nowhere still occupies its name.
  return lstat(path.c_str(), &status) == 0 ? EntryKind::file : EntryKind::none;
}

bool enumerateDirectory(const NativePath& directory,
                        const std::function<bool(DirectoryEntry&&)>& visit) {
  const Directory stream(opendir(directory.c_str()));
  if (!stream) return false;
  while (const dirent* entry = readdir(stream.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    if (!visit(describe(dirfd(stream.get()), entry->d_name))) break;
  }
  return true;
}

bool makeDirectory(const NativePath& path) noexcept {
  constexpr mode_t allForAll = 0777;
  return mkdir(path.c_str(), allForAll) == 0 || errno == EEXIST;
}

bool removeDirectory(const NativePath& path) noexcept { return rmdir(path.c_str()) == 0; }

bool deleteFile(const NativePath& path) noexcept { return unlink(path.c_str()) == 0; }

bool renameFile(const NativePath& from, const NativePath& to) noexcept {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

File openForReading(const NativePath& path) noexcept { return openRegular(path, O_RDONLY, "rb"); }

File openForWriting(const NativePath& path) noexcept {
  return openRegular(path, O_WRONLY | O_CREAT | O_TRUNC, "wb");
}

Text makeUuid() {
  uuid_t uuid;
  uuid_generate_random(uuid);
  char digits[UUID_STR_LEN];
  uuid_unparse_lower(uuid, digits);
  return textFromName(digits);
}

}  // namespace Tesk::KoStyle::platform
