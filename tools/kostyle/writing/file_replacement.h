// New content for a file: written beside it first, then put in its place at once.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "basics/paths.h"
#include "writing/folder_lock.h"

namespace tool {

/// A file that is there keeps mode and owner; one that is missing is made. A process that is killed
/// before the end may leave the new content behind as `kostyle.new`; the next replacement in the folder
/// takes it away.
class FileReplacement {
 public:
  /// Writes the new content. `file` is no link, and its folder is locked. Throws Refused and leaves
  /// nothing.
  FileReplacement(const FolderLock& lock, const fs::path& file, std::string_view bytes);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /// Leaves the file as it was, unless finish() came to its end.
  ~FileReplacement();

  /// Where the new content is until then.
  const fs::path& path() const { return path_; }

  /// Puts the new content in the file's place. While another program keeps the file from being
  /// replaced, it is tried again, up to the limit. Throws Refused.
  void finish(std::chrono::milliseconds limit);

 private:
  fs::path file_;
  fs::path path_;
  bool isDone_ = false;
};

struct ContentChange {
  const std::string& before;
  const std::string& after;
};

/// Replaces what is in a file, unless it stays the same. `verify` is given the new content as it can be
/// read, and throws when that is not to be. Throws Refused too when the file changed meanwhile.
void replaceContent(const FolderLock& lock, const fs::path& file, const ContentChange& change,
                    const std::function<void(const std::string&)>& verify,
                    std::chrono::milliseconds limit);

/// Makes a file, whole from its first moment on. Nothing has its name; what has it stays, and Refused
/// is thrown. `verify` as above.
void createFile(const FolderLock& lock, const fs::path& file, const std::string& bytes,
                const std::function<void(const std::string&)>& verify);

}  // namespace tool
