#include "writing/creating.h"

#include <fmt/core.h>
#include <kostyle/helpers.h>

#include <system_error>

#include "basics/failure.h"
#include "writing/file_replacement.h"
#include "writing/saving.h"

namespace tool {

void createStyleFile(const fs::path& directory, const NewFile& file,
                     const std::function<void(const std::string&)>& verify,
                     std::chrono::milliseconds limit) {
  const fs::path folder = pathOf(TextView(libraryPath(directory)));
  MissingDirectories made(folder);
  std::error_code error;
  fs::create_directories(folder, error);
  if (error)
    throw Refused(fmt::format("{}: {}: {}", shownPath(folder),
                              KoStyle_codeText(KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE),
                              error.message()));
  const fs::path path = folder / pathOf(TextView(file.id + fromUtf8(".kostyle")));
  const FolderLock lock(folder, limit);
  createFile(lock, path, file.bytes, verify);
  try {
    printWritten(file.id, path);
  } catch (const Refused&) {
    fs::remove(path, error);
    throw;
  }
  made.keep();
}

}  // namespace tool
