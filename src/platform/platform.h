// The operating system, as the library needs it. One file for each system implements this header, and
// only those files include a header of the system.
//
// Paths are handed to the system as they are; callers bring them into the long-path form where they
// want it. A failure of the system shows in a function's result alone. Only the functions that are not
// noexcept may run out of memory, so a caller can prepare its paths and then change files without an
// exception.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "platform/text.h"

namespace Tesk::KoStyle::platform {

/// Separates the parts of a path. The only separator that is split at and joined with.
extern const Char separator;

/// The form of a path that the system's length limit does not touch.
Text longPathForm(TextView path);

/// A path in the system's own characters.
#if defined(_WIN32)
using NativePath = Text;
#else
using NativePath = std::string;
#endif

/// The path that a text names. A text that can name nothing gives a path that does not exist.
NativePath nativePath(TextView path);

enum class EntryKind { none, file, directory };

/// What stands at a path. Everything that exists and is not a directory counts as a file.
EntryKind entryKind(const NativePath& path) noexcept;

struct DirectoryEntry {
  Text name;
  bool isDirectory = false;
  /// Whether the entry is a regular file or leads to one; only these are opened.
  bool isRegularFile = false;
  /// Whether the entry is a link that can be deleted without touching what it leads to.
  bool isLink = false;
};

/// Hands the entries of a directory to `visit`, in the system's order and without "." and "..", until
/// it returns false. Returns false when the directory cannot be enumerated.
bool enumerateDirectory(const NativePath& directory,
                        const std::function<bool(DirectoryEntry&&)>& visit);

/// Makes a directory. Something that exists at the path already counts as made, whatever it is.
bool makeDirectory(const NativePath& path) noexcept;

/// Removes an empty directory.
bool removeDirectory(const NativePath& path) noexcept;

bool deleteFile(const NativePath& path) noexcept;

/// Removes a file or an empty directory; false when nothing stands there or the system refuses.
inline bool removeEntry(const NativePath& path) noexcept {
  const EntryKind kind = entryKind(path);
  if (kind == EntryKind::directory) return removeDirectory(path);
  return kind == EntryKind::file && deleteFile(path);
}

/// Renames a file. A file that has the new name already is in the way on some systems only.
bool renameFile(const NativePath& from, const NativePath& to) noexcept;

struct FileCloser {
  void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

/// Memory for what a stream takes from the system, or gives to it, at once. Most files fit.
struct FileBuffer {
  char bytes[16384];
};

/// Sets the buffer of a stream that was just opened and closes before the buffer goes.
inline void setBuffer(const File& file, FileBuffer& buffer) noexcept {
  static_cast<void>(std::setvbuf(file.get(), buffer.bytes, _IOFBF, sizeof buffer.bytes));
}

/// Opens a file that enumerateDirectory() found to be a regular one, to be read; null when that fails,
/// and when something else has taken its place since.
File openForReading(const NativePath& path) noexcept;

/// Opens a file to be written, empty; null when that fails.
File openForWriting(const NativePath& path) noexcept;

/// A fresh random UUID in its usual form: 36 units, lower case, without braces. Throws std::bad_alloc
/// when the system gives none.
Text makeUuid();

}  // namespace Tesk::KoStyle::platform
