#include "basics/files.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "basics/failure.h"

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

[[noreturn]] void fail(const fs::path& path, const char* what) {
  const int error = errno;
  throw Refused(
      fmt::format("{}: {}: {}", shownPath(path), what, std::generic_category().message(error)));
}

}  // namespace

std::string readBytes(const fs::path& path) {
  const File file = openFile(path, "rb");
  if (!file) fail(path, "the file cannot be opened");
  std::string bytes;
  char block[65536];
  while (const std::size_t count = std::fread(block, 1, sizeof block, file.get()))
    bytes.append(block, count);
  if (std::ferror(file.get()) != 0) fail(path, "the file cannot be read");
  return bytes;
}

void writeCopy(const fs::path& copy, std::string_view bytes, const fs::path& original) {
  File file = openFile(copy, "wb");
  if (!file) fail(original, "a copy to be read cannot be made");
  const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  if (!isWritten || std::fclose(file.release()) != 0)
    fail(original, "a copy to be read cannot be written");
}

}  // namespace tool
