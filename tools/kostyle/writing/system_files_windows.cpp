#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <fmt/core.h>
#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "basics/failure.h"
#include "writing/system_files.h"

namespace tool {
namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

[[noreturn]] void fail(const fs::path& path, const char* what, DWORD error = GetLastError()) {
  const std::error_code code(static_cast<int>(error), std::system_category());
  throw Refused(fmt::format("{}: {}: {}", shownPath(path), what, code.message()));
}

// A handle that is closed at the end.
class Handle {
 public:
  Handle(const fs::path& path, DWORD access, DWORD sharing, DWORD disposition, DWORD flags)
      : handle_(CreateFileW(path.c_str(), access, sharing, nullptr, disposition, flags, nullptr)) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { close(); }
  bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  void close() {
    if (isOpen()) CloseHandle(release());
  }
  HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

 private:
  HANDLE handle_;
};

bool writeAll(HANDLE file, std::string_view bytes) {
  constexpr std::size_t largestPart = 1U << 20U;
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto part = static_cast<DWORD>(std::min(bytes.size(), largestPart));
    if (!WriteFile(file, bytes.data(), part, &count, nullptr)) return false;
    bytes.remove_prefix(count);
  }
  return true;
}

std::vector<char> accessList(const fs::path& file) {
  DWORD size = 0;
  GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> descriptor(size);
  if (size > 0 &&
      !GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size))
    fail(file, "who may use it cannot be read");
  return descriptor;
}

// A file system without access lists has none to keep.
void copyAccessList(const fs::path& from, const fs::path& to) {
  std::vector<char> wanted = accessList(from);
  if (wanted.empty() || wanted == accessList(to)) return;
  if (!SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, wanted.data()))
    fail(from, "who may use it cannot be kept");
}

void copyAttributes(const fs::path& from, const fs::path& to) {
  WIN32_FILE_ATTRIBUTE_DATA wanted{};
  if (!GetFileAttributesExW(from.c_str(), GetFileExInfoStandard, &wanted)) fail(from, "cannot be read");
  const Handle file(to, FILE_WRITE_ATTRIBUTES, shareAll, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
  if (!file.isOpen() || !SetFileTime(file.get(), &wanted.ftCreationTime, nullptr, nullptr) ||
      !SetFileAttributesW(to.c_str(), wanted.dwFileAttributes))
    fail(from, "its attributes cannot be kept");
}

}  // namespace

fs::path throughLinks(const fs::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
    return path;
  const Handle file(path, 0, shareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  if (!file.isOpen()) fail(path, "cannot be opened");
  std::wstring target(GetFinalPathNameByHandleW(file.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  const auto size = static_cast<DWORD>(target.size());
  const DWORD length = GetFinalPathNameByHandleW(file.get(), target.data(), size, FILE_NAME_NORMALIZED);
  if (length == 0 || length >= size) fail(path, "where it leads is not known");
  target.resize(length);
  return target;
}

void requireWriteAccess(const fs::path& file) {
  const DWORD attributes = GetFileAttributesW(file.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) fail(file, "cannot be written");
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
    throw Refused(fmt::format("{}: cannot be written: it is marked as read-only", shownPath(file)));
  const Handle opened(file, GENERIC_WRITE, shareAll, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
  // A program that has it open now may be done when it is replaced.
  if (!opened.isOpen() && GetLastError() != ERROR_SHARING_VIOLATION) fail(file, "cannot be written");
}

void writeNewFile(const fs::path& path, std::string_view bytes, const fs::path& like) {
  Handle file(path, GENERIC_WRITE, 0, CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
  if (!file.isOpen()) fail(like, "no file can be made beside it");
  try {
    if (!writeAll(file.get(), bytes) || !FlushFileBuffers(file.get()))
      fail(like, "its new content cannot be written");
    file.close();
    if (GetFileAttributesW(like.c_str()) == INVALID_FILE_ATTRIBUTES) return;
    copyAccessList(like, path);
    copyAttributes(like, path);
  } catch (...) {
    file.close();
    DeleteFileW(path.c_str());
    throw;
  }
}

std::error_code moveOver(const fs::path& from, const fs::path& to) {
  if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
    return {};
  return {static_cast<int>(GetLastError()), std::system_category()};
}

std::error_code moveToNewName(const fs::path& from, const fs::path& to) {
  if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH)) return {};
  return {static_cast<int>(GetLastError()), std::system_category()};
}

bool isInUse(std::error_code error) {
  // The second is what replacing a file gives that is open.
  return error.value() == ERROR_SHARING_VIOLATION || error.value() == ERROR_ACCESS_DENIED ||
         error.value() == ERROR_LOCK_VIOLATION || error.value() == ERROR_USER_MAPPED_FILE;
}

struct HeldFile::Open {
  explicit Open(const fs::path& path)
      : file(path, GENERIC_READ | DELETE, 0, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL) {}
  Handle file;
};

HeldFile::HeldFile(const fs::path& path) : path_(path), open_(std::make_unique<Open>(path)) {
  if (open_->file.isOpen()) return;
  // The second while the one before is on its way out of the folder.
  const DWORD error = GetLastError();
  open_.reset();
  if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED)
    fail(path_, "cannot be opened", error);
}

HeldFile::~HeldFile() {
  LARGE_INTEGER size{};
  FILE_DISPOSITION_INFO deleted{TRUE};
  if (isHeld() && GetFileSizeEx(open_->file.get(), &size) && size.QuadPart == 0)
    SetFileInformationByHandle(open_->file.get(), FileDispositionInfo, &deleted, sizeof deleted);
}

}  // namespace tool
