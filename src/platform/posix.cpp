#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <new>
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

// No terminal becomes ours, and a pipe that took a file's place just now keeps nobody waiting.
constexpr int quietly = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

// Opening a pipe or a device has effects of its own, so it is not even tried.
bool isRegularFile(const NativePath& path) noexcept {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

// A stream over a descriptor of a regular file; otherwise null, and the descriptor is closed.
File streamOver(int descriptor, const char* mode) noexcept {
  if (descriptor < 0) return nullptr;
  struct stat status {};
  std::FILE* stream = nullptr;
  if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) stream = fdopen(descriptor, mode);
  if (!stream) close(descriptor);
  return File(stream);
}

// What the file system says of an entry by itself; where it does not say, or says that the entry is a
// link, the system is asked. A link counts as what it leads to.
DirectoryEntry describe(int directory, const dirent& found) {
  const char* const name = found.d_name;
  DirectoryEntry entry;
  entry.name = textFromName(name);
  entry.isDirectory = found.d_type == DT_DIR;
  entry.isRegularFile = found.d_type == DT_REG;
  entry.isLink = found.d_type == DT_LNK;
  if (found.d_type != DT_UNKNOWN && !entry.isLink) return entry;
  struct stat status {};
  if (!entry.isLink)
    entry.isLink =
        fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
  if (fstatat(directory, name, &status, 0) == 0) {
    entry.isDirectory = isDirectory(status);
    entry.isRegularFile = S_ISREG(status.st_mode);
  }
  return entry;
}

}  // namespace

const Char separator = u'/';

Text longPathForm(TextView path) { return Text(path); }

NativePath nativePath(TextView path) { return nameFromText(path).value_or(NativePath()); }

EntryKind entryKind(const NativePath& path) noexcept {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) return EntryKind::none;
  // A link that leads nowhere still occupies its name.
  if (S_ISLNK(status.st_mode) && stat(path.c_str(), &status) != 0) return EntryKind::file;
  return isDirectory(status) ? EntryKind::directory : EntryKind::file;
}

bool enumerateDirectory(const NativePath& directory,
                        const std::function<bool(DirectoryEntry&&)>& visit) {
  const Directory stream(opendir(directory.c_str()));
  if (!stream) return false;
  while (const dirent* entry = readdir(stream.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    if (!visit(describe(dirfd(stream.get()), *entry))) break;
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

File openForReading(const NativePath& path) noexcept {
  return streamOver(open(path.c_str(), O_RDONLY | quietly), "rb");
}

// A failure changes nothing: the stream is there before a new file is, and a file that is there already
// is emptied last.
File openForWriting(const NativePath& path) noexcept {
  if (File created{std::fopen(path.c_str(), "wbxe")}) return created;
  if (!isRegularFile(path)) return nullptr;
  const int descriptor = open(path.c_str(), O_WRONLY | quietly);
  File file = streamOver(descriptor, "wb");
  return file && ftruncate(descriptor, 0) == 0 ? std::move(file) : nullptr;
}

// Version 4: random but for the digits that say so.
Text makeUuid() {
  unsigned char bytes[16];
  ssize_t count = 0;
  do count = getrandom(bytes, sizeof bytes, 0);
  while (count < 0 && errno == EINTR);
  if (count != static_cast<ssize_t>(sizeof bytes)) throw std::bad_alloc();
  bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0FU) | 0x40U);
  bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3FU) | 0x80U);
  Text uuid;
  uuid.reserve(36);
  for (const unsigned char byte : bytes) {
    constexpr char digits[] = "0123456789abcdef";
    const std::size_t length = uuid.size();
    if (length == 8 || length == 13 || length == 18 || length == 23) uuid += u'-';
    uuid += static_cast<Char>(digits[byte >> 4U]);
    uuid += static_cast<Char>(digits[byte & 0x0FU]);
  }
  return uuid;
}

}  // namespace Tesk::KoStyle::platform
