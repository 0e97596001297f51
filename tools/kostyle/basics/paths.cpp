#include "basics/paths.h"

#include <fmt/core.h>

#include <cerrno>
#include <random>
#include <system_error>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

#include "basics/failure.h"

namespace tool {
namespace {

// Fails when the working directory was deleted.
fs::path absolutePath(const fs::path& path) {
  std::error_code error;
  fs::path absolute = fs::absolute(path, error);
  if (error)
    throw Refused(fmt::format("{}: no working directory: {}", shownPath(path), error.message()));
  return absolute;
}

// A style may be meant for its owner alone. On Windows the user's temporary files are.
bool makePrivateDirectory(const fs::path& path, std::error_code& error) {
#if defined(_WIN32)
  return fs::create_directory(path, error);
#else
  if (mkdir(path.c_str(), S_IRWXU) == 0) return true;
  if (errno != EEXIST) error = std::error_code(errno, std::generic_category());
  return false;
#endif
}

}  // namespace

fs::path pathOf(std::string_view argument) {
#if defined(_WIN32)
  return fromUtf8(argument);
#else
  return argument;
#endif
}

fs::path pathOf(TextView path) {
#if defined(_WIN32)
  return path;
#else
  return pathToUtf8(path);
#endif
}

std::string shownPath(const fs::path& path) {
#if defined(_WIN32)
  return toUtf8(path.native());
#else
  return path.native();
#endif
}

Text libraryPath(const fs::path& path) {
#if defined(_WIN32)
  fs::path whole = fs::absolute(path).lexically_normal().make_preferred();
#else
  fs::path whole = path;
#endif
  if (!whole.has_filename()) whole = whole.parent_path();
#if defined(_WIN32)
  return whole.native();
#else
  return fromUtf8(whole.native());
#endif
}

bool isDirectory(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

std::string whyNoRegularFile(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::is_regular_file(status)) return {};
  if (fs::is_directory(status)) return "a directory, not a file";
  if (fs::exists(status)) return "not a regular file";
  if (status.type() != fs::file_type::not_found) return error.message();
  std::error_code ignored;
  return fs::is_symlink(fs::symlink_status(path, ignored)) ? "a link that leads nowhere"
                                                           : "no such file";
}

fs::path existingPart(const fs::path& path) {
  fs::path part = absolutePath(path);
  while (!isDirectory(part) && part != part.parent_path()) part = part.parent_path();
  return part;
}

TemporaryDirectory::TemporaryDirectory() {
  std::random_device random;
  std::error_code error;
  const fs::path parent = fs::temp_directory_path(error);
  bool made = false;
  while (!made && !error) {
    path_ = parent / fmt::format("kostyle-{}", random());
    made = makePrivateDirectory(path_, error);
  }
  if (!made) throw Refused(fmt::format("no temporary directory: {}", error.message()));
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  if (!isKept_) fs::remove_all(path_, ignored);
}

MissingDirectories::MissingDirectories(const fs::path& path) {
  fs::path part = absolutePath(path);
  if (!part.has_filename()) part = part.parent_path();
  for (const fs::path existing = existingPart(part); part != existing; part = part.parent_path())
    deepestFirst_.push_back(part);
}

MissingDirectories::~MissingDirectories() {
  std::error_code ignored;
  // A directory that is not empty stays.
  for (const fs::path& path : deepestFirst_)
    if (isDirectory(path)) fs::remove(path, ignored);
}

}  // namespace tool
