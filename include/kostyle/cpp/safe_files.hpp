/*
 * KoStyle for C++: the files that a safe save needs besides. For safe_save.hpp alone.
 */
#ifndef KOSTYLE_CPP_SAFE_FILES_HPP
#define KOSTYLE_CPP_SAFE_FILES_HPP

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <new>
#include <string>
#include <system_error>

#include "text.hpp"

namespace kostyle::detail {

// A name that is no style file's and that hardly anything else has. Names differ within the process, also
// from those of other modules that have this header.
inline std::string freshName(const char* purpose) {
  static std::atomic<std::uint32_t> count{0};
  const auto time = std::chrono::system_clock::now().time_since_epoch().count();
  const auto module = reinterpret_cast<std::uintptr_t>(&count);
  return std::string(purpose) + std::to_string(module ^ static_cast<std::uintptr_t>(time)) + '-' +
         std::to_string(++count);
}

inline std::string shownPath(const std::filesystem::path& path) {
#if defined(_WIN32)
  return toUtf8(path.c_str());
#else
  return path.native();
#endif
}

inline void removeQuietly(const std::filesystem::path& path) noexcept {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

// A second name of a file, or where the file system has none or needs one, a copy. What has the name
// already stays.
inline std::error_code linkOrCopy(const std::filesystem::path& from, const std::filesystem::path& to) {
  std::error_code error;
  std::filesystem::create_hard_link(from, to, error);
  if (!error || error == std::errc::file_exists || error == std::errc::no_such_file_or_directory)
    return error;
  error.clear();
  std::filesystem::copy_file(from, to, error);
  if (error && error != std::errc::file_exists) removeQuietly(to);
  return error;
}

// A folder that is removed at the end. Who puts files into it removes them; what is left goes too, unless
// memory runs out or a path is too long to be listed.
class ScratchFolder {
 public:
  // In a directory that is made when it is missing. When error() is set there is no folder.
  explicit ScratchFolder(const std::filesystem::path& parent) {
    std::filesystem::create_directories(parent, error_);
    while (!error_) {
      path_ = parent / freshName("kostyle-safe-");
      if (std::filesystem::create_directory(path_, error_)) break;
    }
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    if (error_) return;
    std::error_code error;
    std::filesystem::remove(path_, error);
    if (!error) return;
    try {
      std::filesystem::remove_all(path_, error);
    } catch (const std::bad_alloc&) {
      // The folder stays, as after a process that is killed.
    }
  }

  std::error_code error() const noexcept { return error_; }
  const std::filesystem::path& path() const noexcept { return path_; }

 private:
  std::filesystem::path path_;
  std::error_code error_;
};

// Keeps a file that is about to be replaced, beside it, so that putting it back is one renaming and takes
// no space. The old file comes back with the end of the object, unless discard() was called.
class Backup {
 public:
  // When error() is set there is no backup.
  explicit Backup(const std::filesystem::path& file)
      : file_(file),
        path_(file.parent_path() / freshName("kostyle-backup-")),
        error_(linkOrCopy(file_, path_)),
        active_(!error_) {}
  Backup(const Backup&) = delete;
  Backup& operator=(const Backup&) = delete;
  ~Backup() { restore(); }

  std::error_code error() const noexcept { return error_; }
  const std::filesystem::path& path() const noexcept { return path_; }

  // Puts something in the place of a file that is gone, so that it can be overwritten once more.
  void standIn() {
    std::error_code ignored;
    if (active_ && !std::filesystem::exists(file_, ignored)) linkOrCopy(path_, file_);
  }

  // The answer says why the file is not what it was; the backup then stays.
  std::error_code restore() noexcept {
    std::error_code error;
    if (!active_) return error;
    active_ = false;
    std::filesystem::rename(path_, file_, error);
    // When both were names of one file still, the renaming did nothing.
    if (!error) removeQuietly(path_);
    return error;
  }

  // For when the file was not replaced. It is put back only if somebody else took it away.
  void giveUp() noexcept {
    std::error_code error;
    if (std::filesystem::exists(std::filesystem::symlink_status(file_, error))) {
      discard();
    } else {
      restore();
    }
  }

  void discard() noexcept {
    if (active_) removeQuietly(path_);
    active_ = false;
  }

 private:
  std::filesystem::path file_;
  std::filesystem::path path_;
  std::error_code error_;
  bool active_;
};

}  // namespace kostyle::detail

#endif
