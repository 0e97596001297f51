#include "writing/backup.h"

#include <fmt/format.h>

#include <random>
#include <system_error>

#include "basics/failure.h"

namespace tool {
namespace {

fs::path freshNameBeside(const fs::path& file) {
  std::random_device random;
  std::error_code ignored;
  for (;;) {
    fs::path path = file.parent_path() / fmt::format("kostyle-backup-{}", random());
    if (fs::symlink_status(path, ignored).type() == fs::file_type::not_found) return path;
  }
}

void removeQuietly(const fs::path& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

}  // namespace

Backup::Backup(const fs::path& file) : file_(file), path_(freshNameBeside(file)) {
  std::error_code error;
  fs::create_hard_link(file_, path_, error);
  if (!error) return;
  // Not every file system has links.
  error.clear();
  fs::copy_file(file_, path_, error);
  if (!error) return;
  removeQuietly(path_);
  throw Refused(fmt::format("{}: no backup can be made: {}", shownPath(file_), error.message()));
}

Backup::~Backup() {
  if (!kept_) removeQuietly(path_);
}

bool Backup::restore() noexcept {
  // When both are names of one file still, this does nothing.
  std::error_code error;
  fs::rename(path_, file_, error);
  kept_ = static_cast<bool>(error);
  return !kept_;
}

}  // namespace tool
