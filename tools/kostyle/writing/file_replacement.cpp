#include "writing/file_replacement.h"

#include <fmt/core.h>

#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "writing/system_files.h"
#include "writing/waiting.h"

namespace tool {
namespace {

constexpr const char* newName = "kostyle.new";

// Where new content is written in a folder.
fs::path clearedPlace(const fs::path& folder) {
  fs::path path = folder / newName;
  std::error_code error;
  fs::remove(path, error);
  if (error && fs::exists(fs::symlink_status(path)))
    throw Refused(fmt::format("{}: stands in the way and cannot be removed: {}", shownPath(path),
                              error.message()));
  return path;
}

// What stands beside every file that is replaced cannot be replaced itself.
void requireFreeName(const fs::path& file) {
  std::error_code ignored;
  const fs::path folder = file.parent_path();
  for (const char* const name : {newName, FolderLock::name})
    if (file.filename() == name || fs::equivalent(file, folder / name, ignored))
      throw Refused(
          fmt::format("{}: kostyle needs the name itself; give the file another one", shownPath(file)));
}

}  // namespace

FileReplacement::FileReplacement(const FolderLock&, const fs::path& file, std::string_view bytes)
    : file_(file) {
  requireFreeName(file);
  path_ = clearedPlace(file.parent_path());
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

void createFile(const FolderLock&, const fs::path& file, const std::string& bytes,
                const std::function<void(const std::string&)>& verify) {
  const fs::path path = clearedPlace(file.parent_path());
  writeNewFile(path, bytes, file);
  try {
    verify(readBytes(path));
    const std::error_code error = moveToNewName(path, file);
    if (error)
      throw Refused(fmt::format("{}: the file cannot be made: {}", shownPath(file), error.message()));
  } catch (...) {
    std::error_code ignored;
    fs::remove(path, ignored);
    throw;
  }
}

}  // namespace tool
