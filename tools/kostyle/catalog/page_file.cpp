#include "catalog/page_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <system_error>

#include "basics/failure.h"
#include "writing/file_replacement.h"
#include "writing/folder_lock.h"
#include "writing/system_files.h"

namespace tool {
namespace {

constexpr std::chrono::seconds longestWait(10);

bool isNamedAsStyle(const fs::path& path) {
  std::string extension = path.extension().u8string();
  for (char& c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return extension == ".kostyle";
}

}  // namespace

PageFile::PageFile(const fs::path& path) : path_(throughLinks(path)) {
  std::error_code ignored;
  const fs::file_status status = fs::status(path_, ignored);
  if (fs::is_directory(status)) throw WrongUse(fmt::format("{}: a directory", shownPath(path)));
  if (fs::exists(status) && !fs::is_regular_file(status))
    throw WrongUse(fmt::format("{}: not a regular file", shownPath(path)));
  if (isNamedAsStyle(path) || isNamedAsStyle(path_))
    throw WrongUse(fmt::format("{}: a style file, which no page may replace", shownPath(path)));
  const fs::path folder = path_.parent_path();
  if (!folder.empty() && !isDirectory(folder))
    throw WrongUse(fmt::format("{}: no such directory", shownPath(folder)));
}

void PageFile::write(const Collection& collection, std::string_view page) const {
  std::error_code ignored;
  const bool isThere = fs::exists(path_, ignored);
  const auto isIt = [this](const CollectedFile& file) {
    std::error_code other;
    return fs::equivalent(pathOf(file.report.file), path_, other);
  };
  const auto& files = collection.files();
  if (isThere && std::any_of(files.begin(), files.end(), isIt))
    throw WrongUse(fmt::format("{}: a style file, which no page may replace", shownPath(path_)));
  if (isThere) requireWriteAccess(path_);
  const FolderLock lock(path_.parent_path(), longestWait);
  FileReplacement(lock, path_, page).finish(longestWait);
}

}  // namespace tool
