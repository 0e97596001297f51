#if defined(_WIN32)
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#endif
#include "basics/files.h"

#include <fmt/core.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>

#include "basics/common_options.h"
#include "basics/failure.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace tool {
namespace {

struct Closer {
  void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, Closer>;

File openFile(const fs::path& path, const char* mode) {
#if defined(_WIN32)
  return File(_wfopen(path.c_str(), pathOf(std::string_view(mode)).c_str()));
#else
  return File(std::fopen(path.c_str(), mode));
#endif
}

[[noreturn]] void fail(const std::string& shown, const char* what, int error) {
  throw Refused(fmt::format("{}: {}: {}", shown, what, std::generic_category().message(error)));
}

[[noreturn]] void fail(const fs::path& path, const char* what) { fail(shownPath(path), what, errno); }

std::string readAll(std::FILE* file, const std::string& shown) {
  std::string bytes;
  char block[65536];
  try {
    while (const std::size_t count = std::fread(block, 1, sizeof block, file)) {
      if (count > commonOptions().maxSize - bytes.size())
        throw Refused(fmt::format("{}: {}", shown, tooLarge()));
      bytes.append(block, count);
    }
  } catch (const std::bad_alloc&) {
    throw Refused(fmt::format("{}: there is not enough memory for the file", shown));
  }
  if (std::ferror(file) != 0) fail(shown, "the file cannot be read", errno);
  return bytes;
}

}  // namespace

void requireRegularFile(const fs::path& path) {
  if (const std::string why = whyNoRegularFile(path); !why.empty())
    throw Refused(fmt::format("{}: {}", shownPath(path), why));
}

std::string readBytes(const fs::path& path) {
  std::error_code ignored;
  if (fs::exists(path, ignored)) requireRegularFile(path);
  const File file = openFile(path, "rb");
  if (!file) fail(path, "the file cannot be opened");
  return readAll(file.get(), shownPath(path));
}

std::string readStandardInput() {
#if defined(_WIN32)
  _setmode(_fileno(stdin), _O_BINARY);
#endif
  return readAll(stdin, "stdin");
}

void writeCopy(const fs::path& copy, std::string_view bytes, const fs::path& original) {
  File file = openFile(copy, "wb");
  if (!file) fail(original, "a copy to be read cannot be made");
  const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  if (!isWritten || std::fclose(file.release()) != 0)
    fail(original, "a copy to be read cannot be written");
}

#if defined(_WIN32)
std::error_code openingError(const fs::path& path) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {static_cast<int>(GetLastError()), std::system_category()};
  CloseHandle(file);
  return {};
}
#else
std::error_code openingError(const fs::path& path) {
  if (isDirectory(path)) {
    std::error_code error;
    const fs::directory_iterator entries(path, error);
    return error;
  }
  if (openFile(path, "rb")) return {};
  return {errno, std::generic_category()};
}
#endif

std::error_code writingError(const fs::path& file) {
  static constexpr char block[65536] = {};
  File opened = openFile(file, "ab");
  if (opened && std::fwrite(block, 1, sizeof block, opened.get()) == sizeof block &&
      std::fclose(opened.release()) == 0)
    return {};
  return {errno, std::generic_category()};
}

}  // namespace tool
