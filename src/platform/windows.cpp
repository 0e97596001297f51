#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <rpc.h>
#include <windows.h>

#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "platform/platform.h"

namespace Tesk::KoStyle::platform {
namespace {

struct SearchCloser {
  void operator()(HANDLE search) const noexcept { FindClose(search); }
};
using Search = std::unique_ptr<std::remove_pointer_t<HANDLE>, SearchCloser>;

Search findFirst(const NativePath& pattern, WIN32_FIND_DATAW& found) noexcept {
  HANDLE search = FindFirstFileW(pattern.c_str(), &found);
  return Search(search == INVALID_HANDLE_VALUE ? nullptr : search);
}

bool isDirectory(const WIN32_FIND_DATAW& found) {
  return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

const Char separator = L'\\';

Text longPathForm(TextView path) {
  if (!path.empty() && path.front() == separator) return Text(path);
  return Text(L"\\\\?\\").append(path);
}

NativePath nativePath(TextView path) { return NativePath(path); }

EntryKind entryKind(const NativePath& path) noexcept {
  WIN32_FIND_DATAW found;
  if (!findFirst(path, found)) return EntryKind::none;
  return isDirectory(found) ? EntryKind::directory : EntryKind::file;
}

bool enumerateDirectory(const NativePath& directory,
                        const std::function<bool(DirectoryEntry&&)>& visit) {
  WIN32_FIND_DATAW found;
  const Search search = findFirst(directory + L"\\*", found);
  if (!search) return false;
  do {
    DirectoryEntry entry{found.cFileName, isDirectory(found), !isDirectory(found), false};
    if (entry.isDirectory && (entry.name == L"." || entry.name == L"..")) continue;
    if (!visit(std::move(entry))) break;
  } while (FindNextFileW(search.get(), &found));
  return true;
}

bool makeDirectory(const NativePath& path) noexcept {
  return CreateDirectoryW(path.c_str(), nullptr) != FALSE || GetLastError() == ERROR_ALREADY_EXISTS;
}

bool removeDirectory(const NativePath& path) noexcept { return RemoveDirectoryW(path.c_str()) == TRUE; }

bool deleteFile(const NativePath& path) noexcept { return DeleteFileW(path.c_str()) == TRUE; }

bool renameFile(const NativePath& from, const NativePath& to) noexcept {
  return _wrename(from.c_str(), to.c_str()) == 0;
}

File openForReading(const NativePath& path) noexcept { return File(_wfopen(path.c_str(), L"rb")); }

File openForWriting(const NativePath& path) noexcept { return File(_wfopen(path.c_str(), L"wb")); }

Text makeUuid() {
  UUID uuid{};
  const RPC_STATUS created = UuidCreate(&uuid);
  RPC_WSTR digits = nullptr;
  if ((created != RPC_S_OK && created != RPC_S_UUID_LOCAL_ONLY) ||
      UuidToStringW(&uuid, &digits) != RPC_S_OK) {
    throw std::bad_alloc();
  }
  struct Release {
    void operator()(unsigned short* text) const noexcept { RpcStringFreeW(&text); }
  };
  const std::unique_ptr<unsigned short, Release> owned(digits);
  return Text(reinterpret_cast<const Char*>(digits));
}

}  // namespace Tesk::KoStyle::platform
