#include "writing/file_replacement.h"

#include <fmt/format.h>

#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "writing/system_files.h"
#include "writing/waiting.h"

namespace tool {

FileReplacement::FileReplacement(const FolderLock&, const fs::path& file, std::string_view bytes)
    : file_(file), path_(file.parent_path() / "kostyle.new") {
  std::error_code ignored;
  fs::remove(path_, ignored);  // what stands in the way otherwise will be told
  writeNewFile(path_, bytes, file_);
}

FileReplacement::~FileReplacement() {
  std::error_code ignored;
  if (!isDone_) fs::remove(path_, ignored);
}

void FileReplacement::finish(std::chrono::milliseconds limit) {
  Waiting waiting(limit, fmt::format("waiting for a program that has {} open", shownPath(file_)));
  std::error_code error = moveOver(path_, file_);
  while (error && isInUse(error) && waiting.again()) error = moveOver(path_, file_);
  if (error)
    throw Refused(fmt::format("{}: the file cannot be replaced{}: {}", shownPath(file_),
                              isInUse(error) ? ", a program may have it open" : "", error.message()));
  isDone_ = true;
}

void replaceContent(const FolderLock& lock, const fs::path& file, const ContentChange& change,
                    const std::function<void(const std::string&)>& verify,
                    std::chrono::milliseconds limit) {
  if (change.after == change.before) return;
  FileReplacement replacement(lock, file, change.after);
  verify(readBytes(replacement.path()));
  if (readBytes(file) != change.before)
    throw Refused(fmt::format("{}: another program has changed the file meanwhile", shownPath(file)));
  replacement.finish(limit);
}

}  // namespace tool
